#include "app/einvoicesheets.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/einvoicefindings.h"
#include "app/mainwindow.h"
#include "settings/settings.h"

namespace tamo {

EvoiceGenerateSheet::EvoiceGenerateSheet(EinvoiceActions& actions, Settings& settings,
                                         QWidget* parent)
    : QDialog(parent),
      actions_(actions),
      settings_(settings),
      conformant_(new QCheckBox(tr("Write the conformant file"), this)),
      exemption_(new QComboBox(this)),
      reason_(new QLineEdit(this)),
      view_(new EinvoiceFindingsView(this))
{
    setWindowTitle(tr("E-Invoice"));
    auto* text = new QLabel(tr("Export the selected invoice as an XRechnung e-invoice (UBL XML "
                               "file). If the preferences ask for it, the invoice is marked as "
                               "sent."),
                            this);
    text->setWordWrap(true);

    conformant_->setObjectName(QStringLiteral("conformantFile"));
    conformant_->setToolTip(
        tr("Discount and shipping as allowances and charges per tax category, lines without "
           "taxes in an exemption category, totals computed from the lines: the structure the "
           "EN 16931 rules require. The standard file is written as Tamo always wrote it."));
    conformant_->setChecked(settings_.boolean(key::prefsEvoiceConformantBool));
    exemption_->setObjectName(QStringLiteral("exemptionCategory"));
    for (const ExemptionCategory& c : exemptionCategories()) {
        exemption_->addItem(
            QStringLiteral("%1 – %2").arg(QLatin1StringView(c.code),
                                          QCoreApplication::translate("Einvoice", c.name)),
            QString::fromLatin1(c.code));
    }
    const QString chosen = settings_.string(key::prefsEvoiceExemptionCategory);
    exemption_->setCurrentIndex(
        std::max(0, exemption_->findData(chosen.isEmpty() ? u"E"_qs : chosen)));
    reason_->setObjectName(QStringLiteral("exemptionReason"));
    reason_->setText(settings_.string(key::prefsEvoiceExemptionReason));
    reason_->setPlaceholderText(tr("Why they are untaxed, e.g. Kleinunternehmer gemäß § 19 UStG"));
    auto* form = new QFormLayout;
    form->addRow(conformant_);
    form->addRow(tr("Lines without taxes:"), exemption_);
    form->addRow(tr("Exemption reason:"), reason_);

    // The choices are kept as they are made, for this file and the next.
    connect(conformant_, &QCheckBox::toggled, this, [this](bool on) {
        settings_.set(key::prefsEvoiceConformantBool, on);
        check();
    });
    connect(exemption_, &QComboBox::currentIndexChanged, this, [this] {
        settings_.set(key::prefsEvoiceExemptionCategory, exemption_->currentData().toString());
        check();
    });
    connect(reason_, &QLineEdit::textEdited, this, [this](const QString& reason) {
        settings_.set(key::prefsEvoiceExemptionReason, reason);
        check();
    });
    connect(view_, &EinvoiceFindingsView::findingActivated, this, &EvoiceGenerateSheet::jumpTo);

    auto* rulesHeading =
        new QLabel(u"<b>"_qs + tr("Rule check").toHtmlEscaped() + u"</b>"_qs, this);
    auto* buttons = new QDialogButtonBox(this);
    export_ = buttons->addButton(tr("Export E-Invoice…"), QDialogButtonBox::AcceptRole);
    export_->setDefault(true);
    mail_ = buttons->addButton(tr("Send by Mail…"), QDialogButtonBox::ActionRole);
    mail_->setObjectName(QStringLiteral("mailEvoiceAction"));
    buttons->addButton(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { exportFile(Export); });
    connect(mail_, &QPushButton::clicked, this, [this] { exportFile(Mail); });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { done(Cancelled); });
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addLayout(form);
    layout->addSpacing(6);
    layout->addWidget(rulesHeading);
    layout->addWidget(view_, 1);
    layout->addWidget(buttons);
    setMinimumWidth(560);
    resize(660, 640);
    check();
}

