#include <functional>

#include "rulefixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

// The documents the table starts from; each passes every rule as it is written.
enum class Base { Standard, Conformant };

UblNode& at(UblNode& node, QStringView path)
{
    const UblNode* found = node.at(path);
    if (!found) {
        throw std::runtime_error("no element " + path.toString().toStdString());
    }
    return const_cast<UblNode&>(*found);
}

void setText(UblNode& root, QStringView path, const QString& text)
{
    at(root, path).text = text;
}

void removeChild(UblNode& parent, QStringView name)
{
    auto& c = parent.children;
    c.erase(std::find_if(c.begin(), c.end(), [&](const UblNode& n) { return n.name == name; }));
}

UblNode element(const char* name, const char* text = "", std::vector<UblNode> children = {})
{
    UblNode node;
    node.name = QString::fromLatin1(name);
    node.text = QString::fromLatin1(text);
    node.children = std::move(children);
    return node;
}

// The nth element of that name below the root (0-based).
UblNode& nth(UblNode& root, QStringView name, size_t n)
{
    return const_cast<UblNode&>(*root.all(name).at(n));
}

UblNode& firstLine(UblNode& root)
{
    return at(root, u"cac:InvoiceLine");
}
UblNode& allowance(UblNode& root)
{
    return nth(root, u"cac:AllowanceCharge", 0);
}
UblNode& charge(UblNode& root)
{
    return nth(root, u"cac:AllowanceCharge", 1);
}
UblNode& subtotal(UblNode& root)
{
    return at(root, u"cac:TaxTotal/cac:TaxSubtotal");
}

struct RuleCase {
    std::string name;
    Base base;
    const char* category;  // the conformant file's exemption category
    std::function<void(UblNode&)> change;
    RuleSet expected;
};

void PrintTo(const RuleCase& c, std::ostream* os)
{
    *os << c.name;
}

