#pragma once

#include <QString>
#include <QStringView>
#include <expected>

#include "settings/settingkeys.h"

namespace tamo {

// Beyond this a double no longer holds every cent exactly, and a document's sums would lose them.
inline constexpr double kMaxAmount = 999'999'999'999.99;

// Amounts and quantities a person enters, checked before they reach a record: a number that is
// not finite (NaN, infinity) or beyond ±kMaxAmount is refused with a sentence that says why.
std::expected<double, QString> checkedAmount(double value);
// A line's price and quantity, each and their product.
std::expected<void, QString> checkedLine(double price, double quantity);
// Money or a quantity typed in the window (the lenient reading of decimalNumberFromString).
std::expected<double, QString> amountFromText(QStringView text);
// A tax rate or percentage, read as a fraction with percentDecimalNumberFromString ("19",
// "19 %" and "0.19" give 0.19); negative rates and rates above 100 % are refused.
std::expected<double, QString> rateFromText(QStringView text);

// The settings that hold tax rates (fractions, entered as percentages).
bool isRateSetting(const SettingKey& key);

}  // namespace tamo