void EvoiceGenerateSheet::check()
{
    const EinvoiceOptions chosen = options();
    exemption_->setEnabled(chosen.conformant);
    reason_->setEnabled(chosen.conformant);
    findings_ = actions_.einvoiceFindings(chosen);
    view_->showFindings(findings_);
    // A document the conformant file cannot express is not exported in that form at all.
    const bool expressible = std::none_of(findings_.begin(), findings_.end(), [](const Finding& f) {
        return f.rule == u"TAMO-CONFORMANT";
    });
    export_->setEnabled(expressible);
    mail_->setEnabled(expressible);
}

void EvoiceGenerateSheet::exportFile(Code code)
{
    if (actions_.confirmDespiteFindings(findings_)) {
        done(code);
    }
}

void EvoiceGenerateSheet::jumpTo(const EinvoiceField& field)
{
    const QLatin1StringView key(field.key ? field.key : "");
    QWidget* own = key == QLatin1StringView(key::prefsEvoiceConformantBool.name) ? conformant_
                   : key == QLatin1StringView(key::prefsEvoiceExemptionCategory.name)
                       ? static_cast<QWidget*>(exemption_)
                   : key == QLatin1StringView(key::prefsEvoiceExemptionReason.name) ? reason_
                                                                                    : nullptr;
    if (field.kind == EinvoiceField::Kind::Setting && own) {
        own->setFocus(Qt::OtherFocusReason);
        return;
    }
    target_ = field;
    done(Jump);
}

EvoiceDetailsSheet::EvoiceDetailsSheet(EinvoiceActions& actions, const Record& invoice,
                                       QWidget* parent)
    : QDialog(parent), actions_(actions)
{
    setWindowTitle(tr("E-Invoice Details"));
    auto* form = new QFormLayout;
    for (const EvoiceField& f : evoiceDetailFields()) {
        auto* edit = new QLineEdit(invoice.string(f.key), this);
        connect(edit, &QLineEdit::editingFinished, this,
                [this, edit, key = f.key] { actions_.setEvoiceDetail(key, edit->text()); });
        form->addRow(evoiceFieldLabel(f), edit);
        fields_.emplace(f.key, edit);
    }
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* exportButton =
        buttons->addButton(tr("Export E-Invoice…"), QDialogButtonBox::ActionRole);
    exportButton->setObjectName(QStringLiteral("exportButton"));
    QPushButton* send = buttons->addButton(tr("Send E-Invoice…"), QDialogButtonBox::ActionRole);
    send->setObjectName(QStringLiteral("sendButton"));
    buttons->addButton(QDialogButtonBox::Cancel);
    buttons->addButton(QDialogButtonBox::Ok)->setDefault(true);
    connect(buttons, &QDialogButtonBox::clicked, this,
            [this, buttons, exportButton, send](QAbstractButton* b) {
                const auto role = buttons->buttonRole(b);
                done(role == QDialogButtonBox::AcceptRole   ? Closed
                     : role == QDialogButtonBox::RejectRole ? Cancelled
                     : b == exportButton                    ? Export
                     : b == send                            ? Mail
                                                            : Cancelled);
            });
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
    setMinimumWidth(440);
}

void EvoiceDetailsSheet::done(int code)
{
    for (const auto& [key, edit] : fields_) {
        actions_.setEvoiceDetail(key, edit->text());  // unchanged values are left alone
    }
    QDialog::done(code);
}

EinvoiceWindowActions::EinvoiceWindowActions(MainWindow& window, AppSession& session)
    : QObject(&window), window_(window), session_(session), actions_(session)
{
    auto* exportAction = new QAction(QIcon::fromTheme(QStringLiteral("document-send")),
                                     tr("Export E-Invoice…"), this);
    exportAction->setObjectName(QStringLiteral("evoiceActionToolbar"));
    exportAction->setIconText(tr("E-Invoice"));
    connect(exportAction, &QAction::triggered, this, &EinvoiceWindowActions::evoiceActionToolbar);
    auto* details = new QAction(QIcon::fromTheme(QStringLiteral("document-properties")),
                                tr("E-Invoice Details…"), this);
    details->setObjectName(QStringLiteral("evoiceDetailsToolbar"));
    details->setIconText(tr("E-Invoice Details"));
    connect(details, &QAction::triggered, this, [this] { openEnvoiceDetailsSheet(); });
    auto* about = new QAction(tr("About E-Invoicing…"), this);
    connect(about, &QAction::triggered, this, &EinvoiceWindowActions::loadEvoiceAlertAction);
    documentActions_ = {exportAction, details};

    QMenu* menu = window.documentMenu();
    menu->addSeparator();
    menu->addActions({exportAction, details, about});

    window.addToolBarActions(documentActions_);
    // An e-invoice is written once, for an invoice; its details are locked with the invoice.
    for (QAction* a : documentActions_) {
        window.setActionNeeds(a, MainWindow::Needs::UnsentInvoice);
    }
}

