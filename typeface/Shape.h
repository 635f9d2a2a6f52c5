// SPDX-License-Identifier: Zlib
// typeface/Shape.h: from a glyph's path to strokes in pixels, each axis by a map of its own. The steps in their order:
//     ReadPieces      the path's lines, curves and dots, in glyph units
//     CollectAnchors  where along each axis something stands that the eye holds on to: stems and levels
//     AxisMap::Fit    the caller's choice of a pixel for each of these
//     Flatten         the pieces, placed through the maps, as straight strokes with a width
// y is upward throughout. Lists have fixed capacity, so that a letter allocates nothing; what a glyph of the table
// needs fits, more would be left out.
#pragma once
#include "typeface/Glyphs.h"
#include "typeface/Typeface.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace typeface
{
inline constexpr double StrokeUnits = 9; // regular stroke width in glyph units

// In glyph units or in pixels, as the step asks.
struct Point
{
    double X = 0, Y = 0;
};

enum class Kind
{
    Line,  // from A to D
    Curve, // cubic, from A to D with the handles B and C
    Dot    // at A
};

struct Piece
{
    Kind Shape = Kind::Line;
    Point A, B, C, D;
};

// A list without memory of its own: what is added beyond the limit is left out.
template <class T, std::size_t Limit> class FixedList
{
public:
    void Add(const T& value)
    {
        if (Used < Limit)
            Room[Used++] = value;
    }
    std::size_t Count() const { return Used; }
    std::span<T> Items() { return std::span<T>(Room).first(Used); }
    std::span<const T> Items() const { return std::span<const T>(Room).first(Used); }

private:
    std::array<T, Limit> Room{};
    std::size_t Used = 0;
};

using Pieces = FixedList<Piece, 96>;
using Segments = FixedList<Segment, 1024>;

// Takes the next code point off UTF-8 text that is not empty; ill-formed bytes give U+FFFD one by one (base/Text.h says
// which they are).
char32_t NextCode(std::string_view& text);

// The glyph's pieces, glyphs within glyphs included.
Pieces ReadPieces(const Glyph& glyph);

// From glyph units to pixels along one axis: straight between anchors, plain scale outside them. Without anchors it is
// the plain scale from 0. Add the anchors, Fit once, then map.
class AxisMap
{
public:
    explicit AxisMap(double pixelsPerUnit) : Factor(pixelsPerUnit) {}

    void Anchor(double unit) { Units.Add(unit); }

    // Takes the place of every anchor from pixel(unit), which is called in rising order, for equal ones again.
    template <class Pixel> void Fit(Pixel&& pixel)
    {
        std::sort(Units.Items().begin(), Units.Items().end());
        for (const double unit : Units.Items())
            Pixels.Add(pixel(unit));
    }

    bool Empty() const { return Units.Count() == 0; }
    // After Fit, of a map that is not empty.
    double LastUnit() const { return Units.Items().back(); }
    double LastPixel() const { return Pixels.Items().back(); }

    double operator()(double unit) const;

private:
    double Factor;
    FixedList<double, 96> Units;
    FixedList<double, 96> Pixels;
};

// The stems and levels of a glyph: straight strokes along an axis and the extremes of its bends.
void CollectAnchors(const Pieces& pieces, AxisMap& across, AxisMap& up);

// Adds the strokes of a piece given in pixels, `radius` wide to each side; `steps` straight ones a curve. Dots are a
// little wider.
void Flatten(const Piece& piece, double radius, int steps, Segments& out);
}
