// SPDX-License-Identifier: Zlib
// typeface/Glyphs.h: the letters of the typeface as strokes, and nothing about pixels.
// Units: a hundredth or so of the size; y = 0 the baseline, 50 the small letters, 70 the capitals (centre of the
// stroke).
//
// A glyph's path is text, commands and numbers parted by blanks:
//   M x y            start a stroke            L x y    straight on
//   V x y            quarter bend that leaves upright and arrives level
//   H x y            quarter bend that leaves level and arrives upright
//   C x y x y x y    cubic curve               D x y    a dot, a little wider than the stroke
//   G code k dx dy   another glyph, its shape times k, moved by (dx, dy)
#pragma once
#include <cstdint>

namespace typeface
{
struct Glyph
{
    char32_t Code = 0;
    double Advance = 0;
    const char* Path = "";
};

// The glyph of a code point, or the box that stands for all that have none.
const Glyph& FindGlyph(char32_t code);

// The box itself: FindGlyph of an unknown code returns this address.
const Glyph& MissingGlyph();

// How much closer (negative) or wider a pair stands.
double Kerning(char32_t left, char32_t right);
}
