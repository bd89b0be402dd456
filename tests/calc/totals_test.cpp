#include <cmath>

#include "calc/rounding.h"
#include "calcfixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

TEST(RoundingTest, RoundsTheExactBinaryValueAndTiesToEven)
{
    const struct {
        double value;
        int places;
        double rounded;
    } cases[] = {
        {0.0725, 3, 0.072},  // just below the tie in binary
        {0.0725, 4, 0.0725}, {0.125, 2, 0.12}, {0.375, 2, 0.38},  {-0.125, 2, -0.12},
        {2.675, 2, 2.67},    {1.0005, 3, 1.0}, {59.97, 2, 59.97}, {1e17 + 0.5, 2, 1e17},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(roundedTo(c.value, c.places), c.rounded) << c.value << " to " << c.places;
    }
    EXPECT_TRUE(std::isnan(r2(std::nan(""))));
}

using TotalsTest = CalcTest;

TEST_F(TotalsTest, WithoutTaxesTheDiscountIsLeviedOnTheLinesOnly)
{
    Record* d = document(
        u"isShippingEnabled=true shippingAmount=4.9 isDiscountEnabled=true "
        u"discountKind=1 discountPercent=0.1");
    Record* a = line(d, u"baseAmount=19.99 unitCount=3 tax1Amount=1");
    Record* b = line(d, u"baseAmount=5.5 unitCount=1");
    totals.calculateInvoice(*d);
    expectValues(a, u"subAmount=59.97 amount=59.97 tax1Amount=0");
    expectValues(b, u"subAmount=5.5 amount=5.5 tax3Amount=0");
    // 65.47 × 0.1 is a hair above 6.547 in binary, and so is the total.
    expectValues(d,
                 u"subAmount=65.47 invoiceDiscountSum=6.547000000000001 "
                 u"taxExclusiveAmount=63.82 amount=63.82300000000001 "
                 u"hasInvoiceTaxableAmounts=false tax1TaxableAmount=null");
}

TEST_F(TotalsTest, StandardTaxesAreLeviedOnTheUndiscountedTaxableSums)
{
    settings.set(key::beforeTaxesBool, true);
    Record* d = document(
        u"tax1Percent=0.19 tax2Percent=0.07 isShippingEnabled=true "
        u"shippingAmount=10 isShippingTax1Enabled=true isDiscountEnabled=true "
        u"discountKind=0 discountAmount=20");
    Record* a = line(d,
                     u"baseAmount=50 unitCount=2 isTax1Applied=true tax1Percent=0.19 "
                     u"tax2Amount=7");
    Record* b = line(d, u"baseAmount=30 unitCount=1 isTax2Applied=true tax2Percent=0.07");
    totals.calculateInvoice(*d);
    expectValues(a, u"subAmount=100 tax1Amount=19 tax2Amount=0 tax3Amount=0 amount=119");
    expectValues(b, u"subAmount=30 tax1Amount=0 tax2Amount=2.1 amount=32.1");
    // The fixed 20.00 goes through 20 / 140 × 100 percent of 140.
    expectValues(d,
                 u"subAmount=130 invoiceDiscountSum=19.999999999999996 "
                 u"tax1TaxableAmount=110 tax2TaxableAmount=30 tax3TaxableAmount=0 "
                 u"tax1Amount=20.9 tax2Amount=2.1 tax3Amount=0 taxExclusiveAmount=120 "
                 u"amount=143 hasInvoiceTaxableAmounts=true");
}

