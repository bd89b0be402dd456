#pragma once

#include <QDateTime>
#include <QString>
#include <variant>

namespace tamo {

enum class AttributeType { String, Integer, Boolean, Decimal, Date };

const char* attributeTypeName(AttributeType type);

// One attribute value of a record, or nothing. Numbers convert among themselves the way the
// stored numeric objects do (an integer read as a decimal, a decimal as a boolean); reading a
// missing value gives empty text, 0, false or an invalid date.
class Value {
public:
    Value() = default;
    Value(const QString& s) : v_(s) {}
    Value(const char16_t* s) : v_(QString::fromUtf16(s)) {}
    Value(int i) : v_(qint32(i)) {}
    Value(bool b) : v_(b) {}
    Value(double d) : v_(d) {}
    Value(float f) : v_(double(f)) {}
    Value(const QDateTime& d);
    Value(const char*) = delete;  // say u"text" or QStringLiteral

    bool isNull() const { return std::holds_alternative<std::monostate>(v_); }
    bool isString() const { return std::holds_alternative<QString>(v_); }
    bool isDate() const { return std::holds_alternative<QDateTime>(v_); }
    bool isNumber() const { return !isNull() && !isString() && !isDate(); }
    // The stored kind; only meaningful for a value that is not null.
    AttributeType type() const;

    QString toString() const;
    int toInt() const;
    bool toBool() const;
    double toDouble() const;
    QDateTime toDate() const;

    // This value as stored in an attribute of `type`; nullopt when it cannot be (text into a
    // number, a number into a date).
    std::optional<Value> coerced(AttributeType type) const;

    friend bool operator==(const Value& a, const Value& b) { return a.v_ == b.v_; }

private:
    std::variant<std::monostate, QString, qint32, bool, double, QDateTime> v_;
};

}  // namespace tamo
