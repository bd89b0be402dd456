#include <gtest/gtest.h>

#include "calc/numberformat.h"
#include "support/testsupport.h"

using namespace tamo;

namespace {

TEST(NumberFormatTest, MoneyHasTwoFractionDigitsAndTheLocalesSeparators)
{
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const QLocale german(QLocale::German, QLocale::Germany);
    EXPECT_EQ(stringFromNumber(1234.5, english), u"1,234.50");
    EXPECT_EQ(stringFromNumber(1234.5, german), u"1.234,50");
    EXPECT_EQ(stringFromNumber(-0.5, german), u"-0,50");
    EXPECT_EQ(decimalStringFromNumber(10, german), u"10");
    EXPECT_EQ(decimalStringFromNumber(1234.5678, german), u"1.234,568");
    // The C locale groups as Qt shows it in the list, and the sums of the status bar too.
    EXPECT_EQ(stringFromNumber(1977, QLocale::c()), u"1,977.00");
    EXPECT_EQ(stringFromNumber(double(60684364.0f), QLocale::c()), u"60,684,364.00");
}

TEST(NumberFormatTest, MoneyTextIsReadWhateverTheSeparators)
{
    const struct {
        const char16_t* text;
        std::optional<double> number;
    } cases[] = {
        {u"", std::nullopt},
        {u"EUR", std::nullopt},
        {u"1,234", 1234},
        {u"1.234", 1234},
        {u"1,5", 1.5},
        {u"1.23", 1.23},
        {u"1.234,56", 1234.56},
        {u"1 234 567", 1234567},
        {u"€ 12,50-", -12.5},
        {u"1,2345", 1.2345},
        {u",5", 5},
        {u"١٢,٥", 12.5},  // Arabic-Indic digits
    };
    for (const auto& c : cases) {
        EXPECT_EQ(decimalNumberFromString(c.text), c.number)
            << QString::fromUtf16(c.text).toStdString();
    }
}

TEST(NumberFormatTest, PercentTextBecomesAFraction)
{
    const struct {
        const char16_t* text;
        std::optional<double> fraction;
    } cases[] = {
        {u"", std::nullopt},  {u"%", std::nullopt}, {u"19", 0.19},
        {u"19 %", 0.19},      {u"0.19", 0.19},      {u"1", 1},
        {u"0,5", 0.5},        {u"7,5", 0.075},      {u"1.5", 0.015},
        {u"1.234,5", 12.345}, {u"-5", -5},          {u"1.00", 1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(percentDecimalNumberFromString(c.text), c.fraction)
            << QString::fromUtf16(c.text).toStdString();
    }
}

}  // namespace