TEST_F(TotalsTest, DiscountAfterStandardTaxesLeavesTheTotalAtZero)
{
    Record* d = document(
        u"tax1Percent=0.19 isDiscountEnabled=true discountKind=1 "
        u"discountPercent=0.1");
    Record* a = line(d,
                     u"baseAmount=100 unitCount=1 isTax1Applied=true tax1Percent=0.19 "
                     u"tax2Amount=7.77");
    totals.calculateInvoice(*d);
    // 119 × the rate in single precision; the line's unapplied tax keeps its old amount.
    expectValues(d,
                 u"tax1Amount=19 invoiceDiscountSum=11.900000177323818 "
                 u"taxExclusiveAmount=0 amount=0");
    expectValues(a, u"tax1Amount=19 tax2Amount=7.77 amount=119");

    set(d, u"discountKind=0 discountAmount=5.555");
    totals.calculateInvoice(*d);
    expectValues(d, u"invoiceDiscountSum=5.555 amount=0");
}

TEST_F(TotalsTest, CompoundTaxesBuildOnTheLowerTaxes)
{
    settings.set(key::beforeTaxesBool, true);
    Record* d = document(
        u"isDiscountEnabled=true discountKind=0 discountAmount=5 "
        u"invoiceDiscountSum=9.99");
    Record* a = line(d,
                     u"baseAmount=100 unitCount=1 isTax1Applied=true tax1Percent=0.1 "
                     u"isTax2Applied=true tax2Percent=0.05 isTax2Compound=true tax3Amount=3");
    totals.calculateInvoice(*d);
    expectValues(a, u"tax1Amount=10 tax2Amount=5.5 tax3Amount=3 amount=115.5");
    // Discounting before taxes never reaches compound documents.
    expectValues(d,
                 u"subAmount=100 tax1Amount=10 tax2Amount=5.5 tax3Amount=0 "
                 u"tax1TaxableAmount=100 tax2TaxableAmount=100 tax3TaxableAmount=0 "
                 u"taxExclusiveAmount=0 amount=115.5 invoiceDiscountSum=9.99 "
                 u"hasInvoiceTaxableAmounts=true");

    // After taxes the discount is subtracted, but a compound line keeps the old discount sum.
    settings.set(key::beforeTaxesBool, false);
    totals.calculateInvoice(*d);
    expectValues(d, u"amount=110.5 invoiceDiscountSum=9.99");
}

TEST_F(TotalsTest, CompoundShippingTaxesAreWorkedOutInSinglePrecision)
{
    settings.set(key::tax2IsCompound, true);
    settings.set(key::tax3IsCompound, true);
    Record* d = document(
        u"tax1Percent=0.19 tax2Percent=0.05 tax3Percent=0.1 "
        u"isShippingEnabled=true shippingAmount=10 isShippingTax1Enabled=true "
        u"isShippingTax2Enabled=true isShippingTax3Enabled=true "
        u"isDiscountEnabled=true discountKind=1 discountPercent=0.1");
    line(d, u"baseAmount=100 unitCount=1 isTax1Applied=true tax1Percent=0.19");
    totals.calculateInvoice(*d);
    // Shipping: 1.9f on 10; 0.05 of 11.9f; 0.1 of 11.9f + 0.595f; each product a float.
    expectValues(d,
                 u"tax1Amount=20.899999976158142 tax2Amount=0.5949999690055847 "
                 u"tax3Amount=1.249500036239624 tax1TaxableAmount=100 tax2TaxableAmount=0 "
                 u"invoiceDiscountSum=13.274450195945054 amount=119.4700497854583");
}

TEST_F(TotalsTest, LinesAndRatesAreRoundedAsTheCalculatorSays)
{
    // 1.005 and 2.005 lie below their ties in binary; summed before rounding they give 2.01.
    Record* d = document();
    line(d, u"baseAmount=1.005 unitCount=1");
    line(d, u"baseAmount=1.005 unitCount=1");
    totals.calculateInvoice(*d);
    expectValues(d, u"subAmount=2 amount=2");

    // A rate of 0.0725 is kept by the standard calculator and cut to 0.072 by the compound one.
    Record* e = document();
    Record* a = line(e, u"baseAmount=1000 unitCount=1 isTax1Applied=true tax1Percent=0.0725");
    totals.calculateInvoice(*e);
    expectValues(a, u"tax1Amount=72.5");
    set(a, u"isTax2Applied=true isTax2Compound=true");  // at a rate of 0
    totals.calculateInvoice(*e);
    expectValues(a, u"tax1Amount=72");
}

