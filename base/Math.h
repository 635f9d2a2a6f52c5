// SPDX-License-Identifier: Zlib
// base/Math.h: sine, cosine, arctangent and square root, the same bits on every platform.
// C libraries differ in the last bit; these use only additions, multiplications and divisions of doubles,
// which do not. Errors stay within about one unit in the last place for the angles of a game.
#pragma once
#include <cmath>

namespace base
{
double Sin(double radians); // NaN for an infinity, a NaN or an angle beyond 1e9
double Cos(double radians);
double Atan(double ratio); // -pi/2 … pi/2
inline double Sqrt(double value)
{
    return std::sqrt(value);
} // correctly rounded by IEEE 754
}
