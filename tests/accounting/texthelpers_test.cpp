#include <gtest/gtest.h>

#include "accounting/lenientdate.h"
#include "accounting/texthelpers.h"
#include "support/testsupport.h"

namespace tamo::test {
namespace {

struct TextCase {
    const char* helper;
    QString (*run)(const QString&);
    QString input;
    QString expected;
};

TEST(TextHelpersTest, KeepOnlyWhatEachFormatAllows)
{
    const TextCase cases[] = {
        {"nonNilString", nonNilString, QString(), u""_qs},
        {"nonNilString", nonNilString, u"a b"_qs, u"a b"_qs},
        {"fileURLString", fileURLString, u"2024/17"_qs, u"202417"_qs},
        {"fileURLString", fileURLString, u"Missing_Invoice_Number"_qs, u"MissingInvoiceNumber"_qs},
        {"fileURLString", fileURLString, u"../../etc/passwd"_qs, u"etcpasswd"_qs},
        {"fileURLString", fileURLString, u"Größe-é 𝟙😀"_qs, u"Größeé𝟙"_qs},
        {"csvString", csvString, u"A;B,\"C\"\t€5 (x)…\n"_qs, u"A;B,C€5 (x)…"_qs},
        {"csvString", csvString, u"a:b~c^d{e}"_qs, u"abcde"_qs},
        {"datevStringString", datevStringString, u"10% + 5/2*3 = ?"_qs, u"10%+5/2*3"_qs},
        {"pureDigitsString", pureDigitsString, u"DE 12-34 ٣"_qs, u"1234٣"_qs},
        {"pureDigitsString", pureDigitsString, u""_qs, u""_qs},
        {"accountNumberAsPureDigits", accountNumberAsPureDigits, u"Acct 8400."_qs, u"8400"_qs},
        {"onlyNumbersString", onlyNumbersString, u"-1.234,50 EUR"_qs, u"-1.234,50"_qs},
        {"greaterThanNullNumberString", greaterThanNullNumberString, u"0,00 €"_qs, u""_qs},
        {"greaterThanNullNumberString", greaterThanNullNumberString, u"none"_qs, u""_qs},
        {"greaterThanNullNumberString", greaterThanNullNumberString, u"0,50 €"_qs, u"0,50 €"_qs},
        {"greaterThanNullNumberString", greaterThanNullNumberString, u"-3"_qs, u"-3"_qs},
    };
    for (const TextCase& c : cases) {
        EXPECT_EQ(c.run(c.input), c.expected) << c.helper << "(" << c.input.toStdString() << ")";
    }
}

TEST(TextHelpersTest, ShortenedCsvCutsEarlierForCapitals)
{
    const QString lower = u"abcdefghijklmnopqrstuvwxyz0123456789"_qs;  // 36 characters
    const QString upper = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"_qs;
    const struct {
        QString text;
        bool shorten;
        int index;
        QString expected;
    } cases[] = {
        {lower, false, 5, lower},
        {lower, true, 35, lower},  // not longer than index + 1
        {lower, true, 34, lower.left(34) + u'…'},
        {lower, true, 30, lower.left(30) + u'…'},
        {upper, true, 30, upper.left(5) + u'…'},  // 26 capitals: index - 25
        {upper, true, 26, upper.left(1) + u'…'},
        {upper, true, 20, upper.left(10) + u'…'},  // below 26: at 10
        {u"ABCDEFGHIJ klmnopqrstuvwxyz"_qs, true, 20, u"ABCDEFGHIJ klmnopqrs…"_qs},  // 10 capitals
        {u"a;b\tc\td\te\tf"_qs, true, 3, u"a;b…"_qs},  // cleaned first, then measured
    };
    for (const auto& c : cases) {
        EXPECT_EQ(csvStringIsShortened(c.text, c.shorten, c.index), c.expected)
            << c.text.toStdString() << " at " << c.index;
    }
}

TEST(TextHelpersTest, AccountClassIsTheFirstDigitOfLongNumbers)
{
    const std::pair<QString, int> cases[] = {
        {u""_qs, 999},   {u"none"_qs, 999}, {u"123"_qs, 0},         {u"A-12"_qs, 0},
        {u"8400"_qs, 8}, {u"0815"_qs, 0},   {u"Kto 4-9-1-0"_qs, 4},
    };
    for (const auto& [number, expected] : cases) {
        EXPECT_EQ(accountClass(number), expected) << number.toStdString();
    }
}

TEST(LenientDateTest, ReadsTheUsualForms)
{
    const QDate march5(2024, 3, 5);
    const std::pair<QString, QDate> days[] = {
        {u"2024-03-05"_qs, march5},         {u" 2024-03-05 "_qs, march5},
        {u"05.03.2024"_qs, march5},         {u"5.3.24"_qs, march5},
        {u"3/5/2024"_qs, march5},           {u"13/5/2024"_qs, QDate(2024, 5, 13)},
        {u"2024/3/5"_qs, march5},           {u"5 March 2024"_qs, march5},
        {u"March 5, 2024"_qs, march5},      {u"Mar 5 2024"_qs, march5},
        {u"5. März 2024"_qs, march5},       {u"5 mars 2024"_qs, march5},
        {u"5 de marzo de 2024"_qs, march5}, {u"5 MARCH 2024"_qs, march5},
    };
    for (const auto& [text, day] : days) {
        const auto start = dateFromString(text);
        ASSERT_TRUE(start) << text.toStdString();
        EXPECT_EQ(*start, day.startOfDay()) << text.toStdString();
        EXPECT_EQ(*dateFromString(text, DayPart::End), day.endOfDay()) << text.toStdString();
    }
    const auto moment = dateFromString(u"2024-03-05T14:30:00Z"_qs, DayPart::End);
    ASSERT_TRUE(moment);
    EXPECT_EQ(moment->toUTC(), QDateTime(march5, QTime(14, 30), Qt::UTC));
    EXPECT_TRUE(dateFromString(u"2024-03-05 14:30"_qs));
}

TEST(LenientDateTest, RefusesWhatIsNoDate)
{
    for (const QString& text : {u""_qs, u"yesterday"_qs, u"2024-02-30"_qs, u"31.02.2024"_qs,
                                u"13/13/2024"_qs, u"5 Smarch 2024"_qs, u"2024-03-05T25:00"_qs,
                                u"2024-03-05%2F..%2F"_qs, QString(100000, u'1')}) {
        EXPECT_FALSE(dateFromString(text)) << text.left(40).toStdString();
    }
}

}  // namespace
}  // namespace tamo::test