void EinvoiceWindowActions::evoiceActionToolbar()
{
    if (actions_.isEvoiceActionPossible().possible()) {
        openEnvoiceGenerateSheet();
    } else {
        actions_.showEvoiceActionErrorAlert();
    }
}

void EinvoiceWindowActions::openEnvoiceGenerateSheet()
{
    if (!actions_.mayChangeCurrentInvoice()) {
        return;
    }
    EvoiceGenerateSheet sheet(actions_, session_.settings(), &window_);
    switch (sheet.exec()) {
    case EvoiceGenerateSheet::Export:
    case EvoiceGenerateSheet::Mail:
        sendEinvoice(EvoiceGenerateSheet::Code(sheet.result()), sheet.options());
        break;
    case EvoiceGenerateSheet::Jump:
        if (sheet.jumpTarget().kind == EinvoiceField::Kind::Details) {
            openEnvoiceDetailsSheet(sheet.jumpTarget().key);
        } else {
            showEinvoiceField(window_, session_, sheet.jumpTarget());
        }
        break;
    default:
        break;
    }
}

void EinvoiceWindowActions::openEnvoiceDetailsSheet(const char* focusKey)
{
    if (!actions_.mayChangeCurrentInvoice()) {
        return;
    }
    EvoiceDetailsSheet sheet(actions_, *session_.documents().current(), &window_);
    for (const EvoiceField& f : evoiceDetailFields()) {
        if (focusKey && std::string_view(f.key) == focusKey) {
            sheet.field(f.key)->setFocus(Qt::OtherFocusReason);
        }
    }
    const int code = sheet.exec();
    if (code == EvoiceDetailsSheet::Export || code == EvoiceDetailsSheet::Mail) {
        // The generate sheet would open only to export or send at once, so go straight on,
        // behind the same guard and the same rule check.
        const EinvoiceOptions options = einvoiceOptions(session_.settings());
        if (actions_.mayChangeCurrentInvoice() && actions_.mayExport(options)) {
            sendEinvoice(code == EvoiceDetailsSheet::Mail ? EvoiceGenerateSheet::Mail
                                                          : EvoiceGenerateSheet::Export,
                         options);
        }
    }
}

void EinvoiceWindowActions::sendEinvoice(EvoiceGenerateSheet::Code how,
                                         const EinvoiceOptions& options)
{
    if (how == EvoiceGenerateSheet::Mail && mailer_) {
        mailer_(options);
    } else if (how == EvoiceGenerateSheet::Export) {
        actions_.exportEvoiceAction(options);
    }
}

void EinvoiceWindowActions::loadEvoiceAlertAction()
{
    showEinvoiceNotice(&window_);
}

EinvoiceWindowActions* installEinvoiceActions(MainWindow& window, AppSession& session)
{
    return new EinvoiceWindowActions(window, session);
}

void showEinvoiceNotice(QWidget* window)
{
    const EinvoiceNotice notice = einvoiceNotice();
    auto* box = new QMessageBox(QMessageBox::Information, notice.title, notice.title,
                                QMessageBox::NoButton, window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setModal(false);
    box->setInformativeText(notice.text);
    QList<QAbstractButton*> buttons;
    for (qsizetype i = 0; i < notice.buttons.size(); ++i) {
        buttons << box->addButton(notice.buttons[i],
                                  i == 0 ? QMessageBox::AcceptRole : QMessageBox::HelpRole);
    }
    QObject::connect(box, &QMessageBox::buttonClicked, box, [buttons, notice](QAbstractButton* b) {
        const qsizetype link = buttons.indexOf(b) - 1;
        if (link >= 0 && link < notice.links.size()) {
            QDesktopServices::openUrl(notice.links[link]);
        }
    });
    box->show();
}

}  // namespace tamo