std::vector<RuleCase> documentCases()
{
    const auto text = [](const char* path, const char* value) {
        return [=](UblNode& r) { setText(r, QString::fromLatin1(path), QString::fromUtf8(value)); };
    };
    const char* seller = "cac:AccountingSupplierParty/cac:Party/";
    const char* buyer = "cac:AccountingCustomerParty/cac:Party/";
    const auto of = [](const char* party, const char* path) {
        static std::vector<std::string> kept;
        kept.push_back(std::string(party) + path);
        return kept.back().c_str();
    };
    const auto s = Base::Standard;
    return {
        {"DateOfTheWrongForm", s, "", text("cbc:IssueDate", "10.02.2026"), {"SCHEMA"}},
        {"AmountThatIsNoNumber",
         s,
         "",
         text("cac:LegalMonetaryTotal/cbc:PayableAmount", "NaN"),
         {"SCHEMA"}},
        {"NoNumber", s, "", text("cbc:ID", ""), {"BR-02"}},
        {"NoDate", s, "", text("cbc:IssueDate", ""), {"BR-03", "SCHEMA"}},
        {"NoCurrency", s, "", text("cbc:DocumentCurrencyCode", ""), {"BR-05"}},
        {"UnknownCurrency", s, "", text("cbc:DocumentCurrencyCode", "EURO"), {"BR-CL-04"}},
        {"UnknownAmountCurrency",
         s,
         "",
         [](UblNode& r) { at(r, u"cac:TaxTotal/cbc:TaxAmount").attributes[0].second = u"EU"_qs; },
         {"BR-CL-03", "BR-CO-15"}},
        {"NoLines",
         s,
         "",
         [](UblNode& r) {
             std::erase_if(r.children, [](auto& n) { return n.name == u"cac:InvoiceLine"; });
         },
         {"BR-16", "BR-CO-10", "BR-S-01", "BR-S-08"}},
        {"NoBuyerReference", s, "", text("cbc:BuyerReference", " "), {"BR-DE-15"}},
        {"NoSellerName",
         s,
         "",
         text(of(seller, "cac:PartyLegalEntity/cbc:RegistrationName"), ""),
         {"BR-06"}},
        {"NoBuyerName",
         s,
         "",
         text(of(buyer, "cac:PartyLegalEntity/cbc:RegistrationName"), ""),
         {"BR-07"}},
        {"NoSellerCountry",
         s,
         "",
         text(of(seller, "cac:PostalAddress/cac:Country/cbc:IdentificationCode"), ""),
         {"BR-09"}},
        {"NoBuyerCountry",
         s,
         "",
         text(of(buyer, "cac:PostalAddress/cac:Country/cbc:IdentificationCode"), ""),
         {"BR-11"}},
        {"UnknownCountry",
         s,
         "",
         text(of(buyer, "cac:PostalAddress/cac:Country/cbc:IdentificationCode"), "GER"),
         {"BR-CL-14"}},
        {"VatIdWithoutCountry",
         s,
         "",
         text(of(buyer, "cac:PartyTaxScheme/cbc:CompanyID"), "987654321"),
         {"BR-CO-09"}},
        {"NoSellerCity",
         s,
         "",
         text(of(seller, "cac:PostalAddress/cbc:CityName"), " "),
         {"BR-DE-3"}},
        {"NoSellerPostalCode",
         s,
         "",
         text(of(seller, "cac:PostalAddress/cbc:PostalZone"), ""),
         {"BR-DE-4"}},
        {"NoSellerContact", s, "", text(of(seller, "cac:Contact/cbc:Name"), ""), {"BR-DE-5"}},
        {"NoSellerPhone",
         s,
         "",
         text(of(seller, "cac:Contact/cbc:Telephone"), ""),
         {"BR-DE-6", "BR-DE-27"}},
        {"NoSellerMail",
         s,
         "",
         text(of(seller, "cac:Contact/cbc:ElectronicMail"), ""),
         {"BR-DE-7", "BR-DE-28"}},
        {"PhoneWithoutDigits",
         s,
         "",
         text(of(seller, "cac:Contact/cbc:Telephone"), "ask me"),
         {"BR-DE-27"}},
        {"MailThatIsNoAddress",
         s,
         "",
         text(of(seller, "cac:Contact/cbc:ElectronicMail"), "maria@muster"),
         {"BR-DE-28"}},
        {"NoBuyerCity", s, "", text(of(buyer, "cac:PostalAddress/cbc:CityName"), ""), {"BR-DE-8"}},
        {"NoBuyerPostalCode",
         s,
         "",
         text(of(buyer, "cac:PostalAddress/cbc:PostalZone"), ""),
         {"BR-DE-9"}},
        {"NoSellerTaxNumber",
         s,
         "",
         text(of(seller, "cac:PartyTaxScheme/cbc:CompanyID"), " "),
         {"BR-DE-16"}},
        {"LineWithoutName",
         s,
         "",
         [](UblNode& r) { setText(firstLine(r), u"cac:Item/cbc:Name", {}); },
         {"BR-25"}},
        {"NegativePrice",
         s,
         "",
         [](UblNode& r) { setText(firstLine(r), u"cac:Price/cbc:PriceAmount", u"-1.00"_qs); },
         {"BR-27", "PEPPOL-EN16931-R120"}},
        {"LineWithoutCategory",
         s,
         "",
         [](UblNode& r) {
             removeChild(at(firstLine(r), u"cac:Item"), u"cac:ClassifiedTaxCategory");
         },
         {"BR-CO-04", "UBL-SR-48", "BR-S-08"}},
        {"CategoryOfAnotherScheme",
         s,
         "",
         [](UblNode& r) {
             setText(firstLine(r), u"cac:Item/cac:ClassifiedTaxCategory/cac:TaxScheme/cbc:ID",
                     u"GST"_qs);
         },
         {"BR-CO-04", "BR-S-08"}},
        {"LineWithTwoCategories",
         s,
         "",
         [](UblNode& r) {
             UblNode& item = at(firstLine(r), u"cac:Item");
             item.children.push_back(*item.child(u"cac:ClassifiedTaxCategory"));
         },
         {"UBL-SR-48"}},
        {"AmountNotQuantityTimesPrice",
         s,
         "",
         [](UblNode& r) { setText(firstLine(r), u"cbc:InvoicedQuantity", u"3.00"_qs); },
         {"PEPPOL-EN16931-R120"}},
        {"EmptyElement",
         s,
         "",
         text("cac:PaymentMeans/cac:PayeeFinancialAccount/cbc:ID", ""),
         {"PEPPOL-EN16931-R008"}},
        {"TaxTotalNotTheSum",
         s,
         "",
         text("cac:TaxTotal/cbc:TaxAmount", "1.00"),
         {"BR-CO-14", "BR-CO-15"}},
        {"TaxNotTaxableTimesRate",
         s,
         "",
         text("cac:TaxTotal/cac:TaxSubtotal/cbc:TaxAmount", "1.00"),
         {"BR-CO-14", "BR-CO-17", "BR-S-09"}},
        {"LineTotalNotTheSum",
         s,
         "",
         text("cac:LegalMonetaryTotal/cbc:LineExtensionAmount", "1.00"),
         {"BR-CO-10", "BR-CO-13"}},
        {"TotalWithoutTax",
         s,
         "",
         text("cac:LegalMonetaryTotal/cbc:TaxExclusiveAmount", "1.00"),
         {"BR-CO-13", "BR-CO-15"}},
        {"TotalWithTax",
         s,
         "",
         text("cac:LegalMonetaryTotal/cbc:TaxInclusiveAmount", "1.00"),
         {"BR-CO-15", "BR-CO-16"}},
        {"AmountDue",
         s,
         "",
         text("cac:LegalMonetaryTotal/cbc:PayableAmount", "1.00"),
         {"BR-CO-16"}},
        {"AllowanceTotal",
         Base::Conformant,
         "S",
         text("cac:LegalMonetaryTotal/cbc:AllowanceTotalAmount", "1.00"),
         {"BR-CO-11", "BR-CO-13"}},
        {"AllowanceTotalMissing",
         Base::Conformant,
         "S",
         [](UblNode& r) {
             removeChild(at(r, u"cac:LegalMonetaryTotal"), u"cbc:AllowanceTotalAmount");
         },
         {"BR-CO-11", "BR-CO-13"}},
        {"ChargeTotal",
         Base::Conformant,
         "S",
         text("cac:LegalMonetaryTotal/cbc:ChargeTotalAmount", "1.00"),
         {"BR-CO-12", "BR-CO-13"}},
        {"DeliveryWithoutCountry",
         Base::Conformant,
         "K",
         [](UblNode& r) {
             removeChild(at(r, u"cac:Delivery/cac:DeliveryLocation/cac:Address"), u"cac:Country");
         },
         {"BR-57", "BR-IC-12"}},
        {"DeliveryWithoutCity",
         Base::Conformant,
         "K",
         text("cac:Delivery/cac:DeliveryLocation/cac:Address/cbc:CityName", " "),
         {"BR-DE-10"}},
        {"DeliveryWithoutPostalCode",
         Base::Conformant,
         "K",
         text("cac:Delivery/cac:DeliveryLocation/cac:Address/cbc:PostalZone", " "),
         {"BR-DE-11"}},
        {"IntraCommunityWithoutDate",
         Base::Conformant,
         "K",
         text("cac:Delivery/cbc:ActualDeliveryDate", ""),
         {"BR-IC-11", "SCHEMA"}},
        {"NotSubjectBesideAnotherSubtotal",
         Base::Conformant,
         "O",
         [](UblNode& r) {
             UblNode& total = at(r, u"cac:TaxTotal");
             total.children.push_back(*total.child(u"cac:TaxSubtotal"));
             setText(total.children.back(), u"cac:TaxCategory/cbc:ID", u"E"_qs);
         },
         {"BR-O-11"}},
        {"NotSubjectBesideTaxedLine",
         Base::Conformant,
         "O",
         [](UblNode& r) {
             setText(firstLine(r), u"cac:Item/cac:ClassifiedTaxCategory/cbc:ID", u"E"_qs);
         },
         {"BR-O-12"}},
        {"NotSubjectBesideAllowance",
         Base::Conformant,
         "O",
         [](UblNode& r) { setText(allowance(r), u"cac:TaxCategory/cbc:ID", u"E"_qs); },
         {"BR-O-13"}},
        {"NotSubjectBesideCharge",
         Base::Conformant,
         "O",
         [](UblNode& r) { setText(charge(r), u"cac:TaxCategory/cbc:ID", u"E"_qs); },
         {"BR-O-14"}},
    };
}

