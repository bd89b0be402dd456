#include "calc/amountinput.h"

#include <QCoreApplication>
#include <QLocale>
#include <cmath>
#include <cstring>

#include "calc/numberformat.h"
#include "platform/translations.h"

namespace tamo {

namespace {

QString shown(double value)
{
    return std::isfinite(value) ? QLocale().toString(value, 'g', 6) : QString::number(value);
}

}  // namespace

std::expected<double, QString> checkedAmount(double value)
{
    if (!std::isfinite(value)) {
        return std::unexpected(
            tr("“%1” is not a number Tamo can calculate with.").arg(shown(value)));
    }
    if (std::abs(value) > kMaxAmount) {
        return std::unexpected(tr("%1 is too large: Tamo takes amounts of at most %2.")
                                   .arg(shown(value), QLocale().toString(kMaxAmount, 'f', 2)));
    }
    return value;
}

std::expected<void, QString> checkedLine(double price, double quantity)
{
    for (const double value : {price, quantity}) {
        if (auto checked = checkedAmount(value); !checked) {
            return std::unexpected(checked.error());
        }
    }
    if (std::abs(price * quantity) > kMaxAmount) {
        return std::unexpected(
            tr("The line comes to %1, which is too large: Tamo takes amounts of "
               "at most %2.")
                .arg(shown(price * quantity), QLocale().toString(kMaxAmount, 'f', 2)));
    }
    return {};
}

std::expected<double, QString> amountFromText(QStringView text)
{
    const std::optional<double> value = decimalNumberFromString(text);
    if (!value) {
        return std::unexpected(tr("“%1” is not a number.").arg(text.toString()));
    }
    return checkedAmount(*value);
}

std::expected<double, QString> rateFromText(QStringView text)
{
    const std::optional<double> value = percentDecimalNumberFromString(text);
    if (!value || !std::isfinite(*value)) {
        return std::unexpected(tr("“%1” is not a percentage.").arg(text.toString()));
    }
    if (*value < 0) {
        return std::unexpected(tr("A rate cannot be negative (“%1”).").arg(text.toString()));
    }
    if (*value > 1) {
        return std::unexpected(tr("A rate is at most 100 % (“%1”).").arg(text.toString()));
    }
    return *value;
}

bool isRateSetting(const SettingKey& key)
{
    for (const SettingKey* rate : {&key::tax1Rate, &key::tax2Rate, &key::tax3Rate}) {
        if (std::strcmp(rate->name, key.name) == 0) {
            return true;
        }
    }
    return false;
}

}  // namespace tamo
