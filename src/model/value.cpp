#include "model/value.h"

#include <QTimeZone>
#include <algorithm>
#include <cmath>
#include <limits>

namespace tamo {

const char* attributeTypeName(AttributeType type)
{
    switch (type) {
    case AttributeType::String:
        return "string";
    case AttributeType::Integer:
        return "integer";
    case AttributeType::Boolean:
        return "boolean";
    case AttributeType::Decimal:
        return "decimal";
    case AttributeType::Date:
        return "date";
    }
    return "?";
}

// Dates are kept in UTC so that comparing and storing them never depends on the time zone.
Value::Value(const QDateTime& d)
{
    if (d.isValid()) {
        v_ = d.toUTC();
    }
}

AttributeType Value::type() const
{
    switch (v_.index()) {
    case 1:
        return AttributeType::String;
    case 2:
        return AttributeType::Integer;
    case 3:
        return AttributeType::Boolean;
    case 4:
        return AttributeType::Decimal;
    default:
        return AttributeType::Date;
    }
}

QString Value::toString() const
{
    if (const auto* s = std::get_if<QString>(&v_)) {
        return *s;
    }
    if (const auto* i = std::get_if<qint32>(&v_)) {
        return QString::number(*i);
    }
    if (const auto* d = std::get_if<double>(&v_)) {
        return QString::number(*d, 'g', 17);
    }
    if (const auto* b = std::get_if<bool>(&v_)) {
        return *b ? QStringLiteral("1") : QStringLiteral("0");
    }
    if (const auto* t = std::get_if<QDateTime>(&v_)) {
        return t->toString(Qt::ISODateWithMs);
    }
    return {};
}

int Value::toInt() const
{
    if (const auto* i = std::get_if<qint32>(&v_)) {
        return *i;
    }
    if (const auto* d = std::get_if<double>(&v_)) {
        // Truncation toward zero, as a stored number read as an integer does; what an integer
        // cannot hold saturates instead of being undefined.
        if (!std::isfinite(*d)) {
            return 0;
        }
        return int(std::clamp(std::trunc(*d), double(std::numeric_limits<qint32>::min()),
                              double(std::numeric_limits<qint32>::max())));
    }
    if (const auto* b = std::get_if<bool>(&v_)) {
        return *b ? 1 : 0;
    }
    return 0;
}

bool Value::toBool() const
{
    if (const auto* b = std::get_if<bool>(&v_)) {
        return *b;
    }
    if (const auto* i = std::get_if<qint32>(&v_)) {
        return *i != 0;
    }
    if (const auto* d = std::get_if<double>(&v_)) {
        return *d != 0.0;
    }
    return false;
}

double Value::toDouble() const
{
    if (const auto* d = std::get_if<double>(&v_)) {
        return *d;
    }
    if (const auto* i = std::get_if<qint32>(&v_)) {
        return *i;
    }
    if (const auto* b = std::get_if<bool>(&v_)) {
        return *b ? 1.0 : 0.0;
    }
    return 0.0;
}

QDateTime Value::toDate() const
{
    if (const auto* t = std::get_if<QDateTime>(&v_)) {
        return *t;
    }
    return {};
}

std::optional<Value> Value::coerced(AttributeType target) const
{
    if (isNull()) {
        return *this;
    }
    const AttributeType own = type();
    if (own == target) {
        return *this;
    }
    if (!isNumber()) {
        return std::nullopt;
    }
    switch (target) {
    case AttributeType::Integer:
        return Value(toInt());
    case AttributeType::Boolean:
        return Value(toBool());
    case AttributeType::Decimal:
        return Value(toDouble());
    case AttributeType::String:
    case AttributeType::Date:
        break;
    }
    return std::nullopt;
}

}  // namespace tamo