TEST_F(TotalsTest, ChoosesTheCalculatorFromLineTaxesShippingTaxesAndTheTax2Setting)
{
    // With the discount before taxes, only the compound calculator leaves taxExclusiveAmount 0.
    enum Chosen { None, Standard, Compound };
    const struct {
        const char16_t* line;
        const char16_t* document;
        bool tax2IsCompound, tax3IsCompound;
        Chosen chosen;
    } cases[] = {
        {u"", u"", false, false, None},
        {u"isTax1Applied=true", u"", false, false, Standard},
        {u"isTax2Applied=true isTax2Compound=true", u"", false, false, Compound},
        {u"isTax1Applied=true isTax3Compound=true", u"", false, false, Standard},
        {u"", u"isShippingEnabled=true isShippingTax1Enabled=true", false, false, Standard},
        {u"", u"isShippingTax1Enabled=true isShippingTax3Enabled=true", true, false, None},
        {u"", u"isShippingEnabled=true isShippingTax2Enabled=true", true, false, Compound},
        // Shipping tax 3 follows the tax 2 setting; its own plays no part.
        {u"", u"isShippingEnabled=true isShippingTax3Enabled=true", true, false, Compound},
        {u"", u"isShippingEnabled=true isShippingTax3Enabled=true", false, true, Standard},
    };
    settings.set(key::beforeTaxesBool, true);
    for (const auto& c : cases) {
        SCOPED_TRACE((QString::fromUtf16(c.line) + u" | "_qs + QString::fromUtf16(c.document))
                         .toStdString());
        settings.set(key::tax2IsCompound, c.tax2IsCompound);
        settings.set(key::tax3IsCompound, c.tax3IsCompound);
        Record* d = document(c.document);
        set(line(d, u"baseAmount=100 unitCount=1"), c.line);
        totals.calculateInvoice(*d);
        EXPECT_EQ(d->boolean("hasInvoiceTaxableAmounts"), c.chosen != None);
        EXPECT_EQ(d->decimal("taxExclusiveAmount"), c.chosen == Compound ? 0.0 : 100.0);
    }
}

TEST_F(TotalsTest, EmptyDocumentsTotalZeroOrNotANumberWithAFixedDiscount)
{
    Record* d = document();
    totals.calculateInvoice(*d);
    expectValues(d, u"subAmount=0 amount=0 hasInvoiceTaxableAmounts=false");

    set(d, u"isDiscountEnabled=true discountKind=0 discountAmount=10");
    totals.calculateInvoice(*d);
    EXPECT_TRUE(std::isnan(d->decimal("amount")));
    EXPECT_TRUE(std::isnan(d->decimal("invoiceDiscountSum")));
}

TEST_F(TotalsTest, ARecalculationIsUndoneWithTheEditThatCausedIt)
{
    settings.set(key::beforeTaxesBool, true);
    Record* d = document(u"tax1Percent=0.19");
    Record* a = line(d, u"baseAmount=10 unitCount=1 isTax1Applied=true tax1Percent=0.19");
    totals.calculateInvoice(*d);
    ASSERT_TRUE(context.save());
    totals.calculateInvoice(*d);
    EXPECT_FALSE(context.hasChanges());  // unchanged results write nothing

    {
        UndoGroup edit(context, u"Edit Quantity"_qs);
        a->setValue("unitCount", 3.0);
        totals.calculateInvoice(*d);
    }
    expectValues(d, u"amount=35.7");
    context.undo();
    expectValues(d, u"amount=11.9");
    expectValues(a, u"unitCount=1 subAmount=10");
}

}  // namespace
