// SPDX-License-Identifier: Zlib
#include "typeface/Shape.h"

#include "base/Numbers.h"
#include "base/Text.h"

#include <cmath>
#include <iterator>

namespace typeface
{
namespace
{
constexpr double Bend = 0.62;      // handle length of the quarter bends: a little squarer than a circle (0.55)
constexpr double DotFactor = 1.18; // dots against strokes
constexpr int MaxDepth = 4;        // glyphs within glyphs

// Reads the blank-parted words of a glyph's path.
class PathReader
{
public:
    explicit PathReader(const char* path) : Rest(path) {}

    // The next command letter, or 0 at the end.
    char Command()
    {
        SkipBlanks();
        return *Rest == 0 ? '\0' : *Rest++;
    }

    double Number()
    {
        SkipBlanks();
        const bool negative = *Rest == '-';
        if (negative)
            ++Rest;
        double value = 0;
        for (; *Rest >= '0' && *Rest <= '9'; ++Rest)
            value = value * 10 + (*Rest - '0');
        if (*Rest == '.')
        {
            double place = 1;
            for (++Rest; *Rest >= '0' && *Rest <= '9'; ++Rest)
                value += (*Rest - '0') / (place *= 10);
        }
        return negative ? -value : value;
    }

    Point Pair()
    {
        const double x = Number();
        return {x, Number()};
    }

private:
    const char* Rest;

    void SkipBlanks()
    {
        while (*Rest == ' ')
            ++Rest;
    }
};

// Where a glyph within a glyph stands, and how large.
struct Placing
{
    double Factor = 1, DX = 0, DY = 0;

