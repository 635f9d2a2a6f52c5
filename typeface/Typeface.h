// SPDX-License-Identifier: Zlib
// typeface/Typeface.h: the typeface of the menus and panels, drawn from strokes at any size. A library on base/ alone:
// the game paints its controls with it, the generator of the data its pictures and fonts.
// Pixels: x to the right, y downward from the top row of the surface (its last: rows lie bottom-up). Text is UTF-8;
// what has no glyph (ill-formed bytes too) shows as a box. Nothing is kept from call to call, nothing fails, and the
// same call gives the same bytes everywhere. Up to size 30 upright letters are fitted to whole pixels, beyond they are
// scaled as they are.
#pragma once
#include "base/Pixels.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace typeface
{
struct Style
{
    double Size = 14;  // pixels from one line's accents to its descenders, about; 1 to 1000
    double Weight = 1; // stroke width: 1 regular, 1.5 bold
    double Slant = 0;  // pixels to the right for each pixel up; other than 0 gives up the fit to whole pixels
};

// Pixels that may change: Left <= x < Right, Top <= y < Bottom; y downward. As large as any surface unless it says so.
struct Clip
{
    int Left = 0, Top = 0, Right = 1 << 20, Bottom = 1 << 20;
};

// Pixels from the top of a line's box down to the baseline, and from line to line. Whole up to size 30.
double Ascent(double size);
double LineHeight(double size);

// Pixels that the text advances. Up to size 30 every letter has a whole number of them; digits are always alike.
double Width(std::string_view utf8, const Style& style);
inline double Width(std::string_view utf8, double size)
{
    return Width(utf8, Style{size, 1, 0});
}

// Where a caret goes that is pointed at: the byte of the gap between two letters, or before or behind them all, that is
// nearest to x pixels from the beginning.
std::size_t GapAt(std::string_view utf8, const Style& style, double x);

// Draws one line, its box (LineHeight high) beginning at (x, y); fitted letters begin at the nearest whole pixel.
// Returns the x behind it, the same where nothing of it could be seen. Any numbers will do: what is far outside the
// surface, or no number, draws nothing.
double Draw(const base::Surface& surface, double x, double y, const Style& style, std::string_view utf8,
            base::Rgb colour, const Clip& clip = {});

// One straight piece of a stroke, `Radius` wide to each side, with round ends. Pixels, y upward from the baseline.
struct Segment
{
    double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0, Radius = 0;
};

// The strokes of a line of text whose pen starts at (0, 0): for pictures that draw letters their own way.
std::vector<Segment> Outline(std::string_view utf8, const Style& style);
}
