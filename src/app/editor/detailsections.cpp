#include "app/editor/detailsections.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStandardItemModel>

#include "app/editor/datefield.h"
#include "app/editor/fieldbinder.h"
#include "documents/lifecycle.h"
#include "model/transformers.h"

namespace tamo {

namespace {

DateField* dateEdit(QWidget* parent, const char* name)
{
    auto* edit = new DateField(parent);
    edit->setObjectName(QString::fromLatin1(name));
    edit->setMinimumWidth(150);
    edit->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return edit;
}

// A bold heading over the rows of one part of the form, aligned with its fields.
void addHeading(QFormLayout* form, const QString& text)
{
    auto* heading = new QLabel(text, form->parentWidget());
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    if (form->rowCount() > 0) {
        form->addItem(new QSpacerItem(0, 10, QSizePolicy::Minimum, QSizePolicy::Fixed));
    }
    form->addRow(heading);
}

}  // namespace

DocumentSection::DocumentSection(FieldBinder& binder, DocumentLifecycle& lifecycle, QWidget* parent)
    : QWidget(parent),
      dueLabel_(new QLabel(this)),
      paidAmount_(new QLineEdit(this)),
      paid_(dateEdit(this, "paid")),
      dispatchNumber_(new QLineEdit(this))
{
    form_ = new QFormLayout(this);
    QFormLayout* form = form_;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setLabelAlignment(Qt::AlignRight);
    addHeading(form, tr("Document"));
    for (auto [key, label, undo] : {std::tuple{"number", tr("Number:"), tr("Edit Number")},
                                    std::tuple{"title", tr("Title:"), tr("Edit Title")},
                                    std::tuple{"subject", tr("Subject:"), tr("Edit Subject")}}) {
        auto* edit = new QLineEdit(this);
        edit->setObjectName(QString::fromLatin1(key));
        binder.bindText(edit, key, undo);
        form->addRow(label, edit);
    }
    DateField* date = dateEdit(this, "date");
    DateField* due = dateEdit(this, "due");
    binder.bindDate(date, "date", tr("Edit Date"));
    binder.bindDate(due, "due", tr("Edit Due Date"));
    form->addRow(tr("Date:"), date);
    form->addRow(dueLabel_, due);

    addHeading(form, tr("Status and Payment"));
    auto* status = new QComboBox(this);
    status->setObjectName(QStringLiteral("status"));
    status->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    const QString names[] = {tr("Created"), tr("Sent"), tr("Overdue"), tr("Paid"),
                             tr("Partially paid")};
    for (int s = 0; s < 5; ++s) {
        status->addItem(names[s], s);
    }
    // Overdue follows from the due date; it is shown, never chosen.
    if (auto* items = qobject_cast<QStandardItemModel*>(status->model())) {
        items->item(2)->setEnabled(false);
    }
    binder.bindChoice(status, "status", tr("Change Status"), FieldBinder::Lock::Never);
    form->addRow(tr("Status:"), status);
    paidAmount_->setObjectName(QStringLiteral("paidAmount"));
    binder.bindAmount(paidAmount_, "paidAmount", tr("Edit Paid Amount"), FieldBinder::Lock::Never);
    paidAmount_->setMaximumWidth(160);
    form->addRow(tr("Paid amount:"), paidAmount_);
    binder.bindDate(paid_, "paid", tr("Edit Payment Date"), FieldBinder::Lock::Never);
    form->addRow(tr("Payment date:"), paid_);

    addHeading(form, tr("Delivery"));
    auto* dispatched = new QCheckBox(tr("Dispatched"), this);
    dispatched->setObjectName(QStringLiteral("isDispatched"));
    dispatched->setToolTip(tr("Show the delivery date and note number on the document"));
    binder.bindCheck(dispatched, "isDispatched", tr("Mark Dispatched"));
    form->addRow(QString(), dispatched);
    dispatchNumber_->setObjectName(QStringLiteral("dispatchNumber"));
    binder.bindText(dispatchNumber_, "dispatchNumber", tr("Edit Delivery Note Number"));
    form->addRow(tr("Delivery note no.:"), dispatchNumber_);
    DateField* dispatchDate = dateEdit(this, "dispatched");
    binder.bindDate(dispatchDate, "dispatched", tr("Edit Delivery Date"));
    auto* today = new QPushButton(tr("Today"), this);
    today->setAutoDefault(false);
    today->setToolTip(tr("Set the delivery date to today"));
    connect(today, &QPushButton::clicked, this, [&lifecycle] { lifecycle.setDispatched(); });
    auto* dateRow = new QHBoxLayout;
    dateRow->addWidget(dispatchDate);
    dateRow->addWidget(today);
    dateRow->addStretch();
    form->addRow(tr("Delivery date:"), dateRow);
}

void DocumentSection::showDocument(const Record& document)
{
    dueLabel_->setText(document.integer("kind") == 0 ? tr("Valid until:") : tr("Due date:"));
    const int status = document.integer("status");
    form_->setRowVisible(paidAmount_, !intToAmountBool(status));
    form_->setRowVisible(paid_, !intToDateBool(status));
}

TextsSection::TextsSection(FieldBinder& binder, QWidget* parent) : QWidget(parent)
{
    auto* form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setLabelAlignment(Qt::AlignRight);
    const std::tuple<const char*, QString, QString, QString> texts[] = {
        {"conditions", tr("Conditions:"), tr("Edit Conditions"), tr("Payment terms, validity")},
        {"misc1", tr("Further text:"), tr("Edit Further Text"), QString()},
        {"footer", tr("Footer:"), tr("Edit Footer"), tr("Closing words, bank details")},
        {"notes", tr("Private notes:"), tr("Edit Notes"), tr("Not printed")},
    };
    for (const auto& [key, label, undo, hint] : texts) {
        auto* edit = new QPlainTextEdit(this);
        edit->setObjectName(QString::fromLatin1(key));
        edit->setTabChangesFocus(true);
        edit->setPlaceholderText(hint);
        edit->setMinimumHeight(edit->fontMetrics().lineSpacing() * 4 + 12);
        binder.bindText(edit, key, undo);
        form->addRow(label, edit);
    }
}

}  // namespace tamo
