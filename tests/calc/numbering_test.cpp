#include "calc/numbering.h"
#include "calcfixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class NumberingTest : public CalcTest {
protected:
    Numbering numbering{session};

    // Exactly `count` invoices, with the statistics taken over them.
    void invoices(int count)
    {
        for (Record* r : context.fetch("Invoice")) {
            context.remove(r);
        }
        for (int i = 0; i < count; ++i) {
            document(u"kind=1");
        }
        totals.calculateDatabase();
    }
};

TEST_F(NumberingTest, InvoiceNumbersCountTheListedInvoicesPlusTheOffset)
{
    const struct {
        const char16_t* pattern;
        QVariant offset;
        int invoices;
        const char16_t* next;
        const char16_t* converted;  // the converted quote counts already
    } cases[] = {
        {u"%COUNT%", 0, 0, u"1", u"0"},
        {u"%COUNT%", QVariant(), 5, u"6", u"5"},
        {u"RE-%COUNT%", u"10"_qs, 2, u"RE-13", u"RE-12"},
        {u"%COUNT%", u"many"_qs, 1, u"2", u"1"},
        {u"%YEAR%/%MONTH%-%DAY% %DAY%", 0, 3, u"2026/3-1 1", u"2026/3-1 1"},
    };
    for (const auto& c : cases) {
        settings.set(key::invPattern, QString::fromUtf16(c.pattern));
        settings.set(key::invCount, c.offset);
        invoices(c.invoices);
        EXPECT_EQ(numbering.invoiceNumberString(), QString::fromUtf16(c.next));
        EXPECT_EQ(numbering.convertedInvoiceNumberString(), QString::fromUtf16(c.converted));
    }
}

TEST_F(NumberingTest, DeletedNumbersRepeatUnlessTheCounterIsRaised)
{
    settings.set(key::invPattern, u"%COUNT%"_qs);
    invoices(5);
    context.remove(context.fetch("Invoice").front());
    totals.calculateDatabase();
    EXPECT_EQ(numbering.invoiceNumberString(), u"5");
    numbering.raiseInvoiceCounter();
    EXPECT_EQ(settings.value(key::invCount), QVariant(u"1"_qs));
    EXPECT_EQ(numbering.invoiceNumberString(), u"6");
    EXPECT_EQ(previewInvoiceNumberString(settings, clock), u"2");  // counts no documents

    settings.set(key::quotPattern, u"AN-%YEAR%-%COUNT%"_qs);
    settings.set(key::clientCount, 100);
    settings.set(key::clientPattern, u"K%COUNT%"_qs);
    document(u"kind=0");
    context.insert("Address");
    totals.calculateDatabase();
    numbering.raiseQuoteCounter();
    EXPECT_EQ(numbering.quoteNumberString(), u"AN-2026-3");
    EXPECT_EQ(numbering.clientNumberString(), u"K102");
}

TEST_F(NumberingTest, DatePatternTokensBecomeLocaleDateFields)
{
    const QDateTime march5(QDate(2024, 3, 5), QTime(12, 0), Qt::UTC);
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const QLocale german(QLocale::German, QLocale::Germany);
    const struct {
        const char16_t* pattern;
        QLocale locale;
        const char16_t* printed;
    } cases[] = {
        {u"%DAY%.%MONTHSHORT%.%YEARLONG%", german, u"05.03.2024"},
        {u"%MONTHLONG% %YEARLONG%", english, u"March 2024"},
        {u"%DAY%. %MONTHLONG% %YEARSHORT%", german, u"05. März 24"},
        {u"%YEARLONG%-%MONTHSHORT%-%DAY% 'at' d", english, u"2024-03-05 at 5"},
    };
    for (const auto& c : cases) {
        settings.set(key::prefsDatePattern, QString::fromUtf16(c.pattern));
        EXPECT_EQ(getPatternDateStringFromDate(settings, march5, c.locale),
                  QString::fromUtf16(c.printed));
    }
}

}  // namespace
