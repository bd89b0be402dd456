#include "einvoice/decimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <vector>

namespace tamo {

namespace {

void trimLeadingZeros(std::string& digits)
{
    const size_t first = digits.find_first_not_of('0');
    digits.erase(0, first == std::string::npos ? digits.size() - 1 : first);
}

// Both magnitudes with the same scale and the same number of digits.
int align(std::string& a, int scaleA, std::string& b, int scaleB)
{
    const int scale = std::max(scaleA, scaleB);
    a.append(size_t(scale - scaleA), '0');
    b.append(size_t(scale - scaleB), '0');
    const size_t length = std::max(a.size(), b.size());
    a.insert(0, length - a.size(), '0');
    b.insert(0, length - b.size(), '0');
    return scale;
}

std::string add(const std::string& a, const std::string& b)
{
    std::string sum(a.size() + 1, '0');
    int carry = 0;
    for (size_t i = a.size(); i-- > 0;) {
        const int digit = (a[i] - '0') + (b[i] - '0') + carry;
        sum[i + 1] = char('0' + digit % 10);
        carry = digit / 10;
    }
    sum[0] = char('0' + carry);
    return sum;
}

// a - b for a >= b.
std::string subtract(const std::string& a, const std::string& b)
{
    std::string difference(a.size(), '0');
    int borrow = 0;
    for (size_t i = a.size(); i-- > 0;) {
        int digit = (a[i] - '0') - (b[i] - '0') - borrow;
        borrow = digit < 0 ? 1 : 0;
        difference[i] = char('0' + digit + 10 * borrow);
    }
    return difference;
}

// The magnitude's digits with at least `scale` + 1 of them, so that the integer part is never
// empty.
std::string padded(std::string digits, int scale)
{
    if (digits.size() < size_t(scale) + 1) {
        digits.insert(0, size_t(scale) + 1 - digits.size(), '0');
    }
    return digits;
}

void increment(std::string& digits)
{
    size_t i = digits.size();
    while (i > 0 && digits[i - 1] == '9') {
        digits[--i] = '0';
    }
    if (i == 0) {
        digits.insert(0, 1, '1');
    } else {
        ++digits[i - 1];
    }
}

}  // namespace

std::optional<Decimal> Decimal::fromText(QStringView text)
{
    text = text.trimmed();
    Decimal d;
    if (!text.isEmpty() && (text.front() == u'-' || text.front() == u'+')) {
        d.negative_ = text.front() == u'-';
        text = text.mid(1);
    }
    std::string digits;
    int scale = -1;
    for (const QChar c : text) {
        if (c == u'.' && scale < 0) {
            scale = 0;
        } else if (c.isDigit() && c.unicode() < 128) {
            digits.push_back(char(c.unicode()));
            scale += scale >= 0 ? 1 : 0;
        } else {
            return std::nullopt;
        }
    }
    if (digits.empty()) {
        return std::nullopt;
    }
    d.digits_ = digits;
    d.scale_ = std::max(scale, 0);
    trimLeadingZeros(d.digits_);
    return d;
}

Decimal Decimal::fromDouble(double value)
{
    Decimal d;
    if (!std::isfinite(value)) {
        d.finite_ = false;
        return d;
    }
    d.negative_ = std::signbit(value);
    // The shortest text that reads back as the same double, as "d.ddde±xx".
    char text[40];
    const char* begin = text;
    const char* end =
        std::to_chars(text, text + sizeof text, std::fabs(value), std::chars_format::scientific)
            .ptr;
    const char* e = std::find(begin, end, 'e');
    std::string digits;
    std::copy_if(begin, e, std::back_inserter(digits), [](char c) { return c != '.'; });
    int exponent = 0;
    std::from_chars(e + (e[1] == '+' ? 2 : 1), end, exponent);
    const int shift = exponent - int(digits.size() - 1);
    if (shift >= 0) {
        digits.append(size_t(shift), '0');
    } else {
        d.scale_ = -shift;
    }
    d.digits_ = digits;
    trimLeadingZeros(d.digits_);
    return d;
}

Decimal Decimal::operator-() const
{
    Decimal d = *this;
    d.negative_ = !negative_;
    return d;
}

Decimal operator+(const Decimal& a, const Decimal& b)
{
    Decimal sum;
    if (!a.finite_ || !b.finite_) {
        sum.finite_ = false;
        return sum;
    }
    std::string x = a.digits_, y = b.digits_;
    sum.scale_ = align(x, a.scale_, y, b.scale_);
    if (a.negative_ == b.negative_) {
        sum.digits_ = add(x, y);
        sum.negative_ = a.negative_;
    } else if (x >= y) {
        sum.digits_ = subtract(x, y);
        sum.negative_ = a.negative_;
    } else {
        sum.digits_ = subtract(y, x);
        sum.negative_ = b.negative_;
    }
    trimLeadingZeros(sum.digits_);
    return sum;
}

Decimal operator*(const Decimal& a, const Decimal& b)
{
    Decimal product;
    if (!a.finite_ || !b.finite_) {
        product.finite_ = false;
        return product;
    }
    std::vector<int> sum(a.digits_.size() + b.digits_.size(), 0);
    for (size_t i = a.digits_.size(); i-- > 0;) {
        for (size_t j = b.digits_.size(); j-- > 0;) {
            sum[i + j + 1] += (a.digits_[i] - '0') * (b.digits_[j] - '0');
        }
    }
    for (size_t k = sum.size(); k-- > 1;) {
        sum[k - 1] += sum[k] / 10;
        sum[k] %= 10;
    }
    product.digits_.clear();
    for (const int digit : sum) {
        product.digits_.push_back(char('0' + digit));
    }
    trimLeadingZeros(product.digits_);
    product.scale_ = a.scale_ + b.scale_;
    product.negative_ = a.negative_ != b.negative_;
    return product;
}

int Decimal::sign() const
{
    if (!finite_ || digits_.find_first_not_of('0') == std::string::npos) {
        return 0;
    }
    return negative_ ? -1 : 1;
}

Decimal Decimal::roundedUp(int places) const
{
    if (!finite_ || scale_ <= places) {
        return *this;
    }
    const std::string digits = padded(digits_, scale_);
    const size_t cut = digits.size() - size_t(scale_ - places);
    Decimal d = *this;
    d.digits_ = digits.substr(0, cut);
    d.scale_ = places;
    const char first = digits[cut];
    const bool beyondHalf = digits.find_first_not_of('0', cut + 1) != std::string::npos;
    // Towards positive infinity: a negative tie keeps its magnitude.
    if (negative_ ? (first > '5' || (first == '5' && beyondHalf)) : first >= '5') {
        increment(d.digits_);
    }
    trimLeadingZeros(d.digits_);
    return d;
}

int Decimal::places() const
{
    const size_t last = digits_.find_last_not_of('0');
    const int trailingZeros = last == std::string::npos ? scale_ : int(digits_.size() - 1 - last);
    return std::max(0, scale_ - trailingZeros);
}

QString Decimal::text(int minPlaces) const
{
    if (!finite_) {
        return QStringLiteral("NaN");
    }
    const int scale = std::max(places(), minPlaces);
    std::string digits = padded(digits_, scale_);
    if (scale >= scale_) {
        digits.append(size_t(scale - scale_), '0');
    } else {
        digits.resize(digits.size() - size_t(scale_ - scale));  // only zeros go
    }
    std::string text = sign() < 0 ? "-" : "";
    text += digits.substr(0, digits.size() - size_t(scale));
    if (scale > 0) {
        text += '.' + digits.substr(digits.size() - size_t(scale));
    }
    return QString::fromLatin1(text);
}

double Decimal::toDouble() const
{
    return finite_ ? text().toDouble() : std::nan("");
}

Decimal Decimal::shifted(int places) const
{
    Decimal d = *this;
    if (places < 0) {
        d.scale_ -= places;
    } else if (d.scale_ >= places) {
        d.scale_ -= places;
    } else {
        d.digits_.append(size_t(places - d.scale_), '0');
        d.scale_ = 0;
        trimLeadingZeros(d.digits_);
    }
    return d;
}

QString Decimal::amountText() const
{
    if (!finite_) {
        return QStringLiteral("NaN");
    }
    std::string d = digits_;
    int scale = scale_;
    if (scale < 2) {
        d.append(size_t(2 - scale), '0');
        scale = 2;
    }
    d = padded(d, scale);
    if (scale > 2) {
        const size_t keep = d.size() - size_t(scale - 2);
        const char first = d[keep];
        const bool beyondHalf = d.find_first_not_of('0', keep + 1) != std::string::npos;
        const bool odd = (d[keep - 1] - '0') % 2 == 1;
        d.resize(keep);
        if (first > '5' || (first == '5' && (beyondHalf || odd))) {
            increment(d);
        }
    }
    const bool zero = d.find_first_not_of('0') == std::string::npos;
    std::string integer = d.substr(0, d.size() - 2);
    trimLeadingZeros(integer);
    const std::string text =
        (negative_ && !zero ? "-" : "") + integer + '.' + d.substr(d.size() - 2);
    return QString::fromLatin1(text);
}

}  // namespace tamo
