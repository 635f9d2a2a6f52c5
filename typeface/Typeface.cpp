// SPDX-License-Identifier: Zlib
#include "typeface/Typeface.h"

#include "base/Geometry.h"
#include "base/Numbers.h"
#include "typeface/Shape.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace typeface
{
namespace
{
constexpr double UnitsPerSize = 0.0092; // pixels of one glyph unit at size 1
constexpr double FitLimit = 30;         // up to this size strokes are fitted to whole pixels
constexpr double ThinnestFitted = 1.1;  // pixels: thinner strokes go grey
constexpr double Far = 1e9;             // pixels: beyond every letter
constexpr int Opaque = 256;             // parts of full coverage
constexpr double FittedAir = 0.2;       // pixels added on both sides of a fitted letter before rounding

// Nearest whole number, halves up, so that letters lean one way; of any size, unlike the conversions to 32 bits.
double Whole(double value)
{
    return std::floor(value + 0.5);
}

// Within the limits; the lower one for what is not a number.
double Limited(double value, double low, double high)
{
    return value > low ? std::min(value, high) : low;
}

struct Metrics
{
    double Scale;   // pixels of a glyph unit
    double Stroke;  // pixels
    double Slot;    // whole pixels that a fitted stroke is centred in
    double Bearing; // half of the stroke that the table's advances allow for
    bool Fitted;

    explicit Metrics(const Style& style)
        : Scale(Limited(style.Size, 1, 1000) * UnitsPerSize),
          Stroke(StrokeUnits * Scale * Limited(style.Weight, 0.1, 4)), Slot(Stroke), Bearing(StrokeUnits * Scale / 2),
          Fitted(style.Size <= FitLimit && style.Slant == 0)
    {
        if (!Fitted)
            return;
        Stroke = std::max(ThinnestFitted, Stroke);
        Slot = std::max(1.0, Whole(Stroke));
    }
};

// The first stem's edge and every gap between stems are whole pixels, so that even rhythms stay even.
void FitStems(const Metrics& metrics, AxisMap& across)
{
    bool first = true;
    double last = 0, pixel = 0;
    across.Fit(
        [&](double unit)
        {
            if (first)
                pixel = metrics.Slot / 2 + Whole(unit * metrics.Scale - metrics.Bearing + FittedAir);
            else if (unit - last >= 3)
                pixel += std::max(Whole((unit - last) * metrics.Scale), unit - last > 12 ? metrics.Slot + 1 : 1);
            first = false;
            last = unit;
            return pixel;
        });
}

// Round tops stand as high as flat ones.
double Level(double unit)
{
    for (const double zone : {0.0, 50.0, 70.0})
        if (std::abs(unit - zone) <= 1.01)
            return zone;
    return unit;
}

// Every level lies on the same pixel in all glyphs.
void FitLevels(const Metrics& metrics, AxisMap& up)
{
    up.Fit([&](double unit) { return metrics.Slot / 2 + Whole(Level(unit) * metrics.Scale); });
}

// Digits keep their common advance; other fitted letters are as wide as their fitted stems ask for.
double FittedAdvance(const Glyph& glyph, const Metrics& metrics, const AxisMap& across)
{
    const bool digit = glyph.Code >= U'0' && glyph.Code <= U'9';
    const double bold = metrics.Stroke / 2 - metrics.Bearing;
    if (digit || across.Empty())
        return Whole(glyph.Advance * metrics.Scale + 2 * (std::max(0.0, bold) + FittedAir));
    const double bearing = (glyph.Advance - across.LastUnit()) * metrics.Scale - metrics.Bearing;
    return std::max(1.0, across.LastPixel() + metrics.Slot / 2 + Whole(bearing + FittedAir));
}

// A letter of a style. How wide it is shows before its strokes are made, which measuring can do without.
class Shaped
{
public:
    Shaped(const Glyph& glyph, const Style& style, const Metrics& metrics)
        : TheStyle(style), TheMetrics(metrics), Parts(ReadPieces(glyph)), Across(metrics.Scale), Up(metrics.Scale),
          Width(glyph.Advance * metrics.Scale + metrics.Stroke - 2 * metrics.Bearing)
    {
        if (!metrics.Fitted)
            return;
        CollectAnchors(Parts, Across, Up);
        FitStems(metrics, Across);
        FitLevels(metrics, Up);
        Width = FittedAdvance(glyph, metrics, Across);
    }

    double Advance() const { return Width; }

    Segments Strokes() const
    {
        const double lift = TheMetrics.Fitted ? 0 : TheMetrics.Bearing;
        // Bold grows to both sides.
        const double shift = TheMetrics.Fitted ? 0 : TheMetrics.Stroke / 2 - TheMetrics.Bearing;
        const auto place = [&](Point p)
        {
            const double y = Up(p.Y) + lift;
            return Point{Across(p.X) + shift + y * TheStyle.Slant, y};
        };
        const int steps = base::RoundEven(Limited(TheStyle.Size / 6, 5, 10));
        Segments strokes;
        for (Piece piece : Parts.Items())
        {
            piece = {piece.Shape, place(piece.A), place(piece.B), place(piece.C), place(piece.D)};
            Flatten(piece, TheMetrics.Stroke / 2, steps, strokes);
        }
        return strokes;
    }

private:
    const Style& TheStyle;
    const Metrics& TheMetrics;
    Pieces Parts;
    AxisMap Across, Up;
    double Width;
};

// Calls use(glyph, pen, behind) for each letter, pen being the x where its box begins, behind the byte behind it;
// returns the x behind the text.
template <class Use> double Walk(std::string_view text, const Style& style, double pen, Use&& use)
{
    const Metrics metrics(style);
    const std::size_t size = text.size();
    char32_t last = 0;
    while (!text.empty())
    {
        const char32_t code = NextCode(text);
        const Shaped shaped(FindGlyph(code), style, metrics);
        const double kern = Kerning(last, code) * metrics.Scale;
        pen += metrics.Fitted ? std::trunc(kern + 0.2) : kern;
        use(shaped, pen, size - text.size());
        pen += shaped.Advance();
        last = code;
    }
    return pen;
}

// How far the point lies outside the nearest stroke; negative inside, Far where there is none.
double Outside(std::span<const Segment> strokes, double x, double y)
{
    double outside = Far;
    for (const Segment& s : strokes)
        outside = std::min(outside, base::DistanceToSegment(x, y, s.X1, s.Y1, s.X2, s.Y2) - s.Radius);
    return outside;
}

// What strokes cover, y upward.
struct Extent
{
    double Left = Far, Right = -Far, Low = Far, High = -Far;
};

Extent ExtentOf(std::span<const Segment> strokes)
{
    Extent e;
    for (const Segment& s : strokes)
    {
        e.Left = std::min({e.Left, s.X1 - s.Radius, s.X2 - s.Radius});
        e.Right = std::max({e.Right, s.X1 + s.Radius, s.X2 + s.Radius});
        e.Low = std::min({e.Low, s.Y1 - s.Radius, s.Y2 - s.Radius});
        e.High = std::max({e.High, s.Y1 + s.Radius, s.Y2 + s.Radius});
    }
    return e;
}

void Blend(std::uint8_t* pixel, base::Rgb ink, int weight)
{
    const base::Rgb below = base::Get(pixel);
    base::Put(pixel, {base::Mix<Opaque>(below.R, ink.R, weight), base::Mix<Opaque>(below.G, ink.G, weight),
                      base::Mix<Opaque>(below.B, ink.B, weight)});
}

// Paints a shaped glyph whose pen stands at x on the baseline, in coordinates of the surface (y downward).
void Paint(const base::Surface& surface, const Shaped& shaped, double x, double baseline, base::Rgb colour,
           const Clip& clip)
{
    const Segments all = shaped.Strokes();
    const auto strokes = all.Items();
    if (strokes.empty())
        return;
    const Extent extent = ExtentOf(strokes);
    const auto pixel = [](double v) { return base::RoundEven(Limited(v, -1e6, 1e6)); };
    const std::int32_t left = std::max({pixel(x + extent.Left) - 1, clip.Left, 0});
    const std::int32_t top = std::max({pixel(baseline - extent.High) - 1, clip.Top, 0});
    const std::int32_t right = std::min({pixel(x + extent.Right) + 2, clip.Right, surface.Width});
    const std::int32_t bottom = std::min({pixel(baseline - extent.Low) + 2, clip.Bottom, surface.Height});
    for (std::int32_t row = top; row < bottom; ++row)
        for (std::int32_t column = left; column < right; ++column)
        {
            const double outside = Outside(strokes, column + 0.5 - x, baseline - (row + 0.5));
            const int weight = base::RoundEven(Limited(0.5 - outside, 0, 1) * Opaque);
            if (weight != 0)
                Blend(surface.At(column, surface.Height - 1 - row), colour, weight);
        }
}
}

double Ascent(double size)
{
    return size <= FitLimit ? Whole(size * 0.95) : size * 0.95;
}

double LineHeight(double size)
{
    return size <= FitLimit ? Whole(size * 1.2) : size * 1.2;
}

double Width(std::string_view utf8, const Style& style)
{
    return Walk(utf8, style, 0, [](const Shaped&, double, std::size_t) {});
}

std::size_t GapAt(std::string_view utf8, const Style& style, double x)
{
    std::size_t gap = 0;
    Walk(utf8, style, 0,
         [&](const Shaped& shaped, double pen, std::size_t behind)
         {
             if (x >= pen + shaped.Advance() / 2)
                 gap = behind;
         });
    return gap;
}

double Draw(const base::Surface& surface, double x, double y, const Style& style, std::string_view utf8,
            base::Rgb colour, const Clip& clip)
{
    const bool fitted = Metrics(style).Fitted;
    const double left = fitted ? Whole(x) : x;
    const double baseline = (fitted ? Whole(y) : y) + Ascent(style.Size);
    return Walk(utf8, style, left,
                [&](const Shaped& shaped, double pen, std::size_t)
                { Paint(surface, shaped, pen, baseline, colour, clip); });
}

std::vector<Segment> Outline(std::string_view utf8, const Style& style)
{
    std::vector<Segment> out;
    Walk(utf8, style, 0,
         [&](const Shaped& shaped, double pen, std::size_t)
         {
             const Segments strokes = shaped.Strokes();
             for (Segment s : strokes.Items())
             {
                 s.X1 += pen;
                 s.X2 += pen;
                 out.push_back(s);
             }
         });
    return out;
}
}
