#pragma once

#include <QString>

namespace tamo {

// Texts cleaned for file names and for the export formats of accounting programs. "Letters and
// digits" are those of every script (letters with their combining marks, and numbers).

// The text, or "" when there is none (a null text becomes an empty one).
QString nonNilString(const QString& text);
// Only letters and digits: "2024/17" gives "202417".
QString fileURLString(const QString& text);
// Letters, digits, the space and the punctuation and currency signs a CSV cell may keep.
QString csvString(const QString& text);
// csvString, and when `shorten` is asked and it is longer than index + 1 characters, cut with "…"
// appended: at `index`, or, for a text of 11 or more capitals (which run wide), at index - 25
// from an index of 26 on and at 10 below that.
QString csvStringIsShortened(const QString& text, bool shorten, int index);
// Letters, digits and "+-/*%".
QString datevStringString(const QString& text);
// Only the decimal digits.
QString pureDigitsString(const QString& text);
QString accountNumberAsPureDigits(const QString& text);
// The decimal digits and ".,-".
QString onlyNumbersString(const QString& text);
// The text, or "" when its onlyNumbersString reads as the number 0 (or as no number).
QString greaterThanNullNumberString(const QString& text);
// 999 for an account number without digits, 0 for one of fewer than 4 digits, else the value of
// its first digit.
int accountClass(const QString& accountNumber);

}  // namespace tamo
