// The rules of the VAT categories: each category's rules are numbered alike (BR-S-01 … BR-S-10,
// BR-E-01 …), so one table describes them and one walk checks them all.

#include <algorithm>

#include "einvoice/ruleengine.h"

namespace tamo::rules {

namespace {

// Something taxed in one category: a line, a document-level allowance or a charge.
struct Taxed {
    enum Kind { Line = 0, Allowance = 1, Charge = 2 };
    Kind kind;
    const UblNode* node;
    QString code;
    std::optional<Decimal> percent;
    bool hasPercent;
    Decimal amount;  // negative for an allowance: it lowers the taxable amount

    const UblNode& blamed() const { return *node; }
};

struct Breakdown {
    const UblNode* node;
    const UblNode* category;
    QString code;
    std::optional<Decimal> percent;
    std::optional<Decimal> taxable;
    std::optional<Decimal> tax;
    bool reason;
};

enum class Identifiers { SellerTaxId, SellerAndBuyer, BothVat, SellerVat, NoVatIds };
enum class Rate { AboveZero, Zero, None };

struct Category {
    const char* code;
    const char* prefix;
    const char* name;
    bool atLeastOne;  // the standard rate may have a subtotal per rate
    Identifiers identifiers;
    Rate rate;
    bool reasonRequired;
    Finding::Severity breakdownSeverity;
};

constexpr Category kCategories[] = {
    {"S", "BR-S", QT_TRANSLATE_NOOP("Einvoice", "standard rate"), true, Identifiers::SellerTaxId,
     Rate::AboveZero, false, kFatal},
    {"Z", "BR-Z", QT_TRANSLATE_NOOP("Einvoice", "zero rated"), false, Identifiers::SellerTaxId,
     Rate::Zero, false, kFatal},
    {"E", "BR-E", QT_TRANSLATE_NOOP("Einvoice", "exempt from VAT"), false, Identifiers::SellerTaxId,
     Rate::Zero, true, kFatal},
    {"AE", "BR-AE", QT_TRANSLATE_NOOP("Einvoice", "reverse charge"), false,
     Identifiers::SellerAndBuyer, Rate::Zero, true, kFatal},
    {"K", "BR-IC", QT_TRANSLATE_NOOP("Einvoice", "intra-community supply"), false,
     Identifiers::BothVat, Rate::Zero, true, kWarning},
    {"G", "BR-G", QT_TRANSLATE_NOOP("Einvoice", "export outside the EU"), false,
     Identifiers::SellerVat, Rate::Zero, true, kFatal},
    {"O", "BR-O", QT_TRANSLATE_NOOP("Einvoice", "not subject to VAT"), false, Identifiers::NoVatIds,
     Rate::None, true, kFatal},
};

QByteArray ruleId(const Category& c, int number)
{
    return QByteArray(c.prefix) + '-' + QByteArray::number(number).rightJustified(2, '0');
}

std::vector<Taxed> taxedItems(const Parts& parts)
{
    std::vector<Taxed> items;
    const auto add = [&](Taxed::Kind kind, const UblNode* node, const UblNode* category,
                         const Decimal& amount) {
        if (!category || !isVatCategory(*category)) {
            return;
        }
        const UblNode* percent = category->child(u"cbc:Percent");
        items.push_back({kind, node, category->textAt(u"cbc:ID").trimmed(), number(percent),
                         percent != nullptr, amount});
    };
    for (const UblNode* line : parts.lines) {
        const Decimal amount = number(line->child(u"cbc:LineExtensionAmount")).value_or(Decimal());
        for (const UblNode* category : line->all(u"cac:Item/cac:ClassifiedTaxCategory")) {
            add(Taxed::Line, line, category, amount);
        }
    }
    for (const UblNode* entry : parts.allowances) {
        add(Taxed::Allowance, entry, entry->child(u"cac:TaxCategory"),
            -number(entry->child(u"cbc:Amount")).value_or(Decimal()));
    }
    for (const UblNode* entry : parts.charges) {
        add(Taxed::Charge, entry, entry->child(u"cac:TaxCategory"),
            number(entry->child(u"cbc:Amount")).value_or(Decimal()));
    }
    return items;
}

std::vector<Breakdown> breakdowns(const Parts& parts)
{
    std::vector<Breakdown> list;
    if (!parts.taxTotal) {
        return list;
    }
    for (const UblNode* subtotal : parts.taxTotal->all(u"cac:TaxSubtotal")) {
        const UblNode* category = subtotal->child(u"cac:TaxCategory");
        if (!category || !isVatCategory(*category)) {
            continue;
        }
        list.push_back({subtotal, category, category->textAt(u"cbc:ID").trimmed(),
                        number(category->child(u"cbc:Percent")),
                        number(subtotal->child(u"cbc:TaxableAmount")),
                        number(subtotal->child(u"cbc:TaxAmount")),
                        category->child(u"cbc:TaxExemptionReason") ||
                            category->child(u"cbc:TaxExemptionReasonCode")});
    }
    return list;
}

// The identifiers the parties carry, as the rules test them: an element that is there counts.
struct Identified {
    const UblNode* sellerTaxId = nullptr;  // under any scheme
    const UblNode* sellerVatId = nullptr;
    const UblNode* buyerVatId = nullptr;
    const UblNode* buyerLegalId = nullptr;