    Point operator()(Point p) const { return {p.X * Factor + DX, p.Y * Factor + DY}; }
};

// A path as it is read: what its commands read from and add to.
struct Path
{
    PathReader In;
    Placing Place;
    int Depth;
    Pieces& Out;
    Point Pen = {}; // in the glyph's own units, not placed
};

// Adds a piece, given in the glyph's own units; the pen goes to its end.
void AddPiece(Path& path, const Piece& piece)
{
    const Placing& place = path.Place;
    path.Pen = piece.D;
    path.Out.Add({piece.Shape, place(piece.A), place(piece.B), place(piece.C), place(piece.D)});
}

void ReadMove(Path& path)
{
    path.Pen = path.In.Pair();
}

void ReadLine(Path& path)
{
    AddPiece(path, {Kind::Line, path.Pen, {}, {}, path.In.Pair()});
}

void ReadCurve(Path& path)
{
    const Point b = path.In.Pair(), c = path.In.Pair();
    AddPiece(path, {Kind::Curve, path.Pen, b, c, path.In.Pair()});
}

void ReadDot(Path& path)
{
    const Point at = path.In.Pair();
    AddPiece(path, {Kind::Dot, at, {}, {}, at});
}

// Leaves upright and arrives level.
void ReadUprightBend(Path& path)
{
    const Point from = path.Pen, to = path.In.Pair();
    const double x = (to.X - from.X) * Bend, y = (to.Y - from.Y) * Bend;
    AddPiece(path, {Kind::Curve, from, {from.X, from.Y + y}, {to.X - x, to.Y}, to});
}

// Leaves level and arrives upright.
void ReadLevelBend(Path& path)
{
    const Point from = path.Pen, to = path.In.Pair();
    const double x = (to.X - from.X) * Bend, y = (to.Y - from.Y) * Bend;
    AddPiece(path, {Kind::Curve, from, {from.X + x, from.Y}, {to.X, to.Y - y}, to});
}

void ReadPath(const Glyph& glyph, const Placing& place, int depth, Pieces& out);

// The pen stays where it is.
void ReadGlyph(Path& path)
{
    const Glyph& inner = FindGlyph(static_cast<char32_t>(base::RoundEven(path.In.Number())));
    const double factor = path.In.Number();
    const Point move = path.Place(path.In.Pair());
    if (path.Depth < MaxDepth)
        ReadPath(inner, {path.Place.Factor * factor, move.X, move.Y}, path.Depth + 1, path.Out);
}

struct PathCommand
{
    char Letter;
    void (*Read)(Path& path);
};

constexpr PathCommand PathCommands[] = {
    {'M', ReadMove},      {'L', ReadLine}, {'C', ReadCurve}, {'V', ReadUprightBend},
    {'H', ReadLevelBend}, {'D', ReadDot},  {'G', ReadGlyph},
};

// Ends at the first letter that is no command: there is none in the table of glyphs.
void ReadPath(const Glyph& glyph, const Placing& place, int depth, Pieces& out)
{
    Path path{PathReader(glyph.Path), place, depth, out};
    for (char letter = path.In.Command(); letter != 0; letter = path.In.Command())
    {
        const auto command = std::find_if(std::begin(PathCommands), std::end(PathCommands),
                                          [letter](const PathCommand& each) { return each.Letter == letter; });
        if (command == std::end(PathCommands))
            return;
        command->Read(path);
    }
}

bool Same(double a, double b)
{
    return std::abs(a - b) < 1e-6;
}

Point At(const Piece& piece, double t)
{
    const double s = 1 - t;
    const double a = s * s * s, b = 3 * s * s * t, c = 3 * s * t * t, d = t * t * t;
    return {a * piece.A.X + b * piece.B.X + c * piece.C.X + d * piece.D.X,
            a * piece.A.Y + b * piece.B.Y + c * piece.C.Y + d * piece.D.Y};
}
}

char32_t NextCode(std::string_view& text)
{
    std::size_t behind = 0;
    const char32_t point = base::NextPoint(text, behind);
    text.remove_prefix(behind);
    return point == base::IllFormed ? U'\uFFFD' : point;
}

Pieces ReadPieces(const Glyph& glyph)
{
    Pieces pieces;
    ReadPath(glyph, {}, 0, pieces);
    return pieces;
}

double AxisMap::operator()(double unit) const
{
    const auto from = Units.Items();
    const auto to = Pixels.Items();
    if (to.empty())
        return unit * Factor;
    if (unit <= from.front())
        return to.front() + (unit - from.front()) * Factor;
    for (std::size_t i = 1; i < to.size(); ++i)
        if (unit <= from[i] && from[i] > from[i - 1])
            return to[i - 1] + (to[i] - to[i - 1]) * (unit - from[i - 1]) / (from[i] - from[i - 1]);
    return to.back() + (unit - from.back()) * Factor;
}

void CollectAnchors(const Pieces& pieces, AxisMap& across, AxisMap& up)
{
    for (const Piece& piece : pieces.Items())
        switch (piece.Shape)
        {
        case Kind::Line:
            if (Same(piece.A.X, piece.D.X) && std::abs(piece.A.Y - piece.D.Y) > 15)
                across.Anchor(piece.A.X);
            if (Same(piece.A.Y, piece.D.Y))
                up.Anchor(piece.A.Y);
            break;
        case Kind::Curve:
            if (Same(piece.A.X, piece.B.X))
                across.Anchor(piece.A.X);
            if (Same(piece.C.X, piece.D.X))
                across.Anchor(piece.D.X);
            if (Same(piece.A.Y, piece.B.Y))
                up.Anchor(piece.A.Y);
            if (Same(piece.C.Y, piece.D.Y))
                up.Anchor(piece.D.Y);
            break;
        case Kind::Dot:
            across.Anchor(piece.A.X);
            up.Anchor(piece.A.Y);
            break;
        }
}

void Flatten(const Piece& piece, double radius, int steps, Segments& out)
{
    if (piece.Shape == Kind::Dot)
        out.Add({piece.A.X, piece.A.Y, piece.A.X, piece.A.Y, radius * DotFactor});
    if (piece.Shape == Kind::Line)
        out.Add({piece.A.X, piece.A.Y, piece.D.X, piece.D.Y, radius});
    if (piece.Shape != Kind::Curve)
        return;
    Point from = piece.A;
    for (int i = 1; i <= steps; ++i)
    {
        const Point to = At(piece, static_cast<double>(i) / steps);
        out.Add({from.X, from.Y, to.X, to.Y, radius});
        from = to;
    }
}
}
