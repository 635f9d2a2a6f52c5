#include "typeface/Shape.h"
#include "base/Numbers.h"
#include <cmath>

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
    explicit PathReader(const char* path) : at(path) {}

    // The next command letter, or 0 at the end.
    char Command()
    {
        SkipBlanks();
        return *at == 0 ? '\0' : *at++;
    }

    double Number()
    {
        SkipBlanks();
        const bool negative = *at == '-';
        if (negative)
            ++at;
        double value = 0;
        for (; *at >= '0' && *at <= '9'; ++at)
            value = value * 10 + (*at - '0');
        if (*at == '.')
        {
            double place = 1;
            for (++at; *at >= '0' && *at <= '9'; ++at)
                value += (*at - '0') / (place *= 10);
        }
        return negative ? -value : value;
    }

private:
    const char* at;

    void SkipBlanks()
    {
        while (*at == ' ')
            ++at;
    }
};

struct Placing
{
    double Factor = 1, DX = 0, DY = 0;

    Point operator()(Point p) const { return {p.X * Factor + DX, p.Y * Factor + DY}; }
};

void ReadInto(const Glyph& glyph, const Placing& place, int depth, Pieces& pieces)
{
    PathReader in(glyph.Path);
    Point pen;
    const auto point = [&]
    {
        const double x = in.Number();
        return Point{x, in.Number()};
    };
    for (char command = in.Command(); command != 0; command = in.Command())
    {
        if (command == 'G')
        {
            const Glyph& inner = FindGlyph(static_cast<char32_t>(base::RoundEven(in.Number())));
            const double factor = in.Number();
            const Point move = place(point());
            if (depth < MaxDepth)
                ReadInto(inner, {place.Factor * factor, move.X, move.Y}, depth + 1, pieces);
            continue;
        }
        Piece piece;
        piece.A = pen;
        if (command == 'C')
        {
            piece.Shape = Kind::Curve;
            piece.B = point();
            piece.C = point();
            piece.D = point();
        }
        else
            piece.D = point();
        if (command == 'V' || command == 'H')
        {
            const Point to = piece.D;
            const double x = (to.X - pen.X) * Bend;
            const double y = (to.Y - pen.Y) * Bend;
            piece.Shape = Kind::Curve;
            piece.B = command == 'V' ? Point{pen.X, pen.Y + y} : Point{pen.X + x, pen.Y};
            piece.C = command == 'V' ? Point{to.X - x, to.Y} : Point{to.X, to.Y - y};
        }
        pen = piece.D;
        if (command == 'M')
            continue;
        if (command == 'D')
        {
            piece.Shape = Kind::Dot;
            piece.A = piece.D;
        }
        piece.A = place(piece.A);
        piece.B = place(piece.B);
        piece.C = place(piece.C);
        piece.D = place(piece.D);
        pieces.Add(piece);
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
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(0);
    const std::size_t length = lead < 0x80         ? 1
                               : (lead >> 5) == 6  ? 2
                               : (lead >> 4) == 14 ? 3
                               : (lead >> 3) == 30 ? 4
                                                   : 0;
    char32_t code = length == 1 ? lead : lead & (0xFFU >> (length + 1));
    bool good = length > 0 && length <= text.size();
    for (std::size_t i = 1; good && i < length; ++i)
    {
        good = (byte(i) & 0xC0) == 0x80;
        code = code << 6 | (byte(i) & 0x3F);
    }
    text.remove_prefix(good ? length : 1);
    return good ? code : U'\uFFFD';
}

Pieces ReadPieces(const Glyph& glyph)
{
    Pieces pieces;
    ReadInto(glyph, {}, 0, pieces);
    return pieces;
}

double AxisMap::operator()(double unit) const
{
    const auto from = units.Items();
    const auto to = pixels.Items();
    if (to.empty())
        return unit * factor;
    if (unit <= from.front())
        return to.front() + (unit - from.front()) * factor;
    for (std::size_t i = 1; i < to.size(); ++i)
        if (unit <= from[i] && from[i] > from[i - 1])
            return to[i - 1] + (to[i] - to[i - 1]) * (unit - from[i - 1]) / (from[i] - from[i - 1]);
    return to.back() + (unit - from.back()) * factor;
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
