#include "app/editor/documenteditor.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

#include "app/documentoperations.h"
#include "app/editor/clientsection.h"
#include "app/editor/detailsections.h"
#include "app/editor/fieldbinder.h"
#include "app/editor/linessection.h"
#include "calc/numberformat.h"
#include "model/transformers.h"

namespace tamo {

namespace {

QWidget* scrolled(QWidget* page)
{
    auto* area = new QScrollArea;
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    return area;
}

}  // namespace

DocumentEditor::DocumentEditor(AppSession& session, DocumentOperations& operations, QWidget* parent)
    : QWidget(parent),
      session_(session),
      binder_(new FieldBinder(
          session, [this] { return document_; }, this)),
      stack_(new QStackedWidget(this)),
      stamp_(new QLabel(this)),
      heading_(new QLabel(this)),
      subheading_(new QLabel(this)),
      locked_(new QLabel(this)),
      pages_(new QTabWidget(this)),
      client_(new ClientSection(*binder_, operations.clients, this)),
      lines_(new LinesSection(session, operations.lines, this)),
      details_(new DocumentSection(*binder_, operations.lifecycle, this))
{
    auto* empty =
        new QLabel(tr("<p style='font-size:large'>No document selected</p>"
                      "<p>Create an invoice or a quote, or choose one from the list.</p>"),
                   this);
    empty->setAlignment(Qt::AlignCenter);
    empty->setForegroundRole(QPalette::PlaceholderText);

    QFont big = heading_->font();
    big.setPointSizeF(big.pointSizeF() * 1.4);
    big.setBold(true);
    heading_->setFont(big);
    heading_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    subheading_->setForegroundRole(QPalette::PlaceholderText);
    stamp_->setFixedSize(36, 36);
    locked_->setObjectName(QStringLiteral("lockedNotice"));
    locked_->setWordWrap(true);
    locked_->setText(
        tr("This document has been sent. Only its status and payment can change; "
           "set the status back to \"Created\" to edit the rest."));
    locked_->setStyleSheet(QStringLiteral(
        "QLabel { background: palette(alternate-base); border: 1px solid palette(mid);"
        " border-radius: 4px; padding: 6px 8px; }"));

    auto* headingText = new QVBoxLayout;
    headingText->setSpacing(0);
    headingText->addWidget(heading_);
    headingText->addWidget(subheading_);
    auto* header = new QHBoxLayout;
    header->addWidget(stamp_);
    header->addSpacing(4);
    header->addLayout(headingText, 1);

    pages_->setDocumentMode(true);
    pages_->insertTab(DocumentPage, scrolled(details_), tr("Document"));
    pages_->insertTab(ClientPage, scrolled(client_), tr("Client"));
    pages_->insertTab(ItemsPage, lines_, tr("Items"));
    pages_->insertTab(TextsPage, scrolled(new TextsSection(*binder_, this)), tr("Texts"));
    pages_->setCurrentIndex(
        std::clamp(session_.settings().integer(key::mainTabIndex), 0, pages_->count() - 1));
    connect(pages_, &QTabWidget::currentChanged, this,
            [this](int page) { session_.settings().set(key::mainTabIndex, page); });

    auto* content = new QWidget(this);
    auto* contentLayout = new QVBoxLayout(content);
    contentLayout->setContentsMargins(0, 0, 0, 0);
    contentLayout->addLayout(header);
    contentLayout->addWidget(locked_);
    contentLayout->addWidget(pages_, 1);

    stack_->addWidget(empty);
    stack_->addWidget(content);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 8, 6, 6);
    layout->addWidget(stack_);

    connect(&session_, &AppSession::contextChanged, this, &DocumentEditor::watch);
    watch(session_.context());
    showDocument(nullptr);
}

void DocumentEditor::watch(Context* context)
{
    if (context) {
        connect(context, &Context::objectsDidChange, this, &DocumentEditor::changed,
                Qt::UniqueConnection);
    }
}

void DocumentEditor::changed(const ChangeSet& changes)
{
    const auto has = [this](const std::vector<Record*>& records) {
        return std::find(records.begin(), records.end(), document_) != records.end();
    };
    // Undoing or redoing a line changes the document's lines without always changing its sums.
    if (document_ && (has(changes.updated) || has(changes.deleted) || has(changes.inserted) ||
                      changes.touches("Item"))) {
        refresh();
    }
}

void DocumentEditor::showDocument(Record* document)
{
    document_ = document;
    refresh();
}

void DocumentEditor::refresh()
{
    const bool shown = document_ && !document_->isDeleted();
    stack_->setCurrentIndex(shown ? 1 : 0);
    if (!shown) {
        lines_->showDocument(nullptr);
        return;
    }
    binder_->refresh();
    details_->showDocument(*document_);
    lines_->showDocument(document_);
    locked_->setVisible(binder_->isLocked());
    client_->setEditable(!binder_->isLocked());
    showHeader();
}

void DocumentEditor::showHeader()
{
    const QString title = document_->string("title");
    const QString number = document_->string("number");
    QString heading =
        title.isEmpty() ? (document_->integer("kind") == 0 ? tr("Quote") : tr("Invoice")) : title;
    if (!number.isEmpty()) {
        heading += QStringLiteral("  ") + number;
    }
    heading_->setText(heading);
    QStringList facts{statusLabel(document_)};
    if (!document_->string("customerName").trimmed().isEmpty()) {
        facts << document_->string("customerName").trimmed();
    }
    facts << stringFromNumber(document_->decimal("amount")) + u' ' + document_->string("currency");
    subheading_->setText(facts.join(QStringLiteral("  ·  ")));
    stamp_->setPixmap(QIcon(QStringLiteral(":/stamps/%1.svg").arg(stampImageName(document_, false)))
                          .pixmap(stamp_->size()));
}

bool DocumentEditor::commitEditing()
{
    binder_->commit();
    return true;
}

void DocumentEditor::showPage(Page page)
{
    pages_->setCurrentIndex(page);
}

void DocumentEditor::showClientBlock()
{
    showPage(ClientPage);
    client_->nameField()->setFocus(Qt::OtherFocusReason);
}

void DocumentEditor::focusDispatchNumber()
{
    showPage(DocumentPage);
    details_->dispatchNumberField()->setFocus(Qt::OtherFocusReason);
    details_->dispatchNumberField()->selectAll();
}

}  // namespace tamo
