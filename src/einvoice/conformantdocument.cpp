#include "einvoice/conformantdocument.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <cmath>

#include "calc/rounding.h"
#include "calc/totals.h"
#include "einvoice/ublparts.h"
#include "model/record.h"
#include "platform/translations.h"
#include "settings/settings.h"

namespace tamo {

namespace {

constexpr ExemptionCategory kExemptions[] = {
    {"E", QT_TRANSLATE_NOOP("Einvoice", "Exempt from VAT")},
    {"AE", QT_TRANSLATE_NOOP("Einvoice", "Reverse charge")},
    {"K", QT_TRANSLATE_NOOP("Einvoice", "Intra-community supply")},
    {"G", QT_TRANSLATE_NOOP("Einvoice", "Export outside the EU")},
    {"O", QT_TRANSLATE_NOOP("Einvoice", "Not subject to VAT")},
    {"Z", QT_TRANSLATE_NOOP("Einvoice", "Zero rated")},
};

Finding refusal(const QString& message, EinvoiceField field)
{
    return {
        QStringLiteral("TAMO-CONFORMANT"), Finding::Severity::Fatal,
        message + u' ' + tr("The conformant file cannot be written; the standard file still can."),
        field};
}

// A tax category with the amounts written in it.
struct Bucket {
    QString code;
    Decimal percent;  // for the standard rate
    Decimal lines;
    Decimal charges;
    Decimal allowances;
    Decimal base;  // what the invoice discount was taken from

    bool standard() const { return code == u"S"; }
    QString percentText() const { return percent.text(2); }
    Decimal taxable() const { return lines + charges - allowances; }
    Decimal tax() const
    {
        return standard() ? (taxable() * percent.shifted(-2)).roundedUp(2) : Decimal();
    }
};

struct WrittenLine {
    int number;
    QString name;
    Decimal quantity;
    Decimal price;
    Decimal amount;
    size_t bucket;
    const char* taxKey;
};

class ConformantWriter {
public:
    ConformantWriter(const Record& invoice, const Settings& settings, const EinvoiceOptions& o)
        : invoice_(invoice), settings_(settings), options_(o)
    {
        exemption_ = options_.exemptionCategory.trimmed().toUpper();
        if (exemption_.isEmpty()) {
            exemption_ = QStringLiteral("E");
        }
    }

    std::optional<Finding> refuse(const std::vector<Record*>& items) const;
    void collect(const std::vector<Record*>& items);
    UblDocument write(const QDateTime& now);

private:
    // The bucket of a tax `n` (0-based, or -1 for none) at the rate stored under `percentKey`.
    size_t bucketFor(int n, const Record& rates);
    void writeCategory(UblWriter& w, const char* element, const Bucket& b, bool breakdown) const;
    void writeAllowanceCharge(UblWriter& w, bool charge, const Decimal& amount, const Bucket& b);
    void splitDiscount(const Decimal& discount);
    QString title(const char* key, const SettingKey& fallback, const char* fallbackText) const;

