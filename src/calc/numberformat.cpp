#include "calc/numberformat.h"

#include "calc/icutext.h"

#include <unicode/numberformatter.h>

#include <charconv>
#include <map>
#include <string>

namespace tamo {

namespace {

namespace number = icu::number;

struct Formatters {
    number::LocalizedNumberFormatter money;
    number::LocalizedNumberFormatter decimal;
};

// Building an ICU formatter costs far more than using one, and the renderers format every amount
// of a document, so one pair is kept per locale. Everything runs on the main thread.
const Formatters& formattersFor(const QLocale& locale)
{
    static std::map<QString, Formatters> cache;
    const QString name = locale.name();
    auto it = cache.find(name);
    if (it == cache.end()) {
        // Qt's C locale writes numbers as English does; ICU's POSIX locale would drop the
        // grouping.
        const icu::Locale icuLocale =
            locale.language() == QLocale::C ? icu::Locale("en_US") : icutext::locale(locale);
        const auto base =
            number::NumberFormatter::withLocale(icuLocale).roundingMode(UNUM_ROUND_HALFEVEN);
        it = cache
                 .emplace(name, Formatters{base.precision(number::Precision::fixedFraction(2)),
                                           base.precision(number::Precision::maxFraction(3))})
                 .first;
    }
    return it->second;
}

QString format(const number::LocalizedNumberFormatter& formatter, double value)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString text = formatter.formatDouble(value, status).toString(status);
    if (U_FAILURE(status)) {
        return QString::number(value, 'f', 2);
    }
    return icutext::fromIcu(text);
}

// The double nearest to a plain decimal text ("-12.5"); `exponent` shifts the decimal point.
std::optional<double> fromDecimalText(std::string text, int exponent = 0)
{
    if (exponent != 0) {
        text += 'e' + std::to_string(exponent);
    }
    double value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

}  // namespace

QString stringFromNumber(double value, const QLocale& locale)
{
    return format(formattersFor(locale).money, value);
}

QString decimalStringFromNumber(double value, const QLocale& locale)
{
    return format(formattersFor(locale).decimal, value);
}

std::optional<double> decimalNumberFromString(QStringView text)
{
    if (text.isEmpty()) {
        return std::nullopt;
    }
    std::vector<std::string> groups(1);
    for (const QChar c : text) {
        if (c.isDigit()) {
            groups.back() += char('0' + c.digitValue());  // digits of any script
        } else if (!groups.back().empty()) {
            groups.emplace_back();
        }
    }
    if (groups.back().empty()) {
        groups.pop_back();
    }
    if (groups.empty()) {
        return std::nullopt;
    }
    std::string fraction;
    if (groups.size() >= 2 && groups.back().size() != 3) {
        fraction = std::move(groups.back());
        groups.pop_back();
    }
    std::string joined = text.contains(u'-') ? "-" : "";
    for (const std::string& g : groups) {
        joined += g;
    }
    if (!fraction.empty()) {
        joined += '.' + fraction;
    }
    return fromDecimalText(std::move(joined));
}

std::optional<double> percentDecimalNumberFromString(QStringView text)
{
    if (text.isEmpty()) {
        return std::nullopt;
    }
    QString kept;
    for (const QChar c : text) {
        if ((c >= u'0' && c <= u'9') || c == u',' || c == u'.' || c == u'-') {
            kept.append(c);
        }
    }
    QStringList separators;
    QString run;
    for (const QChar c : kept + u'0') {  // the digit at the end closes the last run
        if (c.isDigit()) {
            if (!run.isEmpty() && run != u"-") {
                separators << run;
            }
            run.clear();
        } else {
            run.append(c);
        }
    }
    if (!separators.isEmpty()) {
        kept.replace(separators.last(), QStringLiteral("|"));
        for (const QString& s : separators) {
            kept.remove(s);
        }
        kept.replace(u'|', u'.');
    }

    // The leading number of the text: an optional minus, digits, an optional fraction.
    qsizetype i = 0;
    const bool negative = kept.startsWith(u'-');
    i += negative ? 1 : 0;
    std::string whole, fraction;
    for (; i < kept.size() && kept[i].isDigit(); ++i) {
        whole += char(kept[i].unicode());
    }
    if (i < kept.size() && kept[i] == u'.') {
        for (++i; i < kept.size() && kept[i].isDigit(); ++i) {
            fraction += char(kept[i].unicode());
        }
    }
    if (whole.empty() && fraction.empty()) {
        return std::nullopt;
    }
    const std::string text10 = (negative ? "-" : "") + (whole.empty() ? "0" : whole) + '.' +
                               (fraction.empty() ? "0" : fraction);
    // Compared as decimal text, so that 1.000000000000000001 counts as above 1.
    whole.erase(0, whole.find_first_not_of('0'));
    const bool fractionIsZero = fraction.find_first_not_of('0') == std::string::npos;
    const bool aboveOne = !negative && (whole.size() > 1 || (whole.size() == 1 && whole > "1") ||
                                        (whole == "1" && !fractionIsZero));
    return fromDecimalText(text10, aboveOne ? -2 : 0);
}

LabelColor taxAmountColor(const Settings& settings)
{
    return settings.boolean(key::showSingleTaxAmounts) ? LabelColor::Normal : LabelColor::Secondary;
}

}  // namespace tamo
