#include "app/sheets.h"

#include <QDateTimeEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tamo {

namespace {

QPlainTextEdit* textBlock(const QString& text, QWidget* parent, int lines = 4)
{
    auto* edit = new QPlainTextEdit(text, parent);
    edit->setTabChangesFocus(true);
    edit->setFixedHeight(edit->fontMetrics().lineSpacing() * lines + 12);
    return edit;
}

void finish(QDialog* sheet, QFormLayout* form, QDialogButtonBox* buttons)
{
    auto* layout = new QVBoxLayout(sheet);
    layout->addLayout(form);
    layout->addWidget(buttons);
    sheet->setMinimumWidth(480);
}

}  // namespace

VariantTextsSheet::VariantTextsSheet(const QString& windowTitle, const SheetTexts& texts,
                                     QWidget* parent)
    : QDialog(parent),
      title_(new QLineEdit(texts.title, this)),
      conditions_(textBlock(texts.conditions, this)),
      miscellaneous_(textBlock(texts.miscellaneous, this)),
      footer_(textBlock(texts.footer, this))
{
    setWindowTitle(windowTitle);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Title:"), title_);
    form->addRow(tr("Conditions:"), conditions_);
    form->addRow(tr("Further text:"), miscellaneous_);
    form->addRow(tr("Footer:"), footer_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    finish(this, form, buttons);
}

SheetTexts VariantTextsSheet::texts() const
{
    return {title_->text(), conditions_->toPlainText(), miscellaneous_->toPlainText(),
            footer_->toPlainText()};
}

NotificationSheet::NotificationSheet(const NotificationRequest& request, QWidget* parent)
    : QDialog(parent),
      title_(new QLineEdit(request.title, this)),
      subtitle_(new QLineEdit(request.subtitle, this)),
      text_(textBlock(request.informativeText, this, 3)),
      delivery_(new QDateTimeEdit(request.deliveryDate, this))
{
    setWindowTitle(tr("Due-Date Notification"));
    delivery_->setCalendarPopup(true);
    delivery_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    text_->setPlaceholderText(tr("Optional message"));
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Title:"), title_);
    form->addRow(tr("Subtitle:"), subtitle_);
    form->addRow(tr("Message:"), text_);
    form->addRow(tr("Remind me on:"), delivery_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(tr("Schedule"), QDialogButtonBox::AcceptRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    finish(this, form, buttons);
}

NotificationRequest NotificationSheet::request() const
{
    return {title_->text(), subtitle_->text(), text_->toPlainText(), delivery_->dateTime()};
}

}  // namespace tamo
