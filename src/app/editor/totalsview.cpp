#include "app/editor/totalsview.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>

#include "calc/numberformat.h"
#include "model/record.h"
#include "model/taxkeys.h"
#include "settings/settings.h"

namespace tamo {

TotalsView::TotalsView(QWidget* parent) : QWidget(parent), currency_(new QLabel(this))
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(3);
    for (int r = 0; r < RowCount; ++r) {
        titles_[r] = new QLabel(this);
        amounts_[r] = new QLabel(this);
        amounts_[r]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        amounts_[r]->setTextInteractionFlags(Qt::TextSelectableByMouse);
        amounts_[r]->setObjectName(QStringLiteral("totalsAmount%1").arg(r));
        const int gridRow = r == Total ? r + 1 : r;  // a rule above the total
        grid->addWidget(titles_[r], gridRow, 0);
        grid->addWidget(amounts_[r], gridRow, 1);
    }
    auto* rule = new QFrame(this);
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Sunken);
    grid->addWidget(rule, Total, 0, 1, 3);
    grid->addWidget(currency_, Total + 1, 2);
    grid->setColumnMinimumWidth(1, 90);

    QFont bold = font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.15);
    for (QLabel* l : {titles_[Total], amounts_[Total], currency_}) {
        l->setFont(bold);
    }
}

void TotalsView::setRow(Row row, bool shown, const QString& title, double amount)
{
    titles_[row]->setText(title);
    amounts_[row]->setText(stringFromNumber(amount));
    titles_[row]->setVisible(shown);
    amounts_[row]->setVisible(shown);
}

void TotalsView::showDocument(const Record& document, const Settings& settings)
{
    setRow(Subtotal, true, tr("Subtotal"), document.decimal("subAmount"));
    const QString discount = document.string("discountTitle");
    setRow(Discount, document.boolean("isDiscountEnabled"),
           discount.isEmpty() ? tr("Discount") : discount, -document.decimal("invoiceDiscountSum"));
    const QString shipping = document.string("shippingTitle");
    setRow(Shipping, document.boolean("isShippingEnabled"),
           shipping.isEmpty() ? tr("Shipping") : shipping, document.decimal("shippingAmount"));

    const QPalette::ColorRole color = taxAmountColor(settings) == LabelColor::Normal
                                          ? QPalette::WindowText
                                          : QPalette::PlaceholderText;
    for (int n = 0; n < 3; ++n) {
        const TaxKeys& tax = kTaxes[size_t(n)];
        const double amount = document.decimal(tax.amount);
        QString title = settings.string(*tax.titleSetting);
        if (title.isEmpty()) {
            title = tr("Tax %1").arg(n + 1);
        }
        const auto row = Row(Tax1 + n);
        setRow(row, settings.boolean(*tax.enabled) || amount != 0,
               tr("%1 (%2 %)")
                   .arg(title, decimalStringFromNumber(document.decimal(tax.percent) * 100)),
               amount);
        amounts_[row]->setForegroundRole(color);
    }
    setRow(Total, true, tr("Total"), document.decimal("amount"));
    currency_->setText(document.string("currency"));
}

QString TotalsView::amountText(Row row) const
{
    return amounts_[row]->text();
}

bool TotalsView::isRowShown(Row row) const
{
    return !amounts_[row]->isHidden();
}

}  // namespace tamo
