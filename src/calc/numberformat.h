#pragma once

#include <QLocale>
#include <QString>
#include <QStringView>
#include <optional>

#include "settings/settings.h"

namespace tamo {

// Money text in the locale's decimal style: grouping, exactly two fraction digits, no currency
// sign (the designs add that).
QString stringFromNumber(double value, const QLocale& locale = QLocale());
// The locale's decimal style with its default fraction digits (at most three).
QString decimalStringFromNumber(double value, const QLocale& locale = QLocale());

// Lenient money reading, whatever separators the user typed: the digit groups are joined, and the
// last group is the fraction unless it is exactly three digits long (then it was thousands):
// "1,234" and "1.234" give 1234, "1,5" gives 1.5, "1.234,56" gives 1234.56. A minus anywhere makes
// the number negative. Nothing for empty text or text without digits.
std::optional<double> decimalNumberFromString(QStringView text);
// Lenient percent reading, as a fraction: the last kind of separator is the decimal mark, the
// others are thousands marks; a value above 1 is divided by 100, one of at most 1 is taken as a
// fraction already ("19" and "0.19" both give 0.19, "7,5" gives 0.075, "1" gives 1).
std::optional<double> percentDecimalNumberFromString(QStringView text);

// The colour in which the document view shows single tax amounts.
enum class LabelColor { Normal, Secondary };
LabelColor taxAmountColor(const Settings& settings);

}  // namespace tamo