// The ten rules each VAT category has, broken one after the other on a document whose lines,
// allowance and charge are all in that category.
std::vector<RuleCase> categoryCases()
{
    const std::pair<const char*, const char*> categories[] = {
        {"S", "BR-S"},  {"Z", "BR-Z"}, {"E", "BR-E"}, {"AE", "BR-AE"},
        {"K", "BR-IC"}, {"G", "BR-G"}, {"O", "BR-O"}};
    std::vector<RuleCase> cases;
    for (const auto& [code, prefix] : categories) {
        const QString c = QString::fromLatin1(code);
        const auto id = [p = std::string(prefix)](int n) {
            return p + (n < 10 ? "-0" : "-") + std::to_string(n);
        };
        const auto add = [&](const char* what, std::function<void(UblNode&)> change,
                             RuleSet expected) {
            cases.push_back({std::string(code) + what, Base::Conformant, code, std::move(change),
                             std::move(expected)});
        };
        // A rate that breaks the category's: none for the standard rate, any for the others.
        const auto breakRate = [c](UblNode& category) {
            if (c == u"O") {
                category.children.insert(category.children.begin() + 1,
                                         element("cbc:Percent", "0"));
            } else {
                setText(category, u"cbc:Percent", c == u"S" ? u"0.00"_qs : u"5.00"_qs);
            }
        };
        if (c == u"S") {
            add("WithoutSubtotal",
                [](UblNode& r) { removeChild(at(r, u"cac:TaxTotal"), u"cac:TaxSubtotal"); },
                {id(1)});
        } else {
            add("WithTwoSubtotals",
                [](UblNode& r) {
                    UblNode& total = at(r, u"cac:TaxTotal");
                    total.children.push_back(*total.child(u"cac:TaxSubtotal"));
                },
                {id(1)});
        }
        add("WithTheWrongIdentifiers",
            [c](UblNode& r) {
                UblNode& seller = at(r, u"cac:AccountingSupplierParty/cac:Party");
                if (c == u"O") {
                    seller.children.push_back(
                        element("cac:PartyTaxScheme", "",
                                {element("cbc:CompanyID", "DE123456789"),
                                 element("cac:TaxScheme", "", {element("cbc:ID", "VAT")})}));
                } else {
                    UblNode& party =
                        c == u"K" ? at(r, u"cac:AccountingCustomerParty/cac:Party") : seller;
                    removeChild(party, u"cac:PartyTaxScheme");
                }
            },
            {id(2), id(3), id(4)});
        add("LineAtTheWrongRate",
            [=](UblNode& r) { breakRate(at(firstLine(r), u"cac:Item/cac:ClassifiedTaxCategory")); },
            {id(5)});
        add("AllowanceAtTheWrongRate",
            [=](UblNode& r) { breakRate(at(allowance(r), u"cac:TaxCategory")); }, {id(6)});
        add("ChargeAtTheWrongRate",
            [=](UblNode& r) { breakRate(at(charge(r), u"cac:TaxCategory")); }, {id(7)});
        add("WithTheWrongTaxableAmount",
            [](UblNode& r) { setText(subtotal(r), u"cbc:TaxableAmount", u"12345.00"_qs); },
            {id(8)});
        add("WithTheWrongTax",
            [](UblNode& r) { setText(subtotal(r), u"cbc:TaxAmount", u"12345.00"_qs); }, {id(9)});
        add("WithTheWrongExemptionReason",
            [c](UblNode& r) {
                UblNode& category = at(subtotal(r), u"cac:TaxCategory");
                if (c == u"S" || c == u"Z") {
                    category.children.insert(category.children.begin() + 2,
                                             element("cbc:TaxExemptionReason", "Exempt"));
                } else {
                    removeChild(category, u"cbc:TaxExemptionReason");
                }
            },
            {id(10)});
    }
    return cases;
}