    explicit Identified(const Parts& parts)
    {
        for (const UblNode* party : {parts.seller, parts.buyer}) {
            for (const UblNode* scheme :
                 party ? party->all(u"cac:PartyTaxScheme") : std::vector<const UblNode*>{}) {
                const UblNode* id = scheme->child(u"cbc:CompanyID");
                if (party == parts.seller) {
                    sellerTaxId = sellerTaxId ? sellerTaxId : id;
                }
                if (id && isVatCategory(*scheme)) {
                    (party == parts.seller ? sellerVatId : buyerVatId) = id;
                }
            }
        }
        buyerLegalId =
            parts.buyer ? parts.buyer->at(u"cac:PartyLegalEntity/cbc:CompanyID") : nullptr;
    }

    // Null when the category's identifiers are there, else the sentence that says what is
    // missing.
    const char* missing(Identifiers needed) const
    {
        switch (needed) {
        case Identifiers::SellerTaxId:
            return sellerTaxId ? nullptr
                               : QT_TRANSLATE_NOOP("Einvoice",
                                                   "Items %1 need your VAT identifier or tax "
                                                   "number.");
        case Identifiers::SellerAndBuyer:
            return sellerTaxId && (buyerVatId || buyerLegalId)
                       ? nullptr
                       : QT_TRANSLATE_NOOP("Einvoice",
                                           "Items %1 need your VAT identifier or tax number and "
                                           "the client's VAT identifier.");
        case Identifiers::BothVat:
            return sellerVatId && buyerVatId
                       ? nullptr
                       : QT_TRANSLATE_NOOP("Einvoice",
                                           "Items %1 need your VAT identifier and the client's, "
                                           "both under the tax scheme VAT.");
        case Identifiers::SellerVat:
            return sellerVatId ? nullptr
                               : QT_TRANSLATE_NOOP("Einvoice",
                                                   "Items %1 need your VAT identifier under the "
                                                   "tax scheme VAT.");
        case Identifiers::NoVatIds:
            return !sellerVatId && !buyerVatId
                       ? nullptr
                       : QT_TRANSLATE_NOOP("Einvoice",
                                           "Items %1 may not name your VAT identifier or the "
                                           "client's: choose another exemption category, or "
                                           "use this one only when nothing on the document is "
                                           "taxed.");
        }
        return nullptr;
    }

