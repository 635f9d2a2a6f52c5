// SPDX-License-Identifier: Zlib
// Stems and levels stand where all the scales in use take the same share of them (Sampling.h), and corners are drawn
// for that grid: the pixel in the corner falls out, its neighbours stay.
#include "assets/hud/Font.h"

#include "assets/common/Bitmap.h"
#include "assets/common/Vectors.h"
#include "assets/hud/Sampling.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "typeface/Shape.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

namespace assets::hud
{
namespace
{
constexpr int CellHeight = 30;
constexpr double Radius = 1.5;                            // of a stroke three pixels wide
constexpr double SlantRadius = 1.25;                      // slants cross the sampled rows askew and come out wider
constexpr double CornerRadius = 3.4, CornerStroke = 1.23; // thinner there, or the corner would fill up
constexpr double Unit = 16.0 / 70, WideUnit = 10.0 / 38;  // pixels across: of capitals, of small letters and digits
constexpr double UnitUp = 14.0 / 70;
constexpr double FirstStem = 2.5, DigitOneStem = 12.5; // centre columns
constexpr int DigitWidth = 16;

// The levels that every glyph shares, in glyph units and as centre rows.
struct Level
{
    double Units, Row;
};
constexpr std::array<Level, 5> Levels{{{-21, 6.5}, {0, 12.5}, {50, 22.5}, {70, 26.5}, {73, 28.5}}};
constexpr double Base = 12.5;
constexpr double LowCapital = 22.5;                      // capitals under an accent, so that both fit the cell
constexpr double CapitalMiddle = 20.5, SmallMiddle = 17; // of E and e: the bar between bottom and top
constexpr double ThinBar = 1;                            // half of it in small letters, whose openings are low

// Letters and digits of the typeface whose ends curl toward each other: in a few pixels they would close, the small l
// would be a large one. Here they end straight.
constexpr typeface::Glyph OpenForms[] = {
    {U'2', 54, "M 9 71 L 27 71 H 45 52 C 45 36 33 30 8 0 L 47 0"},
    {U'3', 54, "M 9 71 L 26 71 H 44 54 V 28 38 L 18 38 M 28 38 H 46 18 V 26 -1 L 8 -1"},
    {U'5', 54, "M 43 70 L 10 70 L 10 44 L 26 44 H 46 21 V 26 -1 L 8 -1"},
    {U'6', 54, "M 43 71 L 28 71 H 8 44 L 8 22 V 27 -1 H 46 21 V 27 43 L 8 43"},
    {U'9', 54, "M 11 -1 L 26 -1 H 46 26 L 46 48 V 27 71 H 8 49 V 27 27 L 46 27"},
    {U'C', 60, "M 54 71 L 34 71 H 9 46 L 9 24 V 34 -1 L 54 -1"},
    {U'G', 65, "M 54 71 L 34 71 H 9 46 L 9 24 V 34 -1 H 56 12 L 56 21 L 37 21"},
    {U'S', 59, "M 49 71 L 30 71 H 9 53 V 29 36 L 31 36 H 51 17 V 31 -1 L 9 -1"},
    {U'a', 51, "M 11 51 L 26 51 H 41 36 L 41 0 M 41 26 L 21 26 H 8 12.5 V 21 -1 L 41 -1"},
    {U'c', 47, "M 42 51 L 26 51 H 8 31 L 8 19 V 26 -1 L 42 -1"},
    {U'e', 53, "M 8 26 L 45 26 L 45 34 V 27 51 H 8 31 L 8 19 V 27 -1 L 43 -1"},
    {U'g', 55, "M 46 50 L 46 -2 V 26 -21 L 12 -21 M 46 31 V 27 51 H 9 31 L 9 20 V 27 -1 L 46 -1"},
    {U'l', 20, "M 9 73 L 9 0"},
    {U's', 46, "M 38 51 L 21 51 H 8 38.5 V 21 26 L 26 26 H 39 12.5 V 26 -1 L 9 -1"},
};

// A glyph's path with the open form in place of the letter it is, or is built upon.
std::string PathOf(const typeface::Glyph& glyph)
{
    const std::string path = glyph.Path;
    for (const typeface::Glyph& open : OpenForms)
    {
        const std::string upon = "G " + std::to_string(static_cast<int>(open.Code)) + " 1 0 0";
        if (glyph.Code == open.Code)
            return open.Path;
        if (path.starts_with(upon))
            return open.Path + path.substr(upon.size());
    }
    return path;
}

bool IsDigit(char32_t code)
{
    return code >= U'0' && code <= U'9';
}

bool IsSmallLetter(char32_t code)
{
    return (code >= U'a' && code <= U'z') || (code >= U'\u00DF' && code <= U'\u00FF');
}

// What the placing of a glyph's anchors depends on.
struct Frame
{
    char32_t Code;
    double Left = 1e9, Top = -1e9;                             // units
    double UnitX = Unit;                                       // pixels
    bool FromBase = false, ToSmall = false, ToCapital = false; // which shared levels it reaches
};

bool Near(double unit, double level)
{
    return std::abs(unit - level) <= 1.01;
}

Frame FrameOf(const typeface::Glyph& glyph, const typeface::Pieces& pieces)
{
    const bool digit = IsDigit(glyph.Code);
    Frame frame{.Code = glyph.Code, .UnitX = digit || IsSmallLetter(glyph.Code) ? WideUnit : Unit};
    for (const typeface::Piece& piece : pieces.Items())
        for (const typeface::Point& p : {piece.A, piece.D})
        {
            frame.Left = std::min(frame.Left, p.X);
            frame.Top = std::max(frame.Top, p.Y);
            frame.FromBase = frame.FromBase || Near(p.Y, 0);
            frame.ToSmall = frame.ToSmall || Near(p.Y, 50);
            frame.ToCapital = frame.ToCapital || Near(p.Y, 70);
        }
    if (digit)
        frame.Left = 8;
    return frame;
}

bool IsAccented(const Frame& frame)
{
    return frame.Top > 80;
}

std::optional<double> SharedLevel(double unit, const Frame& frame)
{
    for (const Level& level : Levels)
        if (Near(unit, level.Units))
            return level.Units == 70 && IsAccented(frame) ? LowCapital : level.Row;
    return std::nullopt;
}

bool HasSmallBar(const Frame& frame)
{
    return IsSmallLetter(frame.Code) && frame.FromBase && frame.ToSmall;
}

// The row of the bar between the bottom and the top of a letter, where this is one.
std::optional<double> MiddleBar(double unit, const Frame& frame)
{
    if (frame.FromBase && frame.ToCapital && !IsAccented(frame) && unit >= 22 && unit <= 47)
        return CapitalMiddle;
    if (HasSmallBar(frame) && unit >= 14 && unit <= 36)
        return SmallMiddle;
    return std::nullopt;
}

// Straight between the shared levels.
double RowOf(double unit)
{
    std::size_t above = 1;
    while (above + 2 < Levels.size() && unit > Levels[above].Units)
        ++above;
    const Level &low = Levels[above - 1], &high = Levels[above];
    return low.Row + (high.Row - low.Row) * (unit - low.Units) / (high.Units - low.Units);
}

double PlacedRow(double unit, double least, const Frame& frame)
{
    if (const auto shared = SharedLevel(unit, frame))
        return *shared;
    if (const auto middle = MiddleBar(unit, frame))
        return *middle;
    if (unit > 75 || unit < -8) // accents and tails
        return RowOf(unit) - (IsAccented(frame) ? 2 : 0);
    return BestCentre(RowOf(unit), least);
}

double PlacedColumn(double unit, double least, const Frame& frame)
{
    return frame.Code == U'1' ? DigitOneStem : BestCentre(FirstStem + (unit - frame.Left) * frame.UnitX, least);
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

using Strokes = std::vector<typeface::Segment>;

// From upright to level or the other way round: straight toward the corner where both would meet, and round it.
void AddBend(Point from, Point corner, Point to, Strokes& out)
{
    const double before = std::hypot(corner.X - from.X, corner.Y - from.Y);
    const double after = std::hypot(to.X - corner.X, to.Y - corner.Y);
    const double radius = std::min({CornerRadius, before, after});
    const auto toward = [&](Point end, double length)
    {
        const double share = length > 0 ? radius / length : 0;
        return Point{Lerp(corner.X, end.X, share), Lerp(corner.Y, end.Y, share)};
    };
    const Point first = toward(from, before), last = toward(to, after);
    out.push_back({from.X, from.Y, first.X, first.Y, Radius});
    constexpr int Steps = 6;
    Point at = first;
    for (int i = 1; i <= Steps; ++i)
    {
        const double angle = Pi / 2 * i / Steps, c = 1 - std::sin(angle), s = 1 - std::cos(angle);
        const Point next{corner.X + (first.X - corner.X) * c + (last.X - corner.X) * s,
                         corner.Y + (first.Y - corner.Y) * c + (last.Y - corner.Y) * s};
        out.push_back({at.X, at.Y, next.X, next.Y, CornerStroke});
        at = next;
    }
    out.push_back({last.X, last.Y, to.X, to.Y, Radius});
}

void AddPiece(const typeface::Piece& piece, Strokes& out)
{
    const auto same = [](double a, double b) { return std::abs(a - b) < 1e-6; };
    const Point from{piece.A.X, piece.A.Y}, to{piece.D.X, piece.D.Y};
    const bool curve = piece.Shape == typeface::Kind::Curve;
    if (curve && same(piece.A.X, piece.B.X) && same(piece.C.Y, piece.D.Y))
        return AddBend(from, {from.X, to.Y}, to, out);
    if (curve && same(piece.A.Y, piece.B.Y) && same(piece.C.X, piece.D.X))
        return AddBend(from, {to.X, from.Y}, to, out);
    const bool slant = piece.Shape == typeface::Kind::Line && !same(from.X, to.X) && !same(from.Y, to.Y);
    typeface::Segments plain;
    typeface::Flatten(piece, slant ? SlantRadius : Radius, 8, plain);
    out.insert(out.end(), plain.Items().begin(), plain.Items().end());
}

// The glyph's strokes in pixels.
Strokes PlacedStrokes(const typeface::Pieces& pieces, const Frame& frame)
{
    typeface::AxisMap across(frame.UnitX), up(UnitUp);
    typeface::CollectAnchors(pieces, across, up);
    Place(across, [&](double unit, double least) { return PlacedColumn(unit, least, frame); });
    Place(up, [&](double unit, double least) { return PlacedRow(unit, least, frame); });
    // Without stems the map is a plain scale from 0: shift the leftmost stroke to its column.
    const double shiftX = across.Empty() ? FirstStem - frame.Left * frame.UnitX : 0, shiftY = up.Empty() ? Base : 0;
    const auto move = [&](typeface::Point p) { return typeface::Point{across(p.X) + shiftX, up(p.Y) + shiftY}; };
    Strokes strokes;
    for (const typeface::Piece& piece : pieces.Items())
        AddPiece({piece.Shape, move(piece.A), move(piece.B), move(piece.C), move(piece.D)}, strokes);
    return strokes;
}

// The small middle bar is flatter than the pen: the picture is stretched upward until the pen is round again.
void DrawStroke(const typeface::Segment& s, bool small, Mask& ink)
{
    const bool bar = small && std::abs(s.Y1 - SmallMiddle) < 1 && std::abs(s.Y2 - SmallMiddle) < 1;
    const double stretch = bar ? std::max(1.0, s.Radius / ThinBar) : 1;
    for (int y = 0; y < ink.Height; ++y)
        for (int x = 0; x < ink.Width; ++x)
            if (SegmentDistance({s.X1, s.Y1 * stretch}, {s.X2, s.Y2 * stretch}, {x + 0.5, (y + 0.5) * stretch}) <=
                s.Radius + 0.02)
                ink.At(x, y) = 1;
}

Mask Render(const typeface::Glyph& glyph)
{
    const std::string path = PathOf(glyph);
    const typeface::Pieces pieces = typeface::ReadPieces({glyph.Code, glyph.Advance, path.c_str()});
    const Frame frame = FrameOf(glyph, pieces);
    const Strokes strokes = PlacedStrokes(pieces, frame);
    double right = 0;
    for (const typeface::Segment& s : strokes)
        right = std::max({right, s.X1, s.X2});
    const int blank = base::RoundEven(glyph.Advance * Unit);
    const int width = IsDigit(glyph.Code) ? DigitWidth : strokes.empty() ? blank : base::Floor(right + Radius) + 1;
    Mask ink(std::max(width, 1), CellHeight);
    for (const typeface::Segment& s : strokes)
        DrawStroke(s, HasSmallBar(frame), ink);
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
