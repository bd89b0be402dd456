#pragma once

#include <QString>
#include <QStringView>
#include <optional>
#include <string>

namespace tamo {

// A decimal number that keeps every digit, for the few sums an e-invoice writes. A stored double
// enters by its shortest decimal text, the way a decimal number formatter reads it, so 0.1 + 0.2
// is 0.3 here and 2.675 is a real tie.
class Decimal {
public:
    Decimal() = default;  // 0
    static Decimal fromDouble(double value);
    // The text of an XML Schema decimal ("-12.50", surrounding spaces allowed); none for any
    // other text, "NaN" among them.
    static std::optional<Decimal> fromText(QStringView text);

    Decimal operator-() const;
    friend Decimal operator+(const Decimal& a, const Decimal& b);
    friend Decimal operator-(const Decimal& a, const Decimal& b) { return a + -b; }
    friend Decimal operator*(const Decimal& a, const Decimal& b);
    // Not-a-number equals nothing, itself included.
    friend bool operator==(const Decimal& a, const Decimal& b)
    {
        return a.finite_ && (a - b).isZero();
    }
    // -1, 0 or 1; 0 for not-a-number.
    int sign() const;
    bool isZero() const { return sign() == 0 && finite_; }
    bool isFinite() const { return finite_; }
    Decimal abs() const { return sign() < 0 ? -*this : *this; }
    // Times 10^places, exactly.
    Decimal shifted(int places) const;
    // To `places` fraction digits the way the validators round: a tie goes up, towards positive
    // infinity (2.5 gives 3, -2.5 gives -2).
    Decimal roundedUp(int places) const;
    // How many fraction digits the value needs.
    int places() const;
    // Plain decimal text with at least `minPlaces` fraction digits and no rounding ("6.00",
    // "0.125"); "NaN" when not a number.
    QString text(int minPlaces = 0) const;
    double toDouble() const;

    // Two fraction digits rounded half to even, "." whatever the locale, no grouping, "-" before
    // a negative value that does not round to zero. Not-a-number (a fixed discount on an empty
    // document) stays visible as "NaN" rather than becoming a plausible amount.
    QString amountText() const;

private:
    bool negative_ = false;
    bool finite_ = true;
    std::string digits_ = "0";  // the magnitude's digits, most significant first
    int scale_ = 0;             // how many of them follow the decimal point
};

// A stored amount in the e-invoice's format.
inline QString amountText(double value)
{
    return Decimal::fromDouble(value).amountText();
}

}  // namespace tamo
