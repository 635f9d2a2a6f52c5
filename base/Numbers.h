// SPDX-License-Identifier: Zlib
// base/Numbers.h: the one place where real numbers become whole numbers.
// Every conversion of the game is "to nearest, ties to even" unless it says floor; none is a bare cast.
#pragma once
#include <cstdint>
#include <limits>

namespace base
{
// What a conversion gives when the value does not fit or is not a number: far outside every list and picture.
inline constexpr std::int32_t OutOfRange = std::numeric_limits<std::int32_t>::min();

// Nearest whole number, ties to even. OutOfRange for NaN, infinities and what 32 bits cannot hold.
inline std::int32_t RoundEven(double value)
{
    if (!(value > -2147483648.5 && value < 2147483647.5))
        return OutOfRange;
    // Adding 1.5 * 2^52 leaves no room for a fraction: the sum itself is rounded, ties to even.
    constexpr double shift = 6755399441055744.0;
    return static_cast<std::int32_t>((value + shift) - shift);
}

// Largest whole number not above the value. OutOfRange as above.
inline std::int32_t Floor(double value)
{
    if (!(value >= -2147483648.0 && value < 2147483648.0))
        return OutOfRange;
    const auto whole = static_cast<std::int32_t>(value);
    return static_cast<double>(whole) > value ? whole - 1 : whole;
}

// A colour channel: nearest, ties to even, limited to 0 … 255 (NaN gives 0).
inline std::uint8_t RoundByte(double value)
{
    if (!(value > 0.0))
        return 0;
    return value >= 255.0 ? std::uint8_t{255} : static_cast<std::uint8_t>(RoundEven(value));
}

inline int Sign(double value)
{
    return value > 0.0 ? 1 : (value < 0.0 ? -1 : 0);
}

// Checked conversions: RuntimeError 6 "Overflow" where the rounded value does not fit.
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);
std::uint8_t ToByte(double value);
// The nearest single; NaN stays what it is.
float ToSingle(double value);

// 16-bit signed arithmetic that keeps the low 16 bits.
inline std::int16_t Wrap16(std::int32_t value)
{
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(value));
}

// The game's booleans are 16-bit: -1 is true.
using Flag = std::int16_t;
inline constexpr Flag True = -1;
inline constexpr Flag False = 0;
inline Flag ToFlag(bool value)
{
    return value ? True : False;
}
}
