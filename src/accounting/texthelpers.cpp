#include "accounting/texthelpers.h"

#include <QStringView>

#include "calc/numberformat.h"

namespace tamo {

namespace {

bool isLetterOrDigit(char32_t c)
{
    return QChar::isLetterOrNumber(c) || QChar::isMark(c);
}

// The text with only the characters `keep` accepts, whole characters outside the basic plane
// included.
template <typename Keep>
QString kept(const QString& text, Keep keep)
{
    QString result;
    result.reserve(text.size());
    for (const char32_t c : QStringView(text).toUcs4()) {
        if (keep(c)) {
            result.append(QChar::fromUcs4(c));
        }
    }
    return result;
}

bool isOneOf(char32_t c, QStringView set)
{
    return c <= 0xFFFF && set.contains(QChar(char16_t(c)));
}

}  // namespace

QString nonNilString(const QString& text)
{
    return text.isNull() ? QString(u""_qs) : text;
}

QString fileURLString(const QString& text)
{
    return kept(text, isLetterOrDigit);
}

QString csvString(const QString& text)
{
    static constexpr QStringView punctuation =
        u"_,.;·'=+-§•@#$€¥£₽₨₤₭₱₺¢฿₠₣₰₧₯₶₳®©℗™℠()[]&/"
        u"|<>?!%… ";
    return kept(text, [](char32_t c) { return isLetterOrDigit(c) || isOneOf(c, punctuation); });
}

QString csvStringIsShortened(const QString& text, bool shorten, int index)
{
    QString result = csvString(text);
    if (!shorten || result.size() <= qsizetype(index) + 1) {
        return result;
    }
    const qsizetype capitals =
        std::ranges::count_if(result, [](QChar c) { return c.isUpper() || c.isTitleCase(); });
    int cut = index;
    if (capitals >= 11) {
        cut = index >= 26 ? index - 25 : 10;
    }
    return result.left(std::max(cut, 0)) + u'…';
}

QString datevStringString(const QString& text)
{
    return kept(text, [](char32_t c) { return isLetterOrDigit(c) || isOneOf(c, u"+-/*%"); });
}

QString pureDigitsString(const QString& text)
{
    return kept(text, [](char32_t c) { return QChar::isDigit(c); });
}

QString accountNumberAsPureDigits(const QString& text)
{
    return pureDigitsString(text);
}

QString onlyNumbersString(const QString& text)
{
    return kept(text, [](char32_t c) { return QChar::isDigit(c) || isOneOf(c, u".,-"); });
}

QString greaterThanNullNumberString(const QString& text)
{
    const auto number = decimalNumberFromString(onlyNumbersString(text));
    return number.value_or(0) == 0 ? QString(u""_qs) : text;
}

int accountClass(const QString& accountNumber)
{
    const QString digits = pureDigitsString(accountNumber);
    if (digits.isEmpty()) {
        return 999;
    }
    if (digits.size() < 4) {
        return 0;
    }
    return QChar::digitValue(digits.toUcs4().front());
}

}  // namespace tamo
