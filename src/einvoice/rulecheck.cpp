#include "einvoice/rulecheck.h"

#include <QDate>
#include <algorithm>
#include <span>

#include "einvoice/codelists.h"
#include "einvoice/ruleengine.h"

namespace tamo {

namespace rules {

void Report::add(const QByteArray& rule, Finding::Severity severity, QString message,
                 const UblNode* node)
{
    EinvoiceField field = node ? node->source : EinvoiceField{};
    if (node && node->kept != Kept::None) {
        message += u' ' + keptExplanation(node->kept);
        if (node->kept != Kept::SeveralTaxes) {
            field = conformantField();
        }
    }
    add(rule, severity, std::move(message), field);
}

void Report::add(const QByteArray& rule, Finding::Severity severity, QString message,
                 EinvoiceField field)
{
    Finding finding{QString::fromLatin1(rule), severity, std::move(message), field};
    if (std::find(findings_.begin(), findings_.end(), finding) == findings_.end()) {
        findings_.push_back(std::move(finding));
    }
}

bool Report::names(const EinvoiceField& field) const
{
    return !field.isNone() && std::any_of(findings_.begin(), findings_.end(),
                                          [&](const Finding& f) { return f.field == field; });
}

Parts::Parts(const UblNode& r)
    : root(r),
      seller(r.at(u"cac:AccountingSupplierParty/cac:Party")),
      buyer(r.at(u"cac:AccountingCustomerParty/cac:Party")),
      taxTotal(r.child(u"cac:TaxTotal")),
      totals(r.child(u"cac:LegalMonetaryTotal")),
      lines(r.all(u"cac:InvoiceLine"))
{
    for (const UblNode* charge : r.all(u"cac:AllowanceCharge")) {
        const bool isCharge = charge->textAt(u"cbc:ChargeIndicator").trimmed() == u"true";
        (isCharge ? charges : allowances).push_back(charge);
    }
}

bool isVatCategory(const UblNode& category)
{
    return category.textAt(u"cac:TaxScheme/cbc:ID")
               .trimmed()
               .compare(u"VAT", Qt::CaseInsensitive) == 0;
}

}  // namespace rules

namespace {

using namespace rules;

QString localName(const UblNode& node)
{
    return node.name.section(u':', -1);
}

bool isNumeric(const UblNode& node)
{
    return node.hasAttribute(u"currencyID") || node.name == u"cbc:InvoicedQuantity" ||
           node.name == u"cbc:Percent" || node.name == u"cbc:BaseQuantity";
}

// The values the UBL schema types: dates and numbers.
void checkTypes(const UblNode& node, Report& report)
{
    if (!node.children.empty()) {
        for (const UblNode& child : node.children) {
            checkTypes(child, report);
        }
        return;
    }
    if (node.name.endsWith(u"Date") &&
        !QDate::fromString(node.text, QStringLiteral("yyyy-MM-dd")).isValid()) {
        report.add("SCHEMA", kFatal,
                   node.text.isEmpty()
                       ? tr("The e-invoice needs a date in %1, and the UBL schema rejects an empty "
                            "one.")
                             .arg(localName(node))
                       : tr("“%1” in %2 is not a date the UBL schema accepts.")
                             .arg(node.text, localName(node)),
                   &node);
    } else if (isNumeric(node) && !Decimal::fromText(node.text)) {
        if (node.text == u"NaN") {
            report.add("SCHEMA", kFatal,
                       tr("%1 is not a number: a fixed discount on a document whose lines add up "
                          "to 0 makes the totals not-a-number. Remove the discount or add lines.")
                           .arg(localName(node)),
                       EinvoiceField::document("discountAmount"));
        } else {
            report.add("SCHEMA", kFatal,
                       tr("“%1” in %2 is not a number the UBL schema accepts.")
                           .arg(node.text, localName(node)),
                       &node);
        }
    }
}

void checkEmptyElements(const UblNode& node, Report& report)
{
    for (const UblNode& child : node.children) {
        checkEmptyElements(child, report);
    }
    // An empty value another finding already asks for needs no second word.
    if (node.children.empty() && blank(&node) && !report.names(node.source)) {
        report.add("PEPPOL-EN16931-R008", kFatal,
                   tr("The e-invoice would contain an empty element (%1); empty elements are not "
                      "allowed. Fill in the value it comes from.")
                       .arg(localName(node)),
                   &node);
    }
}

// What the rules written as "(element) != ''" test: present and not empty, spaces allowed.
bool missing(const UblNode* node)
{
    return !node || node->text.isEmpty();
}

void checkDocument(const Parts& parts, Report& report)
{
    const UblNode& root = parts.root;
    if (missing(root.child(u"cbc:ID"))) {
        report.add("BR-02", kFatal, tr("The document has no number."), root.child(u"cbc:ID"));
    }
    if (missing(root.child(u"cbc:IssueDate"))) {
        report.add("BR-03", kFatal, tr("The document has no date."), root.child(u"cbc:IssueDate"));
    }
    const UblNode* currency = root.child(u"cbc:DocumentCurrencyCode");
    if (missing(currency)) {
        report.add("BR-05", kFatal, tr("The e-invoice names no currency."), currency);
    } else if (!isCurrencyCode(currency->text.trimmed())) {
        report.add("BR-CL-04", kFatal,
                   tr("“%1” is not an ISO 4217 currency code such as EUR.").arg(currency->text),
                   currency);
    }
    if (parts.lines.empty()) {
        report.add("BR-16", kFatal, tr("The e-invoice has no line."), EinvoiceField{});
    }
    if (blank(root.child(u"cbc:BuyerReference"))) {
        report.add("BR-DE-15", kFatal,
                   tr("The e-invoice needs a buyer reference, which Tamo takes from the "
                      "document's title: enter one (for a public client, the routing ID it gave "
                      "you, its Leitweg-ID)."),
                   root.child(u"cbc:BuyerReference"));
    }
}

// Every amount carries the currency of the e-invoice details; one finding per wrong code.
void checkAmountCurrencies(const UblNode& node, Report& report)
{
    if (node.hasAttribute(u"currencyID") && !isCurrencyCode(node.attribute(u"currencyID"))) {
        report.add("BR-CL-03", kFatal,
                   tr("The amounts carry the currency “%1”, which is not an ISO 4217 code such "
                      "as EUR.")
                       .arg(node.attribute(u"currencyID")),
                   EinvoiceField::details("evoiceCurrency"));
    }
    for (const UblNode& child : node.children) {
        checkAmountCurrencies(child, report);
    }
}

bool plausibleMailAddress(const QString& text)
{
    const QString mail = text.simplified();
    const qsizetype at = mail.indexOf(u'@');
    if (at <= 0 || mail.lastIndexOf(u'@') != at) {
        return false;
    }
    const auto ascii = [](QChar c) { return c.unicode() < 128 && c.isLetterOrNumber(); };
    const QString localSpecials = QStringLiteral("!#$%&\"*+/=?^_`{|}~-");
    for (const QStringView atom : QStringView(mail).left(at).split(u'.')) {
        if (atom.isEmpty() || !std::all_of(atom.begin(), atom.end(), [&](QChar c) {
                return ascii(c) || localSpecials.contains(c);
            })) {
            return false;
        }
    }
    const QList<QStringView> labels = QStringView(mail).mid(at + 1).split(u'.');
    return labels.size() >= 2 && std::all_of(labels.begin(), labels.end(), [&](QStringView l) {
               return !l.isEmpty() && ascii(l.front()) && ascii(l.back()) &&
                      std::all_of(l.begin(), l.end(),
                                  [&](QChar c) { return ascii(c) || c == u'-'; });
           });
}

// A value a party or address must hold. Rules stated with normalize-space take spaces for
// empty; the others only the empty text.
struct Required {
    const char* rule;
    const char* path;
    bool spacesAreEmpty;
    const char* message;
};

constexpr Required kSellerValues[] = {
    {"BR-06", "cac:PartyLegalEntity/cbc:RegistrationName", false,
     QT_TRANSLATE_NOOP("Einvoice", "Your company's legal name is missing.")},
    {"BR-09", "cac:PostalAddress/cac:Country/cbc:IdentificationCode", false,
     QT_TRANSLATE_NOOP("Einvoice", "Your company's country code is missing.")},
    {"BR-DE-3", "cac:PostalAddress/cbc:CityName", true,
     QT_TRANSLATE_NOOP("Einvoice", "Your company's city is missing.")},
    {"BR-DE-4", "cac:PostalAddress/cbc:PostalZone", true,
     QT_TRANSLATE_NOOP("Einvoice", "Your company's postal code is missing.")},
    {"BR-DE-5", "cac:Contact/cbc:Name", true,
     QT_TRANSLATE_NOOP("Einvoice", "Your company's contact person is missing.")},
    {"BR-DE-6", "cac:Contact/cbc:Telephone", true,
     QT_TRANSLATE_NOOP("Einvoice", "Your company's phone number is missing.")},
    {"BR-DE-7", "cac:Contact/cbc:ElectronicMail", true,
     QT_TRANSLATE_NOOP("Einvoice", "Your company's e-mail address is missing.")},
};

constexpr Required kBuyerValues[] = {
    {"BR-07", "cac:PartyLegalEntity/cbc:RegistrationName", false,
     QT_TRANSLATE_NOOP("Einvoice", "The client's legal name is missing.")},
    {"BR-11", "cac:PostalAddress/cac:Country/cbc:IdentificationCode", false,
     QT_TRANSLATE_NOOP("Einvoice", "The client's country code is missing.")},
    {"BR-DE-8", "cac:PostalAddress/cbc:CityName", true,
     QT_TRANSLATE_NOOP("Einvoice", "The client's city is missing.")},
    {"BR-DE-9", "cac:PostalAddress/cbc:PostalZone", true,
     QT_TRANSLATE_NOOP("Einvoice", "The client's postal code is missing.")},
};

constexpr Required kDeliveryValues[] = {
    {"BR-DE-10", "cbc:CityName", true,
     QT_TRANSLATE_NOOP("Einvoice", "The place of delivery has no city.")},
    {"BR-DE-11", "cbc:PostalZone", true,
     QT_TRANSLATE_NOOP("Einvoice", "The place of delivery has no postal code.")},
};

void checkRequired(const UblNode& owner, std::span<const Required> values, Report& report)
{
    for (const Required& v : values) {
        const UblNode* node = owner.at(QString::fromLatin1(v.path));
        if (v.spacesAreEmpty ? blank(node) : missing(node)) {
            report.add(v.rule, kFatal, tr(v.message), node);
        }
    }
}

void checkSellerContact(const UblNode& seller, Report& report)
{
    const UblNode* contact = seller.child(u"cac:Contact");
    if (!contact) {
        return;
    }
    const UblNode* phone = contact->child(u"cbc:Telephone");
    const QString number = phone ? phone->text : QString();
    if (std::count_if(number.begin(), number.end(), [](QChar c) { return c.isDigit(); }) < 3) {
        report.add("BR-DE-27", kWarning,
                   tr("Your phone number should contain at least three digits."), phone);
    }
    const UblNode* mail = contact->child(u"cbc:ElectronicMail");
    if (!plausibleMailAddress(mail ? mail->text : QString())) {
        report.add("BR-DE-28", kWarning,
                   tr("Your e-mail address “%1” should be one address such as "
                      "name@example.com.")
                       .arg(mail ? mail->text : QString()),
                   mail);
    }
}

void checkCodes(const Parts& parts, Report& report)
{
    const std::pair<const UblNode*, QStringView> addresses[] = {
        {parts.seller, u"cac:PostalAddress"},
        {parts.buyer, u"cac:PostalAddress"},
        {&parts.root, u"cac:Delivery/cac:DeliveryLocation/cac:Address"},
    };
    for (const auto& [owner, path] : addresses) {
        const UblNode* address = owner ? owner->at(path) : nullptr;
        const UblNode* code =
            address ? address->at(u"cac:Country/cbc:IdentificationCode") : nullptr;
        if (code && !code->text.isEmpty() && !isCountryCode(code->text.trimmed())) {
            report.add("BR-CL-14", kFatal,
                       tr("“%1” is not an ISO 3166 country code such as DE.").arg(code->text),
                       code);
        }
    }
    for (const UblNode* party : {parts.seller, parts.buyer}) {
        if (!party) {
            continue;
        }
        for (const UblNode* scheme : party->all(u"cac:PartyTaxScheme")) {
            const UblNode* id = scheme->child(u"cbc:CompanyID");
            if (isVatCategory(*scheme) && id && !id->text.isEmpty() &&
                !isVatPrefix(id->text.left(2))) {
                report.add("BR-CO-09", kFatal,
                           tr("The VAT identifier “%1” does not start with a country code such "
                              "as DE.")
                               .arg(id->text),
                           id);
            }
        }
    }
}

void checkDelivery(const UblNode& root, Report& report)
{
    const UblNode* address = root.at(u"cac:Delivery/cac:DeliveryLocation/cac:Address");
    if (!address) {
        return;
    }
    if (!address->at(u"cac:Country/cbc:IdentificationCode")) {
        report.add("BR-57", kFatal, tr("The place of delivery has no country code."), address);
    }
    checkRequired(*address, kDeliveryValues, report);
}

void checkSellerTaxNumber(const Parts& parts, Report& report)
{
    static const QStringList kTaxedCodes{u"S"_qs, u"Z"_qs, u"E"_qs, u"AE"_qs,
                                         u"K"_qs, u"G"_qs, u"L"_qs, u"M"_qs};
    bool taxed = false;
    for (const UblNode* line : parts.lines) {
        for (const UblNode* category : line->all(u"cac:Item/cac:ClassifiedTaxCategory")) {
            taxed = taxed || kTaxedCodes.contains(category->textAt(u"cbc:ID"));
        }
    }
    for (const auto* list : {&parts.allowances, &parts.charges}) {
        for (const UblNode* entry : *list) {
            const UblNode* category = entry->child(u"cac:TaxCategory");
            taxed = taxed || (category && (list == &parts.charges || isVatCategory(*category)) &&
                              kTaxedCodes.contains(category->textAt(u"cbc:ID")));
        }
    }
    if (!taxed || !parts.seller) {
        return;
    }
    const auto schemes = parts.seller->all(u"cac:PartyTaxScheme");
    if (std::all_of(schemes.begin(), schemes.end(),
                    [](const UblNode* s) { return blank(s->child(u"cbc:CompanyID")); })) {
        const UblNode* id = parts.seller->at(u"cac:PartyTaxScheme/cbc:CompanyID");
        const QString text =
            tr("Taxed and tax-exempt items need your VAT identifier or tax "
               "number.");
        if (id) {
            report.add("BR-DE-16", kFatal, text, id);
        } else {
            report.add("BR-DE-16", kFatal, text, EinvoiceField::setting("prefsSupplierID"));
        }
    }
}

void checkLine(const UblNode& line, Report& report)
{
    const QString id = line.textAt(u"cbc:ID");
    if (missing(line.at(u"cac:Item/cbc:Name"))) {
        report.add("BR-25", kFatal, tr("Line %1 has no description.").arg(id),
                   line.at(u"cac:Item/cbc:Name"));
    }
    const UblNode* priceNode = line.at(u"cac:Price/cbc:PriceAmount");
    const std::optional<Decimal> price = number(priceNode);
    if (price && price->sign() < 0) {
        report.add(
            "BR-27", kFatal,
            tr("The price of line %1 is negative, and an e-invoice price may not be.").arg(id),
            priceNode);
    }
    const auto categories = line.all(u"cac:Item/cac:ClassifiedTaxCategory");
    if (std::none_of(categories.begin(), categories.end(),
                     [](const UblNode* c) { return isVatCategory(*c) && c->child(u"cbc:ID"); })) {
        if (categories.empty()) {
            report.add("BR-CO-04", kFatal, tr("Line %1 has no tax category.").arg(id), &line);
        } else {
            const UblNode* scheme = categories.front()->at(u"cac:TaxScheme/cbc:ID");
            report.add("BR-CO-04", kFatal,
                       tr("The tax categories name the tax scheme “%1”, and the rules count only "
                          "those of the scheme VAT: enter VAT as the tax scheme.")
                           .arg(scheme ? scheme->text : QString()),
                       scheme);
        }
    }
    if (categories.size() != 1) {
        report.add("UBL-SR-48", kFatal,
                   tr("Line %1 must have exactly one tax category; it has %2.")
                       .arg(id)
                       .arg(categories.size()),
                   &line);
    }
    const UblNode* quantityNode = line.child(u"cbc:InvoicedQuantity");
    const std::optional<Decimal> quantity = number(quantityNode);
    const std::optional<Decimal> amount = number(line.child(u"cbc:LineExtensionAmount"));
    std::optional<Decimal> base = number(line.at(u"cac:Price/cbc:BaseQuantity"));
    if (quantity && price && amount &&
        (!base || base->isZero() || *base == Decimal::fromDouble(1))) {
        const Decimal expected = *quantity * *price;
        if (((*amount - expected).abs() - Decimal::fromDouble(0.02)).sign() > 0) {
            report.add(
                "PEPPOL-EN16931-R120", kFatal,
                tr("The amount of line %1 (%2) is not its quantity times its price (%3 × "
                   "%4 = %5).")
                    .arg(id, shown(*amount), quantity->text(), price->text(), expected.text()),
                quantityNode);
        }
    }
}

Decimal sumOf(const std::vector<const UblNode*>& nodes, QStringView path)
{
    Decimal sum;
    for (const UblNode* node : nodes) {
        sum = sum + number(node->at(path)).value_or(Decimal());
    }
    return sum;
}

void checkTaxTotal(const Parts& parts, Report& report)
{
    if (!parts.taxTotal) {
        return;
    }
    const auto subtotals = parts.taxTotal->all(u"cac:TaxSubtotal");
    const UblNode* totalNode = parts.taxTotal->child(u"cbc:TaxAmount");
    const std::optional<Decimal> total = number(totalNode);
    const Decimal sum = sumOf(subtotals, u"cbc:TaxAmount").roundedUp(2);
    if (total && !subtotals.empty() && !(*total == sum)) {
        report.add("BR-CO-14", kFatal,
                   tr("The tax total (%1) is not the sum of the tax subtotals (%2).")
                       .arg(shown(*total), shown(sum)),
                   totalNode);
    }
    for (const UblNode* subtotal : subtotals) {
        const std::optional<Decimal> taxable = number(subtotal->child(u"cbc:TaxableAmount"));
        const std::optional<Decimal> tax = number(subtotal->child(u"cbc:TaxAmount"));
        const std::optional<Decimal> percent = number(subtotal->at(u"cac:TaxCategory/cbc:Percent"));
        if (!taxable || !tax || !percent || subtotal->textAt(u"cac:TaxCategory/cbc:ID") == u"O") {
            continue;
        }
        const Decimal expected = (*taxable * percent->shifted(-2)).roundedUp(2);
        if (!(*tax == expected)) {
            report.add("BR-CO-17", kFatal,
                       tr("The tax at %1 % (%2) is not the taxable amount %3 times the rate, "
                          "rounded to the cent (%4).")
                           .arg(percent->text(), shown(*tax), shown(*taxable), shown(expected)),
                       subtotal);
        }
    }
}

void checkMonetaryTotals(const Parts& parts, Report& report)
{
    if (!parts.totals) {
        return;
    }
    const UblNode& t = *parts.totals;
    const auto value = [&](QStringView name) { return number(t.child(name)); };
    const std::optional<Decimal> lines = value(u"cbc:LineExtensionAmount");
    const Decimal lineSum = sumOf(parts.lines, u"cbc:LineExtensionAmount").roundedUp(2);
    if (lines && !(*lines == lineSum)) {
        report.add("BR-CO-10", kFatal,
                   tr("The sum of the lines (%1) is not what the line amounts add up to (%2).")
                       .arg(shown(*lines), shown(lineSum)),
                   t.child(u"cbc:LineExtensionAmount"));
    }
    const struct {
        const char* rule;
        const char* element;
        const std::vector<const UblNode*>& entries;
        const char* message;
    } sums[] = {
        {"BR-CO-11", "cbc:AllowanceTotalAmount", parts.allowances,
         QT_TRANSLATE_NOOP("Einvoice", "The total of the allowances (%1) is not their sum (%2).")},
        {"BR-CO-12", "cbc:ChargeTotalAmount", parts.charges,
         QT_TRANSLATE_NOOP("Einvoice", "The total of the charges (%1) is not their sum (%2).")},
    };
    for (const auto& s : sums) {
        const UblNode* node = t.child(QString::fromLatin1(s.element));
        const Decimal sum = sumOf(s.entries, u"cbc:Amount").roundedUp(2);
        const std::optional<Decimal> given = number(node);
        if ((node && given && !(*given == sum)) || (!node && !s.entries.empty())) {
            report.add(s.rule, kFatal,
                       tr(s.message).arg(given ? shown(*given) : tr("none"), shown(sum)), node);
        }
    }
    const std::optional<Decimal> exclusive = value(u"cbc:TaxExclusiveAmount");
    const Decimal charges = value(u"cbc:ChargeTotalAmount").value_or(Decimal());
    const Decimal allowances = value(u"cbc:AllowanceTotalAmount").value_or(Decimal());
    if (lines && exclusive) {
        const Decimal expected = (*lines + charges - allowances).roundedUp(2);
        if (!(*exclusive == expected)) {
            report.add("BR-CO-13", kFatal,
                       tr("The total without tax (%1) is not the sum of the lines less the "
                          "allowances plus the charges (%2).")
                           .arg(shown(*exclusive), shown(expected)),
                       t.child(u"cbc:TaxExclusiveAmount"));
        }
    }
    const std::optional<Decimal> inclusive = value(u"cbc:TaxInclusiveAmount");
    const UblNode* currency = parts.root.child(u"cbc:DocumentCurrencyCode");
    const UblNode* taxInCurrency = nullptr;
    for (const UblNode* total : parts.root.all(u"cac:TaxTotal")) {
        const UblNode* amount = total->child(u"cbc:TaxAmount");
        if (!taxInCurrency && amount && currency &&
            amount->attribute(u"currencyID") == currency->text) {
            taxInCurrency = amount;
        }
    }
    if (exclusive && inclusive && !taxInCurrency) {
        report.add("BR-CO-15", kFatal,
                   tr("The tax total is not given in the document's currency %1, so the total "
                      "with tax cannot add up.")
                       .arg(currency ? currency->text : QString()),
                   currency);
    } else if (exclusive && inclusive && number(taxInCurrency)) {
        const Decimal expected = (*exclusive + *number(taxInCurrency)).roundedUp(2);
        if (!(*inclusive == expected)) {
            report.add("BR-CO-15", kFatal,
                       tr("The total with tax (%1) is not the total without tax plus the tax "
                          "(%2).")
                           .arg(shown(*inclusive), shown(expected)),
                       t.child(u"cbc:TaxInclusiveAmount"));
        }
    }
    const std::optional<Decimal> payable = value(u"cbc:PayableAmount");
    if (inclusive && payable) {
        const Decimal prepaid = value(u"cbc:PrepaidAmount").value_or(Decimal());
        const Decimal rounding = value(u"cbc:PayableRoundingAmount").value_or(Decimal());
        const Decimal expected = (*inclusive - prepaid + rounding).roundedUp(2);
        if (!(*payable == expected)) {
            report.add("BR-CO-16", kFatal,
                       tr("The amount due (%1) is not the total with tax less what was paid "
                          "(%2).")
                           .arg(shown(*payable), shown(expected)),
                       t.child(u"cbc:PayableAmount"));
        }
    }
}

}  // namespace

std::vector<Finding> checkEinvoiceRules(const UblDocument& document)
{
    const Parts parts(document.root);
    Report report;
    checkTypes(parts.root, report);
    checkDocument(parts, report);
    checkAmountCurrencies(parts.root, report);
    if (parts.seller) {
        checkRequired(*parts.seller, kSellerValues, report);
        checkSellerContact(*parts.seller, report);
    }
    if (parts.buyer) {
        checkRequired(*parts.buyer, kBuyerValues, report);
    }
    checkCodes(parts, report);
    checkDelivery(parts.root, report);
    checkSellerTaxNumber(parts, report);
    for (const UblNode* line : parts.lines) {
        checkLine(*line, report);
    }
    checkTaxTotal(parts, report);
    checkMonetaryTotals(parts, report);
    checkVatCategories(parts, report);
    checkEmptyElements(parts.root, report);
    return report.take();
}

}  // namespace tamo
