#pragma once

namespace tamo {

// Rounds to `places` fraction digits the way printing with "%.<places>f" and reading the text back
// does: the exact binary value decides, so 0.0725 (a little below the tie in binary) gives 0.072
// at three places, and an exactly representable tie goes to the even digit (0.125 gives 0.12).
// The amounts of every stored document were rounded like this, so the last cent depends on it.
double roundedTo(double value, int places);

inline double r2(double value)
{
    return roundedTo(value, 2);
}
inline double r3(double value)
{
    return roundedTo(value, 3);
}
inline double r4(double value)
{
    return roundedTo(value, 4);
}

}  // namespace tamo
