#include "render/sampledocument.h"

#include <cmath>

#include "model/context.h"

namespace tamo {

namespace {

double round2(double value)
{
    return std::round(value * 100.0) / 100.0;
}

struct SampleLine {
    const char16_t* title;
    const char16_t* subtitle;
    const char16_t* unit;
    const char16_t* sku;
    double quantity;
    double price;
    bool reduced;  // the reduced rate (tax 2) instead of the standard one (tax 1)
};

const SampleLine kLines[] = {
    {u"Concept workshop", u"Half a day on site\nincluding preparation", u"h", u"CW-100", 4, 95,
     false},
    {u"Logo design", u"Three drafts, two revisions", u"flat", u"LD-201", 1, 850, false},
    {u"Brand manual", u"Printed, 48 pages", u"pcs", u"BM-310", 5, 24.9, true},
    {u"Business cards", u"Two-sided, 350 g/m²", u"box", u"BC-020", 3, 39, false},
    {u"Photo licence", u"Web and print, five years", u"pcs", u"PL-075", 6, 45, false},
    {u"Style guide eBook", u"PDF edition", u"pcs", u"SG-011", 2, 19.5, true},
};

constexpr double kStandardRate = 0.19;
constexpr double kReducedRate = 0.07;
constexpr double kDiscount = 0.05;
constexpr double kShipping = 12.5;

}  // namespace

Record* insertSampleDocument(Context& context, const QDateTime& date, int lines)
{
    Record* d = context.insert("Invoice");
    d->setValue("kind", 1);
    d->setValue("status", 0);
    d->setValue("number", u"RE-2026-0042");
    d->setValue("title", u"Invoice");
    d->setValue("subject", u"Corporate design for the spring collection");
    d->setValue("date", date);
    d->setValue("due", date.addDays(14));
    d->setValue("dispatched", date.addDays(-2));
    d->setValue("dispatchNumber", u"LS-2026-0042");
    d->setValue("address",
                u"Nordlicht Studio GmbH\nAttn. Mara Lindqvist\nHafenstraße 12\n20457 Hamburg");
    d->setValue("clientNumber", u"K-1017");
    d->setValue("customerName", u"Nordlicht Studio GmbH");
    d->setValue("customerVATID", u"DE 123 456 789");
    d->setValue("currency", u"EUR");
    d->setValue("conditions", u"Payable within 14 days without deduction.");
    d->setValue("misc1", u"Thank you for the pleasant cooperation.");
    d->setValue(
        "footer",
        u"Example Design Studio · IBAN DE02 1203 0000 0000 2020 51 · VAT ID DE 987 654 321");

    double subtotal = 0;
    double standardNet = 0;
    double reducedNet = 0;
    const int count = std::max(lines, 0);
    for (int i = 0; i < count; ++i) {
        const SampleLine& l = kLines[size_t(i) % std::size(kLines)];
        const double net = round2(l.quantity * l.price);
        const double tax = round2(net * (l.reduced ? kReducedRate : kStandardRate));
        Record* item = context.insert("Item");
        item->setValue("title", QString::fromUtf16(l.title));
        item->setValue("subtitle", QString::fromUtf16(l.subtitle));
        item->setValue("unit", QString::fromUtf16(l.unit));
        item->setValue("sku", QString::fromUtf16(l.sku));
        item->setValue("unitCount", l.quantity);
        item->setValue("baseAmount", l.price);
        item->setValue("subAmount", net);
        item->setValue("amount", net + tax);
        item->setValue(l.reduced ? "isTax2Applied" : "isTax1Applied", true);
        item->setValue(l.reduced ? "tax2Percent" : "tax1Percent",
                       l.reduced ? kReducedRate : kStandardRate);
        item->setValue(l.reduced ? "tax2Amount" : "tax1Amount", tax);
        item->setValue(l.reduced ? "tax2Title" : "tax1Title", l.reduced ? u"VAT reduced" : u"VAT");
        item->setToOne("invoice", d);
        subtotal += net;
        (l.reduced ? reducedNet : standardNet) += net;
    }
    const double discount = round2(subtotal * kDiscount);
    const double tax1 = round2((standardNet * (1 - kDiscount) + kShipping) * kStandardRate);
    const double tax2 = round2(reducedNet * (1 - kDiscount) * kReducedRate);
    d->setValue("subAmount", round2(subtotal));
    d->setValue("isDiscountEnabled", true);
    d->setValue("discountKind", 1);
    d->setValue("discountPercent", kDiscount);
    d->setValue("discountAmount", discount);
    d->setValue("discountTitle", u"Discount");
    d->setValue("isShippingEnabled", true);
    d->setValue("shippingAmount", kShipping);
    d->setValue("shippingTitle", u"Shipping");
    d->setValue("hasShippingSubtitle", true);
    d->setValue("shippingSubtitle", u"Parcel, insured");
    d->setValue("isShippingTax1Enabled", true);
    d->setValue("tax1Percent", kStandardRate);
    d->setValue("tax2Percent", kReducedRate);
    d->setValue("tax1Amount", tax1);
    d->setValue("tax2Amount", tax2);
    d->setValue("amount", round2(subtotal - discount + kShipping + tax1 + tax2));
    d->setValue("paidAmount", 0.0);
    return d;
}

void applySampleSettings(Settings& s)
{
    const std::pair<const SettingKey*, const char16_t*> texts[] = {
        {&key::prefsName, u"Example Design Studio"},
        {&key::prefsSlogan, u"Brands with character"},
        {&key::prefsContact, u"Lindenallee 4 · 10115 Berlin\n+49 30 1234567 · hello@example.com"},
        {&key::prefsLetterbox, u"Example Design Studio · Lindenallee 4 · 10115 Berlin"},
        {&key::prefsDatePattern, u"%DAY%.%MONTHSHORT%.%YEARLONG%"},
        {&key::tax1Title, u"VAT"},
        {&key::tax2Title, u"VAT reduced"},
        {&key::tax3Title, u"Tax 3"},
        {&key::locDate, u"Date"},
        {&key::locDue, u"Due"},
        {&key::locNumber, u"Number"},
        {&key::locClientNumber, u"Client no."},
        {&key::locDispatched, u"Delivered"},
        {&key::locSubtotal, u"Subtotal"},
        {&key::locTotal, u"Total"},
        {&key::locInvoice, u"Invoice"},
        {&key::locQuote, u"Quote"},
        {&key::locExpiration, u"Valid until"},
        {&key::locQuoteNumber, u"Quote no."},
        {&key::locReminder, u"Reminder"},
        {&key::locSlip, u"Delivery slip"},
        {&key::locOverdue, u"Overdue since"},
        {&key::locInvoiceNumber, u"Invoice no."},
        {&key::locTaxes, u"Taxes"},
        {&key::locNo, u"No."},
        {&key::locUnit, u"Unit"},
        {&key::locUnitPrice, u"Unit price"},
        {&key::locNet, u"Net"},
        {&key::locSKUNumber, u"Art. no."},
        {&key::locDescription, u"Description"},
        {&key::locQuantity, u"Qty"},
        {&key::locDiscount, u"Discount"},
        {&key::locShipping, u"Shipping"},
    };
    for (const auto& [k, text] : texts) {
        if (!s.contains(*k)) {
            s.set(*k, QString::fromUtf16(text));
        }
    }
    for (const SettingKey* k : {&key::tax1Enabled, &key::tax2Enabled, &key::tempUseSKU,
                                &key::showItemSubAmount, &key::showSingleTaxAmounts}) {
        if (!s.contains(*k)) {
            s.set(*k, true);
        }
    }
}

}  // namespace tamo
