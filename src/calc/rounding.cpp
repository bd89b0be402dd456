#include "calc/rounding.h"

#include <charconv>
#include <limits>

namespace tamo {

double roundedTo(double value, int places)
{
    // The largest double has 309 integer digits; the fraction adds at most a few more.
    char text[400];
    const auto printed =
        std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, places);
    if (printed.ec != std::errc()) {
        return value;
    }
    double result = 0;
    const auto read = std::from_chars(text, printed.ptr, result);
    // "nan" and "inf" read back as themselves; anything else printed here is a plain number.
    return read.ec == std::errc() ? result : std::numeric_limits<double>::quiet_NaN();
}

}  // namespace tamo