std::vector<RuleCase> allCases()
{
    std::vector<RuleCase> cases = documentCases();
    std::vector<RuleCase> more = categoryCases();
    cases.insert(cases.end(), more.begin(), more.end());
    return cases;
}

class RuleCheckTest : public RuleTest, public ::testing::WithParamInterface<RuleCase> {
protected:
    // Two lines, shipping and a discount. In the standard file only taxed lines (the discount
    // and shipping would break rules); in the conformant file everything taxed at 19 % for the
    // standard rate, or untaxed in the exemption category.
    UblDocument base(const RuleCase& c)
    {
        const bool taxed = c.base == Base::Standard || std::string_view(c.category) == "S";
        const QString tax = taxed ? u" isTax1Applied=true tax1Percent=0.19"_qs : QString();
        Record* d = invoice(
            c.base == Base::Standard
                ? u"tax1Percent=0.19"
                : (taxed ? u"tax1Percent=0.19 isShippingEnabled=true shippingAmount=9.9 "
                           u"isShippingTax1Enabled=true isDiscountEnabled=true discountKind=1 "
                           u"discountPercent=0.05"
                         : u"isShippingEnabled=true shippingAmount=9.9 isDiscountEnabled=true "
                           u"discountKind=1 discountPercent=0.05"));
        setTexts(d, {{"shippingTitle", u"Shipping"}, {"discountTitle", u"Discount"}});
        const QString design = u"baseAmount=450 unitCount=1"_qs + tax;
        const QString prints = u"baseAmount=2.75 unitCount=20"_qs + tax;
        item(d, u"Design", reinterpret_cast<const char16_t*>(design.utf16()));
        item(d, u"Prints", reinterpret_cast<const char16_t*>(prints.utf16()));
        if (c.base == Base::Standard) {
            return standard(d);
        }
        return conformant(d, taxed ? "E" : c.category).value();
    }
};

