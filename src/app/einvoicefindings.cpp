#include "app/einvoicefindings.h"

#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

#include "app/documentoperations.h"
#include "app/editor/documenteditor.h"
#include "app/editor/linessection.h"
#include "app/editor/linetablemodel.h"
#include "app/mainwindow.h"
#include "model/appsession.h"

namespace tamo {

EinvoiceFindingsView::EinvoiceFindingsView(QWidget* parent)
    : QWidget(parent), summary_(new QLabel(this)), list_(new QListWidget(this))
{
    summary_->setObjectName(QStringLiteral("rulesSummary"));
    summary_->setWordWrap(true);
    summary_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    list_->setObjectName(QStringLiteral("ruleFindings"));
    list_->setWordWrap(true);
    list_->setAlternatingRowColors(true);
    list_->setMinimumHeight(180);
    connect(list_, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
        const size_t index = size_t(list_->row(item));
        if (index < findings_.size() && !findings_[index].field.isNone()) {
            emit findingActivated(findings_[index].field);
        }
    });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(summary_);
    layout->addWidget(list_, 1);
}

void EinvoiceFindingsView::showFindings(const std::vector<Finding>& findings)
{
    findings_ = findings;
    list_->clear();
    const auto fatal =
        std::count_if(findings.begin(), findings.end(), [](const Finding& f) { return f.fatal(); });
    if (fatal == 0) {
        summary_->setText(u"<b style='color:#1b7a2f'>✓ "_qs +
                          tr("The file passes the EN 16931 and XRechnung rules.").toHtmlEscaped() +
                          u"</b>"_qs +
                          (findings.empty() ? QString() : u" "_qs + tr("Notes:").toHtmlEscaped()));
    } else {
        const QString broken =
            fatal == 1
                ? tr("1 rule broken: the recipient's validator will likely reject this file.")
                : tr("%1 rules broken: the recipient's validator will likely reject this "
                     "file.")
                      .arg(fatal);
        summary_->setText(u"<b style='color:#b3261e'>"_qs + broken.toHtmlEscaped() + u"</b> "_qs +
                          tr("Double-click a finding to go to what to change.").toHtmlEscaped());
    }
    list_->setVisible(!findings.empty());
    for (const Finding& f : findings) {
        const QString where = einvoiceFieldLabel(f.field);
        auto* item = new QListWidgetItem(
            QIcon::fromTheme(f.fatal() ? QStringLiteral("dialog-error")
                                       : QStringLiteral("dialog-warning")),
            QStringLiteral("%1 (%2): %3")
                    .arg(f.rule, f.fatal() ? tr("fatal") : tr("warning"), f.message) +
                (where.isEmpty() ? QString() : u"\n"_qs + tr("Change: %1").arg(where)),
            list_);
        item->setToolTip(f.message);
    }
}

namespace {

bool showLine(MainWindow& window, const Record& document, int number)
{
    DocumentEditor* editor = window.editor();
    const std::vector<Record*> lines = window.operations().lines.sortedItems(document);
    if (number < 1 || size_t(number) > lines.size()) {
        return false;
    }
    editor->showPage(DocumentEditor::ItemsPage);
    QTableView* table = editor->lines()->table();
    const int row = static_cast<LineTableModel*>(table->model())->rowOf(lines[size_t(number - 1)]);
    table->selectRow(row);
    table->setFocus(Qt::OtherFocusReason);
    editor->lines()->editLine();
    return true;
}

}  // namespace

bool showEinvoiceField(MainWindow& window, AppSession& session, const EinvoiceField& field)
{
    DocumentEditor* editor = window.editor();
    const Record* document = session.documents().current();
    if (!document || !editor || !field.key) {
        return false;
    }
    const QLatin1StringView key(field.key);
    switch (field.kind) {
    case EinvoiceField::Kind::Line:
        return showLine(window, *document, field.number);
    case EinvoiceField::Kind::Document:
        if (key.startsWith(QLatin1StringView("shipping")) ||
            key.startsWith(QLatin1StringView("isShipping"))) {
            editor->showPage(DocumentEditor::ItemsPage);
            editor->lines()->editShipping();
            return true;
        }
        if (key.startsWith(QLatin1StringView("discount")) ||
            key == QLatin1StringView("isDiscountEnabled")) {
            editor->showPage(DocumentEditor::ItemsPage);
            editor->lines()->editDiscount();
            return true;
        }
        if (QWidget* widget = editor->findChild<QWidget*>(key)) {
            for (int page = 0; page < editor->pages()->count(); ++page) {
                if (editor->pages()->widget(page)->isAncestorOf(widget)) {
                    editor->pages()->setCurrentIndex(page);
                }
            }
            widget->setFocus(Qt::OtherFocusReason);
            return true;
        }
        return false;
    case EinvoiceField::Kind::Setting:
        // The preferences open on the setting's field.
        if (QAction* preferences = window.action(QStringLiteral("preferences"))) {
            preferences->setData(QString::fromLatin1(field.key));
            preferences->trigger();
            return true;
        }
        return false;
    case EinvoiceField::Kind::Details:
    case EinvoiceField::Kind::None:
        break;
    }
    return false;
}

}  // namespace tamo