    // Where to enter what is missing.
    EinvoiceField field(Identifiers needed) const
    {
        if (needed == Identifiers::NoVatIds) {
            return EinvoiceField::setting("prefsEvoiceExemptionCategory");
        }
        const UblNode* seller =
            needed == Identifiers::SellerTaxId || needed == Identifiers::SellerAndBuyer
                ? sellerTaxId
                : sellerVatId;
        if (!seller) {
            return EinvoiceField::setting("prefsSupplierID");
        }
        return buyerVatId ? buyerVatId->source : EinvoiceField::details("customerVATID");
    }
};

bool rateKept(Rate rate, const Taxed& item)
{
    switch (rate) {
    case Rate::AboveZero:
        return item.percent && item.percent->sign() > 0;
    case Rate::Zero:
        return item.percent && item.percent->isZero();
    case Rate::None:
        return !item.hasPercent;
    }
    return true;
}

QString rateMessage(Rate rate, const Taxed& item, const QString& category)
{
    const char* const what[] = {QT_TRANSLATE_NOOP("Einvoice", "Line %1"),
                                QT_TRANSLATE_NOOP("Einvoice", "The allowance"),
                                QT_TRANSLATE_NOOP("Einvoice", "The charge")};
    QString subject = tr(what[item.kind]);
    if (item.kind == Taxed::Line) {
        subject = subject.arg(item.node->textAt(u"cbc:ID"));
    }
    switch (rate) {
    case Rate::AboveZero:
        return tr("%1 is taxed at the %2 with a rate of 0: give the tax a rate, or leave the tax "
                  "off.")
            .arg(subject, category);
    case Rate::Zero:
        return tr("%1 is %2 and needs a rate of 0.").arg(subject, category);
    case Rate::None:
        return tr("%1 is %2 and may not give a rate.").arg(subject, category);
    }
    return {};
}

void checkBreakdownCount(const Category& c, const std::vector<Taxed>& items,
                         const std::vector<Breakdown>& subtotals, const Parts& parts,
                         Report& report)
{
    const QString name = tr(c.name);
    if (c.atLeastOne) {
        if (!items.empty() && subtotals.empty()) {
            report.add(ruleId(c, 1), c.breakdownSeverity,
                       tr("Items are taxed at the %1, but the tax breakdown has no subtotal for "
                          "it.")
                           .arg(name),
                       parts.taxTotal);
        } else if (items.empty() && !subtotals.empty()) {
            report.add(ruleId(c, 1), c.breakdownSeverity,
                       tr("The tax breakdown has a subtotal at the %1 that no line, allowance or "
                          "charge uses.")
                           .arg(name),
                       subtotals.front().node);
        }
    } else if ((!items.empty() || !subtotals.empty()) && subtotals.size() != 1) {
        report.add(ruleId(c, 1), c.breakdownSeverity,
                   tr("Items %1 need exactly one subtotal in the tax breakdown; it has %2.")
                       .arg(name)
                       .arg(subtotals.size()),
                   parts.taxTotal);
    }
}

void checkBreakdownSums(const Category& c, const std::vector<Taxed>& items,
                        const std::vector<Breakdown>& subtotals, Report& report)
{
    const QString name = tr(c.name);
    for (const Breakdown& b : subtotals) {
        Decimal expected;
        for (const Taxed& item : items) {
            // The standard rate sums per rate; the other categories have one subtotal.
            if (!c.atLeastOne || (b.percent && item.percent && *item.percent == *b.percent)) {
                expected = expected + item.amount;
            }
        }
        if (b.taxable && !(*b.taxable == expected)) {
            report.add(ruleId(c, 8), kFatal,
                       tr("The taxable amount of the subtotal “%1” (%2) is not the sum of its "
                          "lines, less allowances and plus charges (%3).")
                           .arg(name, shown(*b.taxable), shown(expected)),
                       b.node);
        }
        if (c.atLeastOne && b.tax && b.taxable && b.percent) {
            const Decimal tax = (*b.taxable * b.percent->shifted(-2)).roundedUp(2);
            if (!(*b.tax == tax)) {
                report.add(ruleId(c, 9), kFatal,
                           tr("The tax of the subtotal at %1 % (%2) is not its taxable amount "
                              "times the rate (%3).")
                               .arg(b.percent->text(), shown(*b.tax), shown(tax)),
                           b.node);
            }
        } else if (!c.atLeastOne && b.tax && !b.tax->isZero()) {
            report.add(ruleId(c, 9), kFatal,
                       tr("The tax of the subtotal “%1” must be 0.").arg(name), b.node);
        }
        if (b.reason != c.reasonRequired) {
            report.add(ruleId(c, 10), kFatal,
                       c.reasonRequired
                           ? tr("Items %1 need the reason of the exemption in the tax breakdown: "
                                "enter it on the e-invoice sheet (for example the law that "
                                "exempts them).")
                                 .arg(name)
                           : tr("The subtotal “%1” may not give an exemption reason.").arg(name),
                       b.category);
        }
    }
}

// Intra-community supplies need the date and the place of delivery.
void checkIntraCommunity(const Parts& parts, Report& report)
{
    if (blank(parts.root.at(u"cac:Delivery/cbc:ActualDeliveryDate")) &&
        !parts.root.child(u"cac:InvoicePeriod")) {
        report.add("BR-IC-11", kFatal, tr("Intra-community supplies need the delivery date."),
                   EinvoiceField::document("dispatched"));
    }
    const UblNode* country = parts.root.at(
        u"cac:Delivery/cac:DeliveryLocation/cac:Address/cac:Country/"
        u"cbc:IdentificationCode");
    if (blank(country)) {
        report.add("BR-IC-12", kFatal,
                   tr("Intra-community supplies need the country they are delivered to."),
                   country ? country->source : EinvoiceField::details("evoiceCountryCode"));
    }
}

// Nothing else may stand beside an invoice not subject to VAT.
void checkNotSubjectAlone(const std::vector<Taxed>& items, const std::vector<Breakdown>& all,
                          Report& report)
{
    const auto o =
        std::find_if(all.begin(), all.end(), [](const Breakdown& b) { return b.code == u"O"; });
    if (o == all.end()) {
        return;
    }
    const UblNode* blamed = o->category->child(u"cbc:ID");
    if (std::any_of(all.begin(), all.end(), [](const Breakdown& b) { return b.code != u"O"; })) {
        report.add("BR-O-11", kFatal,
                   tr("An invoice not subject to VAT may have no other subtotal in its tax "
                      "breakdown."),
                   blamed);
    }
    const char* const rules[] = {"BR-O-12", "BR-O-13", "BR-O-14"};
    const char* const what[] = {
        QT_TRANSLATE_NOOP("Einvoice", "An invoice not subject to VAT may have no taxed line."),
        QT_TRANSLATE_NOOP("Einvoice",
                          "An invoice not subject to VAT may have no allowance in another tax "
                          "category."),
        QT_TRANSLATE_NOOP("Einvoice",
                          "An invoice not subject to VAT may have no charge in another tax "
                          "category."),
    };
    for (int kind = 0; kind < 3; ++kind) {
        if (std::any_of(items.begin(), items.end(),
                        [&](const Taxed& t) { return t.kind == kind && t.code != u"O"; })) {
            report.add(rules[kind], kFatal, tr(what[kind]), blamed);
        }
    }
}

}  // namespace

void checkVatCategories(const Parts& parts, Report& report)
{
    const std::vector<Taxed> allItems = taxedItems(parts);
    const std::vector<Breakdown> allSubtotals = breakdowns(parts);
    const Identified ids(parts);
    for (const Category& c : kCategories) {
        const QLatin1StringView code(c.code);
        std::vector<Taxed> items;
        std::copy_if(allItems.begin(), allItems.end(), std::back_inserter(items),
                     [&](const Taxed& t) { return t.code == code; });
        std::vector<Breakdown> subtotals;
        std::copy_if(allSubtotals.begin(), allSubtotals.end(), std::back_inserter(subtotals),
                     [&](const Breakdown& b) { return b.code == code; });
        checkBreakdownCount(c, items, subtotals, parts, report);
        // BR-x-02 for lines, -03 for allowances, -04 for charges.
        if (const char* missing = ids.missing(c.identifiers)) {
            for (int kind = 0; kind < 3; ++kind) {
                if (std::any_of(items.begin(), items.end(),
                                [&](const Taxed& t) { return t.kind == kind; })) {
                    report.add(ruleId(c, 2 + kind), kFatal, tr(missing).arg(tr(c.name)),
                               ids.field(c.identifiers));
                }
            }
        }
        // BR-x-05 for lines, -06 for allowances, -07 for charges.
        for (const Taxed& item : items) {
            if (!rateKept(c.rate, item)) {
                report.add(ruleId(c, 5 + item.kind), kFatal, rateMessage(c.rate, item, tr(c.name)),
                           &item.blamed());
            }
        }
        checkBreakdownSums(c, items, subtotals, report);
        if (code == u"K" && (!items.empty() || !subtotals.empty())) {
            checkIntraCommunity(parts, report);
        }
    }
    checkNotSubjectAlone(allItems, allSubtotals, report);
}

}  // namespace tamo::rules
