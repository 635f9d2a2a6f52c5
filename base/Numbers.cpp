// SPDX-License-Identifier: Zlib
#include "base/Numbers.h"

#include "base/RuntimeError.h"

#include <cmath>

namespace base
{
namespace
{
template <class Whole> Whole Checked(double value)
{
    const std::int32_t whole = RoundEven(value);
    // OutOfRange is also a true 32-bit value: only there the real number itself must be looked at.
    if (whole == OutOfRange && !(value >= -2147483648.5 && value < -2147483647.5))
        throw RuntimeError(ErrorOverflow);
    if (whole < std::numeric_limits<Whole>::min() || whole > std::numeric_limits<Whole>::max())
        throw RuntimeError(ErrorOverflow);
    return static_cast<Whole>(whole);
}
}

std::int16_t ToInt16(double value)
{
    return Checked<std::int16_t>(value);
}
std::int32_t ToInt32(double value)
{
    return Checked<std::int32_t>(value);
}
std::uint8_t ToByte(double value)
{
    return Checked<std::uint8_t>(value);
}

float ToSingle(double value)
{
    // From here on a number is nearer to 2^128 than to the largest single.
    constexpr double tooLarge = 0x1.ffffffp127;
    if (std::fabs(value) >= tooLarge)
        throw RuntimeError(ErrorOverflow);
    return static_cast<float>(value);
}
}
