#pragma once

#include <QString>
#include <string>

namespace tamo {

// A decimal number that keeps every digit, for the few sums an e-invoice writes. A stored double
// enters by its shortest decimal text, the way a decimal number formatter reads it, so 0.1 + 0.2
// is 0.3 here and 2.675 is a real tie.
class Decimal {
public:
    Decimal() = default;  // 0
    static Decimal fromDouble(double value);

    Decimal operator-() const;
    friend Decimal operator+(const Decimal& a, const Decimal& b);
    friend Decimal operator-(const Decimal& a, const Decimal& b) { return a + -b; }
    // Times 10^places, exactly.
    Decimal shifted(int places) const;

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
