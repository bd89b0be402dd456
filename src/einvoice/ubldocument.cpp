#include "einvoice/ubldocument.h"

#include <QStringList>
#include <algorithm>
#include <array>

#include "einvoice/ublparts.h"
#include "model/record.h"
#include "settings/settings.h"

namespace tamo {

namespace {

Decimal decimal(const Record& record, const char* key)
{
    return Decimal::fromDouble(record.decimal(key));
}

// Every tax category names the client's tax scheme.
EinvoiceField schemeSource()
{
    return EinvoiceField::details("evoiceTaxScheme");
}

void writeTaxTotal(UblWriter& w, const Record& invoice)
{
    const QString scheme = invoice.string("evoiceTaxScheme");
    std::array<double, 3> tax{};
    std::transform(kTaxes.begin(), kTaxes.end(), tax.begin(),
                   [&](const TaxKeys& keys) { return invoice.decimal(keys.amount); });
    if (std::any_of(tax.begin(), tax.end(), [](double t) { return t > 0; })) {
        const Kept kept = std::any_of(tax.begin(), tax.end(), [](double t) { return t < 0; })
                              ? Kept::PositiveTaxesOnly
                              : Kept::StoredTaxes;
        w.open("cac:TaxTotal", {}, kept);
        // The total adds all three, a negative one included; only positive taxes get a subtotal.
        w.amount(
            "cbc:TaxAmount",
            Decimal::fromDouble(tax[0]) + Decimal::fromDouble(tax[1]) + Decimal::fromDouble(tax[2]),
            {}, kept);
        for (size_t n = 0; n < tax.size(); ++n) {
            if (!(tax[n] > 0)) {
                continue;
            }
            Decimal taxable = decimal(invoice, kTaxes[n].taxable);
            // The totals leave the discount in the taxable sums; only tax 1 gives it back here.
            const bool discounted = n == 0 && invoice.boolean("isDiscountEnabled");
            if (discounted) {
                taxable = taxable - decimal(invoice, "invoiceDiscountSum");
            }
            w.open("cac:TaxSubtotal", {},
                   discounted ? Kept::DiscountOnFirstTax : Kept::StoredTaxes);
            w.amount("cbc:TaxableAmount", taxable);
            w.amount("cbc:TaxAmount", Decimal::fromDouble(tax[n]));
            w.taxCategory("cac:TaxCategory", {.id = QStringLiteral("S"),
                                              .percent = percentText(invoice, kTaxes[n].percent),
                                              .scheme = scheme,
                                              .schemeSource = schemeSource()});
            w.close();
        }
    } else {
        // An untaxed invoice: one zero-rated subtotal over the lines, its zeros as a bare "0".
        const QString zero = QStringLiteral("0");
        w.open("cac:TaxTotal", {}, Kept::ZeroRatedWithoutLines);
        w.amount("cbc:TaxAmount", zero);
        w.open("cac:TaxSubtotal", {}, Kept::ZeroRatedWithoutLines);
        w.amount("cbc:TaxableAmount", decimal(invoice, "subAmount"));
        w.amount("cbc:TaxAmount", zero);
        w.taxCategory("cac:TaxCategory", {.id = QStringLiteral("Z"),
                                          .percent = zero,
                                          .scheme = scheme,
                                          .schemeSource = schemeSource()});
        w.close();
    }
    w.close();
}

void writeMonetaryTotal(UblWriter& w, const Record& invoice)
{
    const Decimal lines = decimal(invoice, "subAmount");
    const bool shipped = invoice.boolean("isShippingEnabled");
    const Decimal shipping = shipped ? decimal(invoice, "shippingAmount") : Decimal();
    const bool discounted = invoice.boolean("isDiscountEnabled");
    const Decimal discount = discounted ? decimal(invoice, "invoiceDiscountSum") : Decimal();
    const Decimal amount = decimal(invoice, "amount");
    const auto keptIf = [](bool condition, Kept kept) {
        return condition ? kept : Kept::StoredTotals;
    };
    w.open("cac:LegalMonetaryTotal");
    w.amount("cbc:LineExtensionAmount", lines + shipping, {},
             keptIf(discounted, Kept::LineTotalWithoutDiscount));
    // With a discount the shipping is counted a second time, as in every e-invoice Tamo has
    // written; recipients reconcile against these files, so the sum stays as it is.
    w.amount("cbc:TaxExclusiveAmount",
             discounted ? lines + shipping - discount + shipping : lines + shipping, {},
             keptIf(discounted && shipped, Kept::ShippingTwice));
    w.amount("cbc:TaxInclusiveAmount", amount + discount, {},
             keptIf(discounted, Kept::DiscountAddedBack));
    w.amount("cbc:PayableAmount", amount, {}, keptIf(discounted, Kept::DiscountAddedBack));
    w.close();
}

struct Line {
    QString quantity;
    QString amount;
    QString price;
    QString name;
    QStringList percents;  // one classified tax category per applied tax
    EinvoiceField source;
    EinvoiceField nameSource;
    Kept kept = Kept::None;
    Kept priceKept = Kept::None;
    Kept quantityKept = Kept::None;
};

void writeLine(UblWriter& w, int number, const Line& line, const QString& scheme)
{
    const QString id = QString::number(number);
    w.open("cac:InvoiceLine", line.source, line.kept);
    w.leaf("cbc:ID", id);
    w.leaf("cbc:InvoicedQuantity", line.quantity, {}, line.quantityKept)
        .attributes.emplace_back(QStringLiteral("unitCode"), QStringLiteral("C62"));
    w.amount("cbc:LineExtensionAmount", line.amount);
    w.inside("cac:OrderLineReference", "cbc:LineID", id);
    w.open("cac:Item");
    w.leaf("cbc:Name", line.name, line.nameSource);
    for (const QString& percent : line.percents) {
        w.taxCategory("cac:ClassifiedTaxCategory", {.id = QStringLiteral("S"),
                                                    .percent = percent,
                                                    .scheme = scheme,
                                                    .schemeSource = schemeSource()});
    }
    w.close();
    w.open("cac:Price");
    w.amount("cbc:PriceAmount", line.price, {}, line.priceKept);
    w.leaf("cbc:BaseQuantity", QStringLiteral("1"));
    w.close();
    w.close();
}

// The percents of the taxes whose flags are set, each rate taken from `rates`.
QStringList appliedPercents(const Record& flags, TaxFlag flag, const Record& rates)
{
    QStringList percents;
    for (const TaxKeys& keys : kTaxes) {
        if (flags.boolean(keys.*flag)) {
            percents << percentText(rates, keys.percent);
        }
    }
    return percents;
}

Kept categoriesKept(const QStringList& percents)
{
    return percents.isEmpty()    ? Kept::UntaxedLine
           : percents.size() > 1 ? Kept::SeveralTaxes
                                 : Kept::None;
}

void writeLines(UblWriter& w, const Record& invoice, const std::vector<Record*>& items)
{
    using F = EinvoiceField;
    const QString scheme = invoice.string("evoiceTaxScheme");
    const QString one = QStringLiteral("1");
    int number = 0;
    for (const Record* item : items) {
        ++number;
        const Decimal quantity = decimal(*item, "unitCount");
        const Decimal price = decimal(*item, "baseAmount");
        const QStringList percents = appliedPercents(*item, &TaxKeys::applied, *item);
        writeLine(
            w, number,
            {.quantity = quantity.amountText(),
             .amount = amountText(item->decimal("subAmount")),
             .price = price.amountText(),
             .name = item->string("title"),
             .percents = percents,
             .source = F::line(number, percents.isEmpty() ? "isTax1Applied" : "taxes"),
             .nameSource = F::line(number, "title"),
             .kept = categoriesKept(percents),
             .priceKept = price.sign() < 0 ? Kept::NegativePrice : Kept::None,
             .quantityKept = quantity.places() > 2 || price.places() > 2 ? Kept::TwoDecimalQuantity
                                                                         : Kept::None},
            scheme);
    }
    if (invoice.boolean("isShippingEnabled")) {
        const QString shipping = amountText(invoice.decimal("shippingAmount"));
        const QStringList percents = appliedPercents(invoice, &TaxKeys::shipping, invoice);
        writeLine(w, ++number,
                  {.quantity = one,
                   .amount = shipping,
                   .price = shipping,
                   .name = invoice.string("shippingTitle"),
                   .percents = percents,
                   .source = F::document("isShippingTax1Enabled"),
                   .nameSource = F::document("shippingTitle"),
                   .kept = categoriesKept(percents)},
                  scheme);
    }
    if (invoice.boolean("isDiscountEnabled")) {
        // The discount is a negative line, never a document-level allowance.
        const QString discount = (-decimal(invoice, "invoiceDiscountSum")).amountText();
        writeLine(w, ++number,
                  {.quantity = one,
                   .amount = discount,
                   .price = discount,
                   .name = invoice.string("discountTitle"),
                   .percents = {},
                   .source = F::document("isDiscountEnabled"),
                   .nameSource = F::document("discountTitle"),
                   .kept = Kept::DiscountLine,
                   .priceKept = Kept::DiscountLine},
                  scheme);
    }
}

}  // namespace

UblDocument evoiceDocument(const Record& invoice, const std::vector<Record*>& lines,
                           const Settings& settings, const QDateTime& now)
{
    UblWriter w(invoice.string("evoiceCurrency"));
    // The supplier's currency names the document; the amounts carry the invoice's own.
    writeHeader(w, invoice, settings, now,
                {.documentCurrency = settings.string(key::prefsSupplierCurrency),
                 .documentCurrencySource = EinvoiceField::setting(key::prefsSupplierCurrency.name),
                 .documentCurrencyKept = Kept::SupplierCurrency});
    writeTaxTotal(w, invoice);
    writeMonetaryTotal(w, invoice);
    writeLines(w, invoice, lines);
    return {w.take(), einvoiceComment()};
}

QString evoiceXMLString(const Record& invoice, const std::vector<Record*>& lines,
                        const Settings& settings, const QDateTime& now)
{
    return serialise(evoiceDocument(invoice, lines, settings, now));
}

}  // namespace tamo
