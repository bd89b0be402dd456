#include <QFile>

#include "documents/lineitems.h"
#include "einvoice/decimal.h"
#include "einvoice/ubldocument.h"
#include "einvoicefixture.h"
#include "ublschema.h"

using namespace tamo;
using namespace tamo::test;

namespace {

TEST(AmountTextTest, TwoDigitsHalfToEvenOnTheShortestDecimalWhateverTheLocale)
{
    const struct {
        double value;
        const char* text;
    } cases[] = {
        {1234.5, "1234.50"}, {1e20, "100000000000000000000.00"},
        {2.675, "2.68"},  // a tie in decimal, though the double lies a little below it
        {0.125, "0.12"},     {-0.125, "-0.12"},
        {1.005, "1.00"},     {6.547000000000001, "6.55"},
        {-0.001, "0.00"},    {0.1 + 0.2, "0.30"},
        {99.995, "100.00"},  {std::nan(""), "NaN"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(amountText(c.value), QString::fromLatin1(c.text)) << c.value;
    }
    // Sums are decimal: three binary near-misses still meet the tie exactly.
    const Decimal sum =
        Decimal::fromDouble(0.001) + Decimal::fromDouble(0.002) + Decimal::fromDouble(0.002);
    EXPECT_EQ(sum.amountText(), u"0.00");
    EXPECT_EQ((Decimal::fromDouble(0.0725) - Decimal::fromDouble(0.01)).shifted(2).amountText(),
              u"6.25");
}

// Each case is an invoice with its lines; the totals fill the amounts, and the e-invoice must match
// the file of the same name in tests/data/einvoice (TAMO_UPDATE_GOLDEN=1 rewrites the files).
struct GoldenCase {
    const char* name;
    const char16_t* invoice;
    std::vector<std::pair<const char16_t*, const char16_t*>> lines;  // title, values
    std::vector<std::pair<const char*, const char16_t*>> texts = {};
    std::vector<const SettingKey*> unsetSettings = {};
    bool germanLocale = false;  // decimal comma, "." grouping
};

const GoldenCase kCases[] = {
    {"no-taxes",
     u"",
     {{u"Consulting", u"baseAmount=19.99 unitCount=3"},
      {u"Travel expenses", u"baseAmount=5.5 unitCount=1"}}},
    {"one-tax",
     u"tax1Percent=0.19",
     {{u"Logo & Corporate Design <Print>",
       u"baseAmount=1234.5 unitCount=1 isTax1Applied=true tax1Percent=0.19"},
      {u"Web hosting (months)",
       u"baseAmount=9.99 unitCount=12 isTax1Applied=true tax1Percent=0.19"}}},
    {"taxes-1-and-3",
     u"tax1Percent=0.19 tax2Percent=0.07 tax3Percent=0.05",
     {{u"Design", u"baseAmount=50 unitCount=2 isTax1Applied=true tax1Percent=0.19"},
      {u"Levy", u"baseAmount=40 unitCount=1 isTax3Applied=true tax3Percent=0.05"}}},
    {"three-taxes",
     u"tax1Percent=0.19 tax2Percent=0.07 tax3Percent=0.025",
     {{u"Event",
       u"baseAmount=200 unitCount=1 isTax1Applied=true tax1Percent=0.19 isTax2Applied=true "
       u"tax2Percent=0.07 isTax3Applied=true tax3Percent=0.025"},
      {u"Tickets", u"baseAmount=33.33 unitCount=3 isTax1Applied=true tax1Percent=0.19"}}},
    {"negative-tax-1",  // a credit line under compound taxes; tax 3 stays zero
     u"tax1Percent=0.1 tax2Percent=0.05",
     {{u"Credit for returned goods",
       u"baseAmount=-100 unitCount=1 isTax1Applied=true tax1Percent=0.1"},
      {u"Assembly",
       u"baseAmount=50 unitCount=1 tax1Percent=0.1 isTax2Applied=true tax2Percent=0.05 "
       u"isTax2Compound=true"}}},
    {"shipping",
     u"tax1Percent=0.19 isShippingEnabled=true shippingAmount=4.9 isShippingTax1Enabled=true",
     {{u"Poster", u"baseAmount=12.5 unitCount=10 isTax1Applied=true tax1Percent=0.19"}},
     {{"shippingTitle", u"Shipping"}}},
    {"discount",
     u"tax1Percent=0.19 isDiscountEnabled=true discountKind=1 discountPercent=0.1",
     {{u"Website relaunch", u"baseAmount=800 unitCount=1 isTax1Applied=true tax1Percent=0.19"},
      {u"Training", u"baseAmount=100 unitCount=2 isTax1Applied=true tax1Percent=0.19"}},
     {{"discountTitle", u"Discount 10 %"}}},
    {"shipping-and-discount",  // lines follow their order of entry, not of insertion
     u"tax1Percent=0.19 tax2Percent=0.07 isShippingEnabled=true shippingAmount=15 "
     u"isShippingTax1Enabled=true isDiscountEnabled=true discountKind=0 discountAmount=50",
     {{u"Photography",
       u"misc5=2026-02-09T10:00:00Z baseAmount=450 unitCount=1 isTax1Applied=true "
       u"tax1Percent=0.19"},
      {u"Image editing",
       u"misc5=2026-02-09T08:00:00Z baseAmount=35 unitCount=6 isTax1Applied=true "
       u"tax1Percent=0.19"},
      {u"Prints",
       u"misc5=2026-02-09T09:00:00Z baseAmount=2.75 unitCount=20 isTax2Applied=true "
       u"tax2Percent=0.07"}},
     {{"shippingTitle", u"Courier"}, {"discountTitle", u"Loyalty discount"}}},
    {"endpoint-fallbacks",
     u"tax1Percent=0.19",
     {{u"Design", u"baseAmount=100 unitCount=1 isTax1Applied=true tax1Percent=0.19"}},
     {{"evoiceContact", u""}},
     {&key::prefsSupplierEndpointID, &key::prefsName, &key::prefsSupplierTaxID}},
    {"undispatched", u"isDispatched=false", {{u"Workshop", u"baseAmount=45 unitCount=2"}}},
    {"comma-decimal-locale",
     u"tax1Percent=0.19",
     {{u"Logo", u"baseAmount=1234.5 unitCount=1 isTax1Applied=true tax1Percent=0.19"}},
     {},
     {},
     true},
};

void PrintTo(const GoldenCase& c, std::ostream* os)
{
    *os << c.name;
}

class GoldenTest : public EinvoiceTest, public ::testing::WithParamInterface<GoldenCase> {};

TEST_P(GoldenTest, MatchesItsGoldenFileAndTheUblSchema)
{
    const GoldenCase& c = GetParam();
    const QLocale locale;
    if (c.germanLocale) {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    }
    for (const SettingKey* k : c.unsetSettings) {
        settings.remove(*k);
    }
    Record* d = invoice(c.invoice);
    for (const auto& [key, text] : c.texts) {
        d->setValue(key, QString::fromUtf16(text));
    }
    for (const auto& [title, values] : c.lines) {
        item(d, title, values);
    }
    totals.calculateInvoice(*d);
    const QString xml =
        evoiceXMLString(*d, LineItems(session).sortedItems(*d), settings, clock.now());
    QLocale::setDefault(locale);

    EXPECT_EQ(UblSchema::invoice().problems(xml), QStringList());
    const QString golden =
        QStringLiteral(TAMO_TEST_DATA "/einvoice/%1.xml").arg(QLatin1StringView(c.name));
    if (qEnvironmentVariableIntValue("TAMO_UPDATE_GOLDEN") == 1) {
        QFile file(golden);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(xml.toUtf8());
    }
    EXPECT_EQ(xml, readFile(golden));
}

INSTANTIATE_TEST_SUITE_P(Invoices, GoldenTest, ::testing::ValuesIn(kCases), [](const auto& info) {
    QString name = QString::fromLatin1(info.param.name);
    return name.remove(u'-').toStdString();
});

using UblSchemaTest = EinvoiceTest;

TEST_F(UblSchemaTest, RefusesAnInvoiceWhoseElementsAreOutOfOrder)
{
    Record* d = invoice();
    item(d, u"Design", u"baseAmount=1 unitCount=1");
    QString xml = evoiceXMLString(*d, LineItems(session).sortedItems(*d), settings, clock.now());
    ASSERT_EQ(UblSchema::invoice().problems(xml), QStringList());
    xml.replace(u"<cbc:InvoiceTypeCode>380</cbc:InvoiceTypeCode>"_qs, QString());
    xml.replace(u"<cbc:BuyerReference>"_qs,
                u"<cbc:InvoiceTypeCode>380</cbc:InvoiceTypeCode><cbc:BuyerReference>"_qs);
    EXPECT_NE(UblSchema::invoice().problems(xml), QStringList());
}

}  // namespace
