#include "calc/totals.h"

#include <QLoggingCategory>
#include <algorithm>
#include <array>

#include "calc/rounding.h"
#include "model/record.h"
#include "model/taxkeys.h"

// The calculators name their steps at debug level (QT_LOGGING_RULES="tamo.calc.debug=true").
Q_LOGGING_CATEGORY(lcTotals, "tamo.calc", QtInfoMsg)

namespace tamo {

namespace {

enum class Calculator { WithoutTaxes, Standard, Compound };

using Taxes = std::array<double, 3>;

const std::vector<Record*>& linesOf(const Record& document)
{
    return document.toMany("items");
}

// Price and quantity are taken to three places before they are multiplied.
double lineNet(const Record& line)
{
    return r3(line.decimal("baseAmount")) * r3(line.decimal("unitCount"));
}

Calculator chooseCalculator(const Settings& settings, const Record& document)
{
    bool anyTax = false;
    bool compound = false;
    for (const Record* line : linesOf(document)) {
        anyTax = anyTax || line->boolean("isTax1Applied") || line->boolean("isTax2Applied") ||
                 line->boolean("isTax3Applied");
        compound = compound ||
                   (line->boolean("isTax2Applied") && line->boolean("isTax2Compound")) ||
                   (line->boolean("isTax3Applied") && line->boolean("isTax3Compound"));
    }
    if (document.boolean("isShippingEnabled")) {
        // Shipping tax 3 is deliberately decided by the tax 2 setting, as it always was.
        const bool tax2IsCompound = settings.boolean(key::tax2IsCompound);
        if (document.boolean("isShippingTax2Enabled")) {
            anyTax = true;
            compound = compound || tax2IsCompound;
        } else {
            anyTax = anyTax || document.boolean("isShippingTax1Enabled");
        }
        if (document.boolean("isShippingTax3Enabled")) {
            anyTax = true;
            compound = compound || tax2IsCompound;
        }
    }
    if (!anyTax) {
        return Calculator::WithoutTaxes;
    }
    return compound ? Calculator::Compound : Calculator::Standard;
}

// The fixed discount goes through a percentage of the base, so it carries that floating error and
// becomes not-a-number on an empty base. Stored documents hold exactly these values.
double fixedDiscountOf(double base, const Record& document)
{
    return base * (r2(document.decimal("discountAmount")) / base * 100) / 100;
}

bool percentDiscount(const Record& document)
{
    return document.integer("discountKind") != 0;
}

void withoutTaxes(Record& document)
{
    double subtotal = 0;
    for (Record* line : linesOf(document)) {
        const double net = lineNet(*line);
        line->setValue("subAmount", net);
        for (const TaxKeys& tax : kTaxes) {
            line->setValue(tax.amount, 0.0);
        }
        line->setValue("amount", r2(net));
        subtotal = r2(subtotal + net);  // re-rounded after every line
    }
    const double shipping =
        document.boolean("isShippingEnabled") ? r2(document.decimal("shippingAmount")) : 0.0;
    double discount = 0;
    if (document.boolean("isDiscountEnabled")) {
        // Levied on the lines only, never on shipping.
        discount = percentDiscount(document) ? subtotal * r4(document.decimal("discountPercent"))
                                             : fixedDiscountOf(subtotal, document);
    }
    document.setValue("taxExclusiveAmount", r2(subtotal + shipping - discount));
    document.setValue("amount", subtotal + shipping - discount);
    document.setValue("subAmount", subtotal);
    document.setValue("invoiceDiscountSum", discount);
}

void standard(const Settings& settings, Record& document)
{
    qCDebug(lcTotals) << "calculateInvoiceTaxesStandard";
    const bool before = settings.boolean(key::beforeTaxesBool);
    double subtotal = 0;
    Taxes taxable{};
    for (Record* line : linesOf(document)) {
        const double net = lineNet(*line);
        line->setValue("subAmount", net);
        subtotal = r2(subtotal + net);
        Taxes t{};
        for (size_t n = 0; n < kTaxes.size(); ++n) {
            if (line->boolean(kTaxes[n].applied)) {
                taxable[n] += net;
                t[n] = r2(r4(line->decimal(kTaxes[n].percent)) * net);
                line->setValue(kTaxes[n].amount, t[n]);
            } else if (before) {
                line->setValue(kTaxes[n].amount, 0.0);
            }
            // After taxes, an unapplied tax keeps whatever amount the line had.
        }
        line->setValue("amount", r2(net + t[0] + t[1] + t[2]));
    }
    document.setValue("subAmount", subtotal);
    if (document.boolean("isShippingEnabled")) {
        const double shipping = r2(document.decimal("shippingAmount"));
        for (size_t n = 0; n < kTaxes.size(); ++n) {
            if (document.boolean(kTaxes[n].shipping)) {
                taxable[n] += shipping;
            }
        }
        subtotal += shipping;
    }
    // The document's taxes come from the taxable sums, not from the lines' rounded taxes.
    Taxes taxes{};
    for (size_t n = 0; n < kTaxes.size(); ++n) {
        document.setValue(kTaxes[n].taxable, taxable[n]);
        taxes[n] = taxable[n] > 0 ? r4(document.decimal(kTaxes[n].percent)) * taxable[n] : 0.0;
        document.setValue(kTaxes[n].amount, taxes[n]);
    }

    const bool discounted = document.boolean("isDiscountEnabled");
    if (before) {
        qCDebug(lcTotals) << "discountBefore";
        if (discounted) {
            qCDebug(lcTotals) << "isDiscountEnabled";
            const double discount = percentDiscount(document)
                                        ? r4(document.decimal("discountPercent")) * subtotal
                                        : fixedDiscountOf(subtotal, document);
            subtotal -= discount;
            document.setValue("invoiceDiscountSum", discount);
        }
        // The taxes stay levied on the undiscounted taxable sums.
        document.setValue("taxExclusiveAmount", r2(subtotal));
        document.setValue("amount", r2(taxes[0] + subtotal + taxes[1] + taxes[2]));
        return;
    }
    qCDebug(lcTotals) << "calculateTaxesStandardAfter";
    document.setValue("taxExclusiveAmount", 0.0);
    if (discounted) {
        qCDebug(lcTotals) << "afterTaxesDiscount";
        const double gross = subtotal + taxes[0] + taxes[1] + taxes[2];
        document.setValue("invoiceDiscountSum",
                          percentDiscount(document)
                              ? gross * double(float(document.decimal("discountPercent")))
                              : document.decimal("discountAmount"));
    }
    // Discounting after taxes has always left the total at 0; documents rely on it as stored.
    document.setValue("amount", 0.0);
}

void compound(const Settings& settings, Record& document)
{
    double subtotal = 0;
    Taxes taxable{}, sums{};
    bool markedCompound = false;
    for (Record* line : linesOf(document)) {
        // Three places here, where the standard calculator takes four.
        Taxes r{};
        for (size_t n = 0; n < kTaxes.size(); ++n) {
            r[n] = r3(line->decimal(kTaxes[n].percent));
        }
        const double net = lineNet(*line);
        line->setValue("subAmount", net);
        subtotal = r2(subtotal + net);
        // The compound bases use the lower rates even where those taxes do not apply.
        const double withTax1 = r2(net + net * r[0]);
        Taxes t{};
        for (size_t n = 0; n < kTaxes.size(); ++n) {
            if (!line->boolean(kTaxes[n].applied)) {
                continue;
            }
            taxable[n] += net;
            if (n > 0 && line->boolean(kTaxes[n].compound)) {
                markedCompound = true;
                t[n] = n == 1 ? r2(r[1] * withTax1) : r2(r[2] * r2(withTax1 + withTax1 * r[1]));
            } else {
                t[n] = r2(r[n] * net);
            }
            line->setValue(kTaxes[n].amount, t[n]);
            sums[n] += t[n];
        }
        line->setValue("amount", r2(net + t[0] + t[1] + t[2]));
    }
    // Shipping is not part of these taxable amounts.
    for (size_t n = 0; n < kTaxes.size(); ++n) {
        document.setValue(kTaxes[n].taxable, taxable[n]);
    }

    const bool shipped = document.boolean("isShippingEnabled");
    const double shipping = shipped ? document.decimal("shippingAmount") : 0.0;
    if (shipped) {
        // Shipping taxes are worked out in single precision with the unrounded document rates.
        const float s = float(shipping);
        const double rho1 = document.decimal("tax1Percent");
        const double rho2 = document.decimal("tax2Percent");
        const double rho3 = document.decimal("tax3Percent");
        const float withTax1 = s + float(rho1 * s);
        if (document.boolean("isShippingTax1Enabled")) {
            sums[0] += float(rho1 * s);
        }
        if (document.boolean("isShippingTax2Enabled")) {
            const float base = settings.boolean(key::tax2IsCompound) ? withTax1 : s;
            sums[1] += float(rho2 * base);
        }
        if (document.boolean("isShippingTax3Enabled")) {
            const float base =
                settings.boolean(key::tax3IsCompound) ? withTax1 + float(rho2 * withTax1) : s;
            sums[2] += float(rho3 * base);
        }
    }
    document.setValue("taxExclusiveAmount", 0.0);
    double total = shipping + sums[2] + sums[1] + subtotal + sums[0];

    // Discounting before taxes has never reached compound documents.
    if (document.boolean("isDiscountEnabled") && !settings.boolean(key::beforeTaxesBool)) {
        const double discount = percentDiscount(document)
                                    ? total * double(float(document.decimal("discountPercent")))
                                    : document.decimal("discountAmount");
        total -= discount;
        // A document with a compound line keeps its previous discount sum.
        if (!markedCompound) {
            document.setValue("invoiceDiscountSum", discount);
        }
    }
    document.setValue("amount", total);
    document.setValue("subAmount", subtotal);
    for (size_t n = 0; n < kTaxes.size(); ++n) {
        document.setValue(kTaxes[n].amount, sums[n]);
    }
}

void calculateDocument(const Settings& settings, Record& document)
{
    qCDebug(lcTotals) << "calculateInvoice";
    switch (chooseCalculator(settings, document)) {
    case Calculator::WithoutTaxes:
        document.setValue("hasInvoiceTaxableAmounts", false);
        withoutTaxes(document);
        break;
    case Calculator::Compound:
        document.setValue("hasInvoiceTaxableAmounts", true);
        compound(settings, document);
        break;
    case Calculator::Standard:
        document.setValue("hasInvoiceTaxableAmounts", true);
        standard(settings, document);
        break;
    }
}

}  // namespace

void Totals::calculateInvoice(Record& document)
{
    calculateDocument(session_.settings(), document);
    calculateDatabase();
}

void Totals::calculateInvoiceWithoutTaxes(Record& document)
{
    withoutTaxes(document);
    calculateDatabase();
}

void Totals::calculateInvoiceTaxesStandard(Record& document)
{
    standard(session_.settings(), document);
    calculateDatabase();
}

void Totals::calculateInvoiceTaxesCompound(Record& document)
{
    compound(session_.settings(), document);
    calculateDatabase();
}

void Totals::calculateDocuments(const std::vector<Record*>& documents)
{
    for (Record* document : documents) {
        calculateDocument(session_.settings(), *document);
    }
    calculateDatabase();
}

void Totals::calculateDatabase()
{
    session_.setStatistics(
        collectStatistics(session_.documents().arranged(), session_.clock().now()));
}

void Totals::refreshStatistics()
{
    Context* context = session_.context();
    if (!context) {
        return;
    }
    const bool clean = !context->hasChanges();
    {
        WithoutUndo automatic(*context);
        UndoGroup announce(*context, {});  // what the pass changed is announced once
        calculateDatabase();
    }
    // What the pass changes on a store nobody has touched (an invoice fell due) is kept at once,
    // so that an untouched store has nothing unsaved. A pending edit is the edit's to save.
    if (clean && context->hasChanges()) {
        if (auto saved = context->save(); !saved) {
            session_.prompter().presentError(saved.error());
        }
    }
}

bool callsForCompoundTaxes(const Settings& settings, const Record& document)
{
    return chooseCalculator(settings, document) == Calculator::Compound;
}

bool affectsTotals(const Record& record, std::string_view key)
{
    static constexpr std::string_view kDocumentKeys[] = {
        "isShippingEnabled",     "shippingAmount",        "isShippingTax1Enabled",
        "isShippingTax2Enabled", "isShippingTax3Enabled", "isDiscountEnabled",
        "discountKind",          "discountPercent",       "discountAmount",
        "tax1Percent",           "tax2Percent",           "tax3Percent"};
    static constexpr std::string_view kLineKeys[] = {
        "baseAmount",     "unitCount",      "isTax1Applied", "isTax2Applied", "isTax3Applied",
        "isTax2Compound", "isTax3Compound", "tax1Percent",   "tax2Percent",   "tax3Percent"};
    const auto has = [key](const auto& keys) {
        return std::find(std::begin(keys), std::end(keys), key) != std::end(keys);
    };
    return record.is("Item") ? has(kLineKeys) : has(kDocumentKeys);
}

}  // namespace tamo