TEST_P(RuleCheckTest, TheDocumentKeepsTheRuleUntilTheChangeBreaksIt)
{
    const RuleCase& c = GetParam();
    UblDocument document = base(c);
    const std::vector<Finding> kept = checkEinvoiceRules(document);
    ASSERT_TRUE(kept.empty()) << describe(kept);
    c.change(document.root);
    const std::vector<Finding> broken = checkEinvoiceRules(document);
    const RuleSet found = rulesOf(broken);
    for (const std::string& rule : c.expected) {
        EXPECT_TRUE(found.contains(rule)) << rule << " missing from\n" << describe(broken);
    }
}

INSTANTIATE_TEST_SUITE_P(Rules, RuleCheckTest, ::testing::ValuesIn(allCases()),
                         [](const auto& info) { return info.param.name; });

using RuleFieldTest = RuleTest;

TEST_F(RuleFieldTest, FindingsNameThePlaceToChangeAndTheKeptStructure)
{
    Record* d =
        invoice(u"tax1Percent=0.19 isDiscountEnabled=true discountKind=0 discountAmount=10");
    setTexts(d, {{"title", u" "}, {"discountTitle", u"Loyalty"}});
    settings.set(key::prefsSupplierContactPhone, u"n/a"_qs);
    item(d, u"Design", u"baseAmount=100 unitCount=1 isTax1Applied=true tax1Percent=0.19");
    item(d, u"Travel", u"baseAmount=20 unitCount=1");
    const std::vector<Finding> findings = checkEinvoiceRules(standard(d));
    const auto field = [&](const char* rule) {
        const auto f = std::find_if(findings.begin(), findings.end(), [&](const Finding& f) {
            return f.rule == QLatin1StringView(rule);
        });
        return f == findings.end() ? u"(none)"_qs : einvoiceFieldLabel(f->field);
    };
    EXPECT_EQ(field("BR-DE-15"), u"document: title");
    EXPECT_EQ(field("BR-DE-27"), u"Preferences → Company: prefsSupplierContactPhone");
    // The discount line and the untaxed line are the structure's doing: the remedy is the
    // conformant file, and the sentence says so.
    EXPECT_EQ(field("BR-27"), u"E-Invoice sheet: prefsEvoiceConformantBool");
    const auto discount = std::find_if(findings.begin(), findings.end(),
                                       [](const Finding& f) { return f.rule == u"BR-27"; });
    EXPECT_TRUE(discount->message.contains(u"writes the discount as a line with a negative price"));
    // Only the empty title's own rule speaks for it, not the empty-element rule as well.
    EXPECT_EQ(
        std::count_if(findings.begin(), findings.end(),
                      [](const Finding& f) { return f.field == EinvoiceField::document("title"); }),
        1);
}

}  // namespace
