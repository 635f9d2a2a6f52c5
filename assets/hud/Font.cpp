// The display shrinks its letters by taking every so-manieth row and column, so a stroke three pixels wide comes out
// one or two wide depending on where it stands. Stems and levels are therefore placed where all the scales in use
// agree.
#include "assets/hud/Font.h"

#include "assets/common/Bitmap.h"
#include "assets/common/Vectors.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "typeface/Shape.h"

#include <array>
#include <cmath>
#include <optional>
#include <string>

namespace assets::hud
{
namespace
{
constexpr int CellHeight = 30;
constexpr double Radius = 1.5; // of a stroke three pixels wide
constexpr double Base = 8.5;   // centre row of the baseline's ink
constexpr double Unit = 16.0 / 70;
constexpr int DigitWidth = 15;

struct SampledWidth
{
    double Scale;
    int Pixels; // what a three pixel stroke should become
};
constexpr std::array<SampledWidth, 5> Scales{{{0.4, 1}, {0.5, 1}, {0.6, 2}, {0.7, 2}, {0.9, 3}}};

// How many pixels, over all scales, a stroke over first … first + 2 differs from what it should become.
int Unevenness(int first)
{
    int total = 0;
    for (const SampledWidth& wanted : Scales)
    {
        int hits = 0;
        for (int i = 0; i * 2 <= first + 4; ++i)
        {
            const int sampled = base::Floor(i / wanted.Scale);
            hits += sampled >= first && sampled <= first + 2;
        }
        total += std::abs(hits - wanted.Pixels);
    }
    return total;
}

// The centre near `centre`, at or above `least`, where a stroke survives best.
double BestCentre(double centre, double least)
{
    double best = centre, bestCost = 1e9;
    for (int first = 0; first < 60; ++first)
    {
        const double here = first + 1.5;
        const double cost = std::abs(here - centre) + 0.35 * Unevenness(first);
        if (here >= least - 0.01 && cost < bestCost)
        {
            best = here;
            bestCost = cost;
        }
    }
    return best;
}

struct Bounds
{
    double Left = 1e9, Top = -1e9;
};

Bounds Extent(const typeface::Pieces& pieces)
{
    Bounds bounds;
    for (const typeface::Piece& piece : pieces.Items())
        for (const typeface::Point& p : {piece.A, piece.Shape == typeface::Kind::Dot ? piece.A : piece.D})
        {
            bounds.Left = std::min(bounds.Left, p.X);
            bounds.Top = std::max(bounds.Top, p.Y);
        }
    return bounds;
}

// The levels that every glyph shares. Capitals under an accent are lower, so that both fit the cell.
std::optional<double> SharedLevel(double unit, bool accented)
{
    const auto near = [&](double level) { return std::abs(unit - level) <= 1.01; };
    if (near(0))
        return Base;
    if (near(50))
        return 20.5;
    if (near(70))
        return accented ? 22.5 : 24.5;
    if (near(73))
        return 26.5;
    if (near(-21))
        return 2.5;
    return std::nullopt;
}

// Rising places for the anchors of one axis: `ideal` says where they would like to be, strokes that lie apart keep two
// pixels of air.
template <class Ideal> void Place(typeface::AxisMap& map, Ideal&& ideal)
{
    double last = -1e9, pixel = -1e9;
    map.Fit(
        [&](double unit)
        {
            if (unit - last >= 3)
                pixel = ideal(unit, unit - last > 12 ? pixel + 5 : pixel);
            last = unit;
            return pixel;
        });
}

bool IsDigit(char32_t code)
{
    return code >= U'0' && code <= U'9';
}

Mask Render(const typeface::Glyph& glyph)
{
    const typeface::Pieces pieces = typeface::ReadPieces(glyph);
    const Bounds bounds = Extent(pieces);
    const bool digit = IsDigit(glyph.Code);
    const bool accented = bounds.Top > 80;
    const double left = digit ? 8 : bounds.Left;
    const double unitX = digit ? 10.0 / 38 : Unit;
    typeface::AxisMap across(unitX), up(Unit);
    typeface::CollectAnchors(pieces, across, up);
    Place(across, [&](double unit, double least)
          { return glyph.Code == U'1' ? 7.5 : BestCentre(2.5 + (unit - left) * unitX, least); });
    Place(up,
          [&](double unit, double least)
          {
              if (const auto shared = SharedLevel(unit, accented))
                  return *shared;
              const double ideal = unit < 50 && bounds.Top < 60 ? Base + unit * 12.0 / 50 : Base + unit * Unit;
              return unit > 75 || unit < -8 ? ideal - (accented ? 2 : 0) : BestCentre(ideal, least);
          });

    // Without stems the map is a plain scale from 0: shift the leftmost stroke to its column.
    const double shiftX = across.Empty() ? 2.5 - left * unitX : 0, shiftY = up.Empty() ? Base : 0;
    typeface::Segments strokes;
    for (const typeface::Piece& piece : pieces.Items())
    {
        const auto move = [&](typeface::Point p) { return typeface::Point{across(p.X) + shiftX, up(p.Y) + shiftY}; };
        typeface::Flatten({piece.Shape, move(piece.A), move(piece.B), move(piece.C), move(piece.D)}, Radius, 8,
                          strokes);
    }
    double right = 0;
    for (const typeface::Segment& s : strokes.Items())
        right = std::max({right, s.X1, s.X2});
    const int blank = base::RoundEven(glyph.Advance * Unit);
    const int width = digit ? DigitWidth : strokes.Count() == 0 ? blank : base::Floor(right + Radius) + 1;
    Mask ink(std::max(width, 1), CellHeight);
    for (const typeface::Segment& s : strokes.Items())
        for (int y = 0; y < ink.Height; ++y)
            for (int x = 0; x < ink.Width; ++x)
                if (SegmentDistance({s.X1, s.Y1}, {s.X2, s.Y2}, {x + 0.5, y + 0.5}) <= s.Radius + 0.02)
                    ink.At(x, y) = 1;
    return ink;
}
}

void WriteFont(const std::string& folder)
{
    for (int code = 32; code < 256; ++code)
    {
        const std::string text = base::FromCodePage(std::string(1, static_cast<char>(code)));
        std::string_view rest = text;
        const typeface::Glyph& glyph = typeface::FindGlyph(typeface::NextCode(rest));
        if (&glyph == &typeface::MissingGlyph())
            continue;
        const Mask ink = Render(glyph);
        Canvas picture(ink.Width, ink.Height, {1, 1, 1});
        for (int y = 0; y < ink.Height; ++y)
            for (int x = 0; x < ink.Width; ++x)
                if (ink.At(x, y) > 0)
                    picture.Set(x, y, {0, 0, 0});
        WriteBmp(folder + "/" + std::to_string(code) + ".bmp", picture, Black::Keep);
    }
}
}
