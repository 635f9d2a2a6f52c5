// typeface/Shape.h: from a glyph's path to strokes in pixels, each axis by a map of its own.
// Lists have fixed capacity; what a glyph of the table needs fits, more would be left out.
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

struct Point
{
    double X = 0, Y = 0;
};

enum class Kind
{
    Line,
    Curve,
    Dot
};

// One piece of a glyph in glyph units. A line uses A and D, a dot A.
struct Piece
{
    Kind Shape = Kind::Line;
    Point A, B, C, D;
};

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

// Takes the next code point off UTF-8 text that is not empty; ill-formed bytes give U+FFFD one by one.
char32_t NextCode(std::string_view& text);

// The glyph's pieces, glyphs within glyphs included.
Pieces ReadPieces(const Glyph& glyph);

// From glyph units to pixels along one axis: straight between anchors, plain scale outside them.
class AxisMap
{
public:
    explicit AxisMap(double pixelsPerUnit) : Factor(pixelsPerUnit) {}

    void Anchor(double unit) { Units.Add(unit); }

    // Asks pixel(unit) for the place of every anchor, in rising order, equal ones again.
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

// Adds the strokes of a piece given in pixels; `steps` straight pieces a curve.
void Flatten(const Piece& piece, double radius, int steps, Segments& out);
}
