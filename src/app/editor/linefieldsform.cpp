#include "app/editor/linefieldsform.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolTip>

#include "calc/amountinput.h"
#include "calc/numberformat.h"
#include "model/taxkeys.h"
#include "settings/settings.h"

namespace tamo {

namespace {

QLineEdit* lineEdit(QWidget* parent, const char* name, const QString& placeholder = {})
{
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(QString::fromLatin1(name));
    edit->setPlaceholderText(placeholder);
    return edit;
}

// Marks a field whose text Tamo cannot take, with the reason, until it is read again.
bool markRefused(QLineEdit* edit, const QString& reason)
{
    const bool refused = !reason.isEmpty();
    edit->setStyleSheet(refused ? QStringLiteral("QLineEdit { border: 1px solid #c62828; }")
                                : QString());
    edit->setToolTip(reason);
    if (refused) {
        edit->setFocus(Qt::OtherFocusReason);
        edit->selectAll();
        QToolTip::showText(edit->mapToGlobal(QPoint(0, edit->height())), reason, edit);
    }
    return refused;
}

std::optional<double> readNumber(QLineEdit* edit)
{
    const auto n = amountFromText(edit->text());
    markRefused(edit, n ? QString() : n.error());
    return n ? std::optional(*n) : std::nullopt;
}

}  // namespace

LineFieldsForm::LineFieldsForm(QWidget* parent)
    : QWidget(parent),
      title_(lineEdit(this, "lineTitle", tr("Description"))),
      subtitle_(lineEdit(this, "lineSubtitle", tr("Second line (optional)"))),
      quantity_(lineEdit(this, "lineQuantity")),
      unit_(lineEdit(this, "lineUnit", tr("e.g. h, pcs"))),
      price_(lineEdit(this, "linePrice")),
      sku_(lineEdit(this, "lineSku")),
      note_(lineEdit(this, "lineNote"))
{
    quantity_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    price_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    quantity_->setMaximumWidth(90);
    unit_->setMaximumWidth(110);

    auto* amounts = new QHBoxLayout;
    amounts->addWidget(quantity_);
    amounts->addWidget(new QLabel(tr("Unit:"), this));
    amounts->addWidget(unit_);
    amounts->addStretch();

    auto* taxes = new QHBoxLayout;
    for (int i = 0; i < 3; ++i) {
        taxes_[i] = new QCheckBox(this);
        taxes_[i]->setObjectName(QStringLiteral("lineTax%1").arg(i + 1));
        taxes->addWidget(taxes_[i]);
    }
    taxes->addStretch();

    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Title:"), title_);
    form->addRow(tr("Subtitle:"), subtitle_);
    form->addRow(tr("Quantity:"), amounts);
    form->addRow(tr("Unit price:"), price_);
    form->addRow(tr("Article no.:"), sku_);
    form->addRow(tr("Note:"), note_);
    form->addRow(tr("Taxes:"), taxes);

    for (QLineEdit* e : {title_, subtitle_, quantity_, unit_, price_, sku_, note_}) {
        connect(e, &QLineEdit::returnPressed, this, &LineFieldsForm::submitted);
    }
}

void LineFieldsForm::showTaxes(const Settings& settings)
{
    for (int i = 0; i < 3; ++i) {
        const TaxKeys& tax = kTaxes[size_t(i)];
        const QString title = settings.string(*tax.titleSetting);
        taxes_[i]->setText(tr("%1 (%2 %)")
                               .arg(title.isEmpty() ? tr("Tax %1").arg(i + 1) : title,
                                    decimalStringFromNumber(settings.real(*tax.rate) * 100)));
        taxes_[i]->setVisible(settings.boolean(*tax.enabled));
    }
}

void LineFieldsForm::setFields(const LineFields& fields, bool keepTaxes)
{
    title_->setText(fields.title);
    subtitle_->setText(fields.subtitle);
    unit_->setText(fields.unit);
    sku_->setText(fields.sku);
    note_->setText(fields.note);
    quantity_->setText(decimalStringFromNumber(fields.quantity));
    price_->setText(stringFromNumber(fields.price));
    for (QLineEdit* e : {quantity_, price_}) {
        markRefused(e, {});
    }
    if (!keepTaxes) {
        taxes_[0]->setChecked(fields.tax1);
        taxes_[1]->setChecked(fields.tax2);
        taxes_[2]->setChecked(fields.tax3);
    }
}

std::optional<LineFields> LineFieldsForm::fields()
{
    const std::optional<double> quantity = readNumber(quantity_);
    const std::optional<double> price = quantity ? readNumber(price_) : std::nullopt;
    if (!quantity || !price) {
        return std::nullopt;
    }
    if (const auto line = checkedLine(*price, *quantity); !line) {
        markRefused(price_, line.error());
        return std::nullopt;
    }
    return LineFields{title_->text(),
                      subtitle_->text(),
                      unit_->text(),
                      sku_->text(),
                      note_->text(),
                      *price,
                      *quantity,
                      taxes_[0]->isChecked(),
                      taxes_[1]->isChecked(),
                      taxes_[2]->isChecked()};
}

}  // namespace tamo