    const Record& invoice_;
    const Settings& settings_;
    const EinvoiceOptions& options_;
    QString exemption_;
    std::vector<Bucket> buckets_;
    std::vector<WrittenLine> lines_;
    std::optional<std::pair<size_t, Decimal>> charge_;
    std::vector<std::pair<size_t, Decimal>> allowances_;
};

// The taxes whose `flag` is set on `record`, as 0-based numbers.
std::vector<int> appliedTaxes(const Record& record, TaxFlag flag)
{
    std::vector<int> taxes;
    for (int n = 0; n < 3; ++n) {
        if (record.boolean(kTaxes[size_t(n)].*flag)) {
            taxes.push_back(n);
        }
    }
    return taxes;
}

std::optional<Finding> ConformantWriter::refuse(const std::vector<Record*>& items) const
{
    if (std::none_of(
            std::begin(kExemptions), std::end(kExemptions),
            [&](const ExemptionCategory& c) { return exemption_ == QLatin1StringView(c.code); })) {
        return refusal(tr("“%1” is not a tax category for lines without taxes; choose one of E, "
                          "AE, K, G, O or Z.")
                           .arg(exemption_),
                       EinvoiceField::setting(key::prefsEvoiceExemptionCategory.name));
    }
    int number = 0;
    for (const Record* item : items) {
        ++number;
        const std::vector<int> taxes = appliedTaxes(*item, &TaxKeys::applied);
        if (taxes.size() > 1) {
            return refusal(tr("Line %1 has %2 taxes, and an e-invoice line carries one tax "
                              "category: split it into one line per tax.")
                               .arg(number)
                               .arg(taxes.size()),
                           EinvoiceField::line(number, "taxes"));
        }
        if (!taxes.empty() && item->decimal(kTaxes[size_t(taxes.front())].percent) < 0) {
            return refusal(tr("Line %1 has a negative tax rate.").arg(number),
                           EinvoiceField::line(number, kTaxes[size_t(taxes.front())].percent));
        }
        if ((item->boolean("isTax2Applied") && item->boolean("isTax2Compound")) ||
            (item->boolean("isTax3Applied") && item->boolean("isTax3Compound"))) {
            return refusal(tr("Line %1 has a compound tax, levied on another tax; the rules know "
                              "only taxes on the net amount.")
                               .arg(number),
                           EinvoiceField::line(number, "taxes"));
        }
    }
    if (invoice_.boolean("isShippingEnabled")) {
        const std::vector<int> taxes = appliedTaxes(invoice_, &TaxKeys::shipping);
        if (taxes.size() > 1) {
            return refusal(tr("The shipping has %1 taxes, and an e-invoice charge carries one tax "
                              "category.")
                               .arg(taxes.size()),
                           EinvoiceField::document("isShippingTax2Enabled"));
        }
    }
    if (callsForCompoundTaxes(settings_, invoice_)) {
        return refusal(tr("The shipping's tax is compound (Preferences → Taxes), levied on another "
                          "tax; the rules know only taxes on the net amount."),
                       EinvoiceField::setting(key::tax2IsCompound.name));
    }
    if (invoice_.boolean("isDiscountEnabled")) {
        if (!settings_.boolean(key::beforeTaxesBool)) {
            return refusal(tr("The discount is calculated after taxes; the rules take allowances "
                              "off the net amount."),
                           EinvoiceField::setting(key::beforeTaxesBool.name));
        }
        if (!std::isfinite(invoice_.decimal("invoiceDiscountSum"))) {
            return refusal(tr("The discount has no value: a fixed discount on lines that add up "
                              "to 0."),
                           EinvoiceField::document("discountAmount"));
        }
    }
    return std::nullopt;
}

size_t ConformantWriter::bucketFor(int n, const Record& rates)
{
    const double rate = n < 0 ? 0.0 : r4(rates.decimal(kTaxes[size_t(n)].percent));
    // A tax at 0 % is no tax: the line is untaxed.
    const QString code = rate > 0 ? QStringLiteral("S") : exemption_;
    const Decimal percent = rate > 0 ? Decimal::fromDouble(rate).shifted(2) : Decimal();
    for (size_t i = 0; i < buckets_.size(); ++i) {
        if (buckets_[i].code == code && buckets_[i].percent == percent) {
            return i;
        }
    }
    buckets_.push_back({code, percent, {}, {}, {}, {}});
    return buckets_.size() - 1;
}

void ConformantWriter::collect(const std::vector<Record*>& items)
{
    int number = 0;
    for (const Record* item : items) {
        ++number;
        const std::vector<int> taxes = appliedTaxes(*item, &TaxKeys::applied);
        Decimal quantity = Decimal::fromDouble(r3(item->decimal("unitCount")));
        Decimal price = Decimal::fromDouble(r3(item->decimal("baseAmount")));
        // A price may not be negative: a credit is a negative quantity.
        if (price.sign() < 0) {
            price = -price;
            quantity = -quantity;
        }
        const Decimal amount = (quantity * price).roundedUp(2);
        const size_t b = bucketFor(taxes.empty() ? -1 : taxes.front(), *item);
        buckets_[b].lines = buckets_[b].lines + amount;
        buckets_[b].base = buckets_[b].base + amount;
        lines_.push_back({number, item->string("title"), quantity, price, amount, b,
                          taxes.empty() ? "isTax1Applied" : "taxes"});
    }
    // The totals took the discount from the lines, and from the shipping when anything is taxed.
    const bool shippingDiscounted = invoice_.boolean("hasInvoiceTaxableAmounts");
    if (invoice_.boolean("isShippingEnabled")) {
        const Decimal shipping = Decimal::fromDouble(r2(invoice_.decimal("shippingAmount")));
        const std::vector<int> taxes = appliedTaxes(invoice_, &TaxKeys::shipping);
        if (!shipping.isZero()) {
            const size_t b = bucketFor(taxes.empty() ? -1 : taxes.front(), invoice_);
            buckets_[b].charges = buckets_[b].charges + shipping;
            if (shippingDiscounted) {
                buckets_[b].base = buckets_[b].base + shipping;
            }
            charge_ = {b, shipping};
        }
    }
    if (invoice_.boolean("isDiscountEnabled")) {
        splitDiscount(Decimal::fromDouble(invoice_.decimal("invoiceDiscountSum")).roundedUp(2));
    }
}

// Each category bears its share of the discount; the last takes what rounding leaves.
void ConformantWriter::splitDiscount(const Decimal& discount)
{
    if (discount.isZero() || buckets_.empty()) {
        return;
    }
    Decimal base;
    for (const Bucket& b : buckets_) {
        base = base + b.base;
    }
    Decimal given;
    for (size_t i = 0; i < buckets_.size(); ++i) {
        Decimal share = discount - given;
        if (i + 1 < buckets_.size()) {
            share = base.isZero()
                        ? Decimal()
                        : Decimal::fromDouble(discount.toDouble() * buckets_[i].base.toDouble() /
                                              base.toDouble())
                              .roundedUp(2);
        }
        if (share.isZero()) {
            continue;
        }
        given = given + share;
        buckets_[i].allowances = buckets_[i].allowances + share;
        allowances_.emplace_back(i, share);
    }
}

void ConformantWriter::writeCategory(UblWriter& w, const char* element, const Bucket& b,
                                     bool breakdown) const
{
    const bool exempt = !b.standard();
    const bool withReason = breakdown && exempt && b.code != u"Z";
    QString percent = b.percentText();
    // Outside the scope of VAT there is no rate, but the breakdown must name one.
    if (b.code == u"O" && !breakdown) {
        percent = QString();
    }
    w.taxCategory(
        element,
        {.id = b.code,
         .percent = percent,
         .scheme = QStringLiteral("VAT"),
         .exemptionReason = withReason ? options_.exemptionReason.trimmed() : QString(),
         .idSource = exempt ? EinvoiceField::setting(key::prefsEvoiceExemptionCategory.name)
                            : EinvoiceField{},
         .schemeSource = {},
         .reasonSource = withReason ? EinvoiceField::setting(key::prefsEvoiceExemptionReason.name)
                                    : EinvoiceField{}});
}

QString ConformantWriter::title(const char* key, const SettingKey& fallback,
                                const char* fallbackText) const
{
    QString text = invoice_.string(key).trimmed();
    if (text.isEmpty()) {
        text = settings_.string(fallback).trimmed();
    }
    return text.isEmpty() ? tr(fallbackText) : text;
}

void ConformantWriter::writeAllowanceCharge(UblWriter& w, bool charge, const Decimal& amount,
                                            const Bucket& b)
{
    w.open("cac:AllowanceCharge",
           EinvoiceField::document(charge ? "shippingAmount" : "discountAmount"));
    w.leaf("cbc:ChargeIndicator", charge ? QStringLiteral("true") : QStringLiteral("false"));
    w.leaf(
        "cbc:AllowanceChargeReason",
        charge
            ? title("shippingTitle", key::locShipping, QT_TRANSLATE_NOOP("Einvoice", "Shipping"))
            : title("discountTitle", key::locDiscount, QT_TRANSLATE_NOOP("Einvoice", "Discount")),
        EinvoiceField::document(charge ? "shippingTitle" : "discountTitle"));
    w.amount("cbc:Amount", amount);
    writeCategory(w, "cac:TaxCategory", b, false);
    w.close();
}

UblDocument ConformantWriter::write(const QDateTime& now)
{
    const QString currency = invoice_.string("evoiceCurrency");
    UblWriter w(currency);
    const bool onlyOutsideVat = std::all_of(buckets_.begin(), buckets_.end(),
                                            [](const Bucket& b) { return b.code == u"O"; });
    const bool intraCommunity = std::any_of(buckets_.begin(), buckets_.end(),
                                            [](const Bucket& b) { return b.code == u"K"; });
    writeHeader(w, invoice_, settings_, now,
                {.documentCurrency = currency,
                 .documentCurrencySource = EinvoiceField::details("evoiceCurrency"),
                 .documentCurrencyKept = Kept::None,
                 .vatIdentifiers = buckets_.empty() || !onlyOutsideVat,
                 .deliverToClient = intraCommunity});
    for (const auto& [b, amount] : allowances_) {
        writeAllowanceCharge(w, false, amount, buckets_[b]);
    }
    if (charge_) {
        writeAllowanceCharge(w, true, charge_->second, buckets_[charge_->first]);
    }

    Decimal lines, allowances, charges, tax;
    for (const Bucket& b : buckets_) {
        lines = lines + b.lines;
        allowances = allowances + b.allowances;
        charges = charges + b.charges;
        tax = tax + b.tax();
    }
    w.open("cac:TaxTotal");
    w.amount("cbc:TaxAmount", tax);
    for (const Bucket& b : buckets_) {
        w.open("cac:TaxSubtotal");
        w.amount("cbc:TaxableAmount", b.taxable());
        w.amount("cbc:TaxAmount", b.tax());
        writeCategory(w, "cac:TaxCategory", b, true);
        w.close();
    }
    w.close();

    const Decimal exclusive = lines - allowances + charges;
    w.open("cac:LegalMonetaryTotal");
    w.amount("cbc:LineExtensionAmount", lines);
    w.amount("cbc:TaxExclusiveAmount", exclusive);
    w.amount("cbc:TaxInclusiveAmount", exclusive + tax);
    if (!allowances_.empty()) {
        w.amount("cbc:AllowanceTotalAmount", allowances);
    }
    if (charge_) {
        w.amount("cbc:ChargeTotalAmount", charges);
    }
    w.amount("cbc:PayableAmount", exclusive + tax);
    w.close();

    for (const WrittenLine& line : lines_) {
        const QString id = QString::number(line.number);
        w.open("cac:InvoiceLine", EinvoiceField::line(line.number, line.taxKey));
        w.leaf("cbc:ID", id);
        w.leaf("cbc:InvoicedQuantity", line.quantity.text(2))
            .attributes.emplace_back(QStringLiteral("unitCode"), QStringLiteral("C62"));
        w.amount("cbc:LineExtensionAmount", line.amount);
        w.inside("cac:OrderLineReference", "cbc:LineID", id);
        w.open("cac:Item");
        w.leaf("cbc:Name", line.name, EinvoiceField::line(line.number, "title"));
        writeCategory(w, "cac:ClassifiedTaxCategory", buckets_[line.bucket], false);
        w.close();
        w.open("cac:Price", EinvoiceField::line(line.number, "baseAmount"));
        w.amount("cbc:PriceAmount", line.price.text(2));
        w.leaf("cbc:BaseQuantity", QStringLiteral("1"));
        w.close();
        w.close();
    }
    return {w.take(), einvoiceComment()};
}

}  // namespace

EinvoiceOptions einvoiceOptions(const Settings& settings)
{
    return {settings.boolean(key::prefsEvoiceConformantBool),
            settings.string(key::prefsEvoiceExemptionCategory),
            settings.string(key::prefsEvoiceExemptionReason)};
}

std::span<const ExemptionCategory> exemptionCategories()
{
    return kExemptions;
}

std::expected<UblDocument, Finding> conformantDocument(const Record& invoice,
                                                       const std::vector<Record*>& lines,
                                                       const Settings& settings,
                                                       const QDateTime& now,
                                                       const EinvoiceOptions& options)
{
    ConformantWriter writer(invoice, settings, options);
    if (std::optional<Finding> refused = writer.refuse(lines)) {
        return std::unexpected(*refused);
    }
    writer.collect(lines);
    return writer.write(now);
}

}  // namespace tamo
