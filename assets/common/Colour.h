// SPDX-License-Identifier: Zlib
// assets/common/Colour.h: the colour that the generators calculate with. Channels are display values: 0 is dark, 1
// full; light may raise them above 1 until they become bytes.
#pragma once
#include "assets/common/Numbers.h"

namespace assets
{
struct Rgb
{
    double R = 0, G = 0, B = 0;
};

inline Rgb operator+(Rgb a, Rgb b)
{
    return {a.R + b.R, a.G + b.G, a.B + b.B};
}
inline Rgb operator*(Rgb a, Rgb b)
{
    return {a.R * b.R, a.G * b.G, a.B * b.B};
}
inline Rgb operator*(Rgb a, double k)
{
    return {a.R * k, a.G * k, a.B * k};
}
// a at t = 0, b at t = 1.
inline Rgb Mix(Rgb a, Rgb b, double t)
{
    return {Lerp(a.R, b.R, t), Lerp(a.G, b.G, t), Lerp(a.B, b.B, t)};
}
// 0xRRGGBB, as one reads it in a paint program.
constexpr Rgb Hex(unsigned code)
{
    return {((code >> 16) & 255u) / 255.0, ((code >> 8) & 255u) / 255.0, (code & 255u) / 255.0};
}
}
