#include "app/documenteditor.h"

#include <QFormLayout>
#include <QLocale>
#include <QVBoxLayout>

#include "calc/totals.h"
#include "model/appsession.h"
#include "model/transformers.h"

namespace tamo {

DocumentEditor::DocumentEditor(AppSession& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      heading_(new QLabel(this)),
      state_(new QLabel(this)),
      client_(new QLabel(this)),
      dates_(new QLabel(this)),
      amount_(new QLabel(this)),
      locked_(new QLabel(this))
{
    QFont big = heading_->font();
    big.setPointSizeF(big.pointSizeF() * 1.5);
    big.setBold(true);
    heading_->setFont(big);
    locked_->setWordWrap(true);
    locked_->setText(
        tr("This document has been sent. Set its status back to \"Created\" to "
           "change it."));
    client_->setWordWrap(true);
    client_->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    for (auto [key, label, undo] : {std::tuple{"number", tr("Number:"), tr("Edit Number")},
                                    std::tuple{"title", tr("Title:"), tr("Edit Title")},
                                    std::tuple{"subject", tr("Subject:"), tr("Edit Subject")}}) {
        auto* edit = new QLineEdit(this);
        form->addRow(label, edit);
        fields_.push_back({key, edit, undo});
    }
    form->addRow(tr("State:"), state_);
    form->addRow(tr("Client:"), client_);
    form->addRow(tr("Dates:"), dates_);
    form->addRow(tr("Total:"), amount_);
    for (const Field& f : fields_) {
        connect(f.edit, &QLineEdit::editingFinished, this, [this, f] { apply(f); });
    }

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(heading_);
    layout->addWidget(locked_);
    layout->addLayout(form);
    layout->addStretch();
    showDocument(nullptr);
}

void DocumentEditor::showDocument(Record* document)
{
    document_ = document;
    refresh();
}

void DocumentEditor::refresh()
{
    const bool shown = document_ && !document_->isDeleted();
    setEnabled(shown);
    const bool editable = shown && invoiceSentToBool(document_);
    locked_->setVisible(shown && !editable);
    for (const Field& f : fields_) {
        const QString text = shown ? document_->string(f.key) : QString();
        if (f.edit->text() != text) {
            f.edit->setText(text);
        }
        f.edit->setReadOnly(!editable);
    }
    if (!shown) {
        heading_->setText(tr("No document selected"));
        for (QLabel* l : {state_, client_, dates_, amount_}) {
            l->clear();
        }
        return;
    }
    const QLocale locale;
    heading_->setText(document_->string("title").isEmpty() ? tr("Untitled")
                                                           : document_->string("title"));
    state_->setText(statusLabel(document_));
    client_->setText(document_->string("address").isEmpty() ? document_->string("customerName")
                                                            : document_->string("address"));
    dates_->setText(
        tr("dated %1, due %2")
            .arg(
                locale.toString(document_->date("date").toLocalTime().date(), QLocale::LongFormat),
                locale.toString(document_->date("due").toLocalTime().date(), QLocale::LongFormat)));
    amount_->setText(locale.toString(document_->decimal("amount"), 'f', 2) + u' ' +
                     document_->string("currency"));
}

void DocumentEditor::apply(const Field& field)
{
    if (!document_ || document_->isDeleted() || field.edit->isReadOnly() ||
        document_->string(field.key) == field.edit->text()) {
        return;
    }
    {
        UndoGroup group(*session_.context(), field.undoName);
        document_->setValue(field.key, field.edit->text());
        if (affectsTotals(*document_, field.key)) {
            Totals(session_).calculateInvoice(*document_);  // undone together with the edit
        }
    }
    session_.saveContext();
}

bool DocumentEditor::commitEditing()
{
    for (const Field& f : fields_) {
        if (f.edit->hasFocus()) {
            apply(f);
        }
    }
    return true;
}

}  // namespace tamo
