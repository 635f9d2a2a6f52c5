#include "Typeface.h"
#include "base/Numbers.h"
#include "TypefaceGlyphs.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace Typeface
{
namespace
{
constexpr double UnitsPerSize = 0.0092; // pixels of one glyph unit at size 1
constexpr double StrokeUnits = 9;       // regular stroke width
constexpr double FitLimit = 30;         // up to this size strokes are fitted to whole pixels
constexpr double ThinnestFitted = 1.1;  // pixels: thinner strokes go grey
constexpr double FittedAir = 0.2;       // pixels added on both sides of a fitted letter before rounding
constexpr double Bend = 0.62;           // handle length of the quarter bends: a little squarer than a circle (0.55)
constexpr double DotFactor = 1.18;      // dots against strokes
constexpr int MaxDepth = 4;             // glyphs within glyphs

double Whole(double value)
{
    return std::floor(value + 0.5);
}

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

template<class T, std::size_t Limit> class FixedList
{
public:
    void Add(const T& value)
    {
        if (count < Limit)
            items[count++] = value;
    }
    std::size_t Count() const { return count; }
    std::span<T> Items() { return std::span<T>(items).first(count); }
    std::span<const T> Items() const { return std::span<const T>(items).first(count); }

private:
    std::array<T, Limit> items{};
    std::size_t count = 0;
};

using Pieces = FixedList<Piece, 96>;
using Segments = FixedList<Segment, 1024>;

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

void ReadPieces(const Glyph& glyph, const Placing& place, int depth, Pieces& pieces)
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
                ReadPieces(inner, {place.Factor * factor, move.X, move.Y}, depth + 1, pieces);
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

struct Metrics
{
    double Scale;   // pixels of a glyph unit
    double Stroke;  // pixels
    double Slot;    // whole pixels that a fitted stroke is centred in
    double Bearing; // half of the stroke that the table's advances allow for
    bool Fitted;

    explicit Metrics(const Style& style)
        : Scale(std::clamp(style.Size, 1.0, 1000.0) * UnitsPerSize),
          Stroke(StrokeUnits * Scale * std::clamp(style.Weight, 0.1, 4.0)), Slot(Stroke),
          Bearing(StrokeUnits * Scale / 2), Fitted(style.Size <= FitLimit && style.Slant == 0)
    {
        if (!Fitted)
            return;
        Stroke = std::max(ThinnestFitted, Stroke);
        Slot = std::max(1.0, Whole(Stroke));
    }
};

// From glyph units to pixels along one axis: straight between anchors, plain scale outside them.
class AxisMap
{
public:
    explicit AxisMap(const Metrics& metrics) : factor(metrics.Scale), slot(metrics.Slot), bearing(metrics.Bearing) {}

    void Anchor(double unit) { units.Add(unit); }

    // Horizontal axis: the first stem's edge and every gap between stems are whole pixels, so that even rhythms stay
    // even.
    void FitStems()
    {
        Sort();
        double last = 0;
        double lastPixel = 0;
        for (const double unit : units.Items())
        {
            if (pixels.Count() == 0)
                lastPixel = slot / 2 + Whole(unit * factor - bearing + FittedAir);
            else if (unit - last >= 3)
                lastPixel += std::max(Whole((unit - last) * factor), unit - last > 12 ? slot + 1 : 1);
            pixels.Add(lastPixel);
            last = unit;
        }
    }

    // Vertical axis: every level lies on the same pixel in all glyphs; round tops stand as high as flat ones.
    void FitLevels()
    {
        Sort();
        for (const double unit : units.Items())
            pixels.Add(slot / 2 + Whole(Level(unit) * factor));
    }

    bool Empty() const { return units.Count() == 0; }
    double LastUnit() const { return units.Items().back(); }
    double LastPixel() const { return pixels.Items().back(); }

    double operator()(double unit) const
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

private:
    double factor, slot, bearing;
    FixedList<double, 96> units;
    FixedList<double, 96> pixels;

    static double Level(double unit)
    {
        for (const double zone : {0.0, 50.0, 70.0})
            if (std::abs(unit - zone) <= 1.01)
                return zone;
        return unit;
    }

    void Sort() { std::sort(units.Items().begin(), units.Items().end()); }
};

bool Same(double a, double b)
{
    return std::abs(a - b) < 1e-6;
}

// The stems and levels of a glyph: straight strokes along an axis and the extremes of its bends.
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

struct Shaped
{
    Segments Strokes;
    double Advance = 0;
};

Point At(const Piece& piece, double t)
{
    const double s = 1 - t;
    const double a = s * s * s, b = 3 * s * s * t, c = 3 * s * t * t, d = t * t * t;
    return {a * piece.A.X + b * piece.B.X + c * piece.C.X + d * piece.D.X,
            a * piece.A.Y + b * piece.B.Y + c * piece.C.Y + d * piece.D.Y};
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

void Shape(const Glyph& glyph, const Style& style, const Metrics& metrics, Shaped& shaped)
{
    Pieces pieces;
    ReadPieces(glyph, {}, 0, pieces);
    AxisMap across(metrics);
    AxisMap up(metrics);
    shaped.Advance = glyph.Advance * metrics.Scale + metrics.Stroke - 2 * metrics.Bearing;
    if (metrics.Fitted)
    {
        CollectAnchors(pieces, across, up);
        across.FitStems();
        up.FitLevels();
        shaped.Advance = FittedAdvance(glyph, metrics, across);
    }
    const double lift = metrics.Fitted ? 0 : metrics.Bearing;
    const double shift = metrics.Fitted ? 0 : metrics.Stroke / 2 - metrics.Bearing; // bold grows to both sides
    const auto place = [&](Point p)
    {
        const double y = up(p.Y) + lift;
        return Point{across(p.X) + shift + y * style.Slant, y};
    };
    const int steps = std::clamp(base::RoundEven(style.Size / 6), 5, 10);
    for (Piece piece : pieces.Items())
    {
        piece = {piece.Shape, place(piece.A), place(piece.B), place(piece.C), place(piece.D)};
        Flatten(piece, metrics.Stroke / 2, steps, shaped.Strokes);
    }
}

// Takes the next code point off the text; ill-formed bytes give U+FFFD one by one.
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

// Calls use(glyph, pen) for each letter, pen being the x where its box begins; returns the x behind the text.
template<class Use> double Walk(std::string_view text, const Style& style, double pen, Use&& use)
{
    const Metrics metrics(style);
    char32_t last = 0;
    while (!text.empty())
    {
        const char32_t code = NextCode(text);
        Shaped shaped;
        Shape(FindGlyph(code), style, metrics, shaped);
        const double kern = Kerning(last, code) * metrics.Scale;
        pen += metrics.Fitted ? std::trunc(kern + 0.2) : kern;
        use(shaped, pen);
        pen += shaped.Advance;
        last = code;
    }
    return pen;
}

// How far the point lies outside the stroke; negative inside.
double Outside(const Segment& s, double x, double y)
{
    const double dx = s.X2 - s.X1, dy = s.Y2 - s.Y1;
    const double length = dx * dx + dy * dy;
    const double t = length > 0 ? std::clamp(((x - s.X1) * dx + (y - s.Y1) * dy) / length, 0.0, 1.0) : 0;
    const double ox = x - s.X1 - t * dx, oy = y - s.Y1 - t * dy;
    return std::sqrt(ox * ox + oy * oy) - s.Radius;
}

std::uint8_t Mixed(std::uint8_t below, std::uint8_t ink, int weight)
{
    return static_cast<std::uint8_t>((below * (256 - weight) + ink * weight + 128) / 256);
}

struct Box
{
    int Left, Top, Right, Bottom;
};

// Paints a shaped glyph whose pen stands at (x, base) in surface coordinates (y downward).
void Paint(const Surface& surface, const Shaped& shaped, double x, double base, Colour colour, const Clip& clip)
{
    const auto strokes = shaped.Strokes.Items();
    if (strokes.empty())
        return;
    double left = 1e9, right = -1e9, low = 1e9, high = -1e9;
    for (const Segment& s : strokes)
    {
        left = std::min({left, s.X1 - s.Radius, s.X2 - s.Radius});
        right = std::max({right, s.X1 + s.Radius, s.X2 + s.Radius});
        low = std::min({low, s.Y1 - s.Radius, s.Y2 - s.Radius});
        high = std::max({high, s.Y1 + s.Radius, s.Y2 + s.Radius});
    }
    const auto pixel = [](double v) { return base::RoundEven(std::clamp(v, -1e6, 1e6)); };
    const Box box{std::max({pixel(x + left) - 1, clip.Left, 0}), std::max({pixel(base - high) - 1, clip.Top, 0}),
                  std::min({pixel(x + right) + 2, clip.Right, surface.Width}),
                  std::min({pixel(base - low) + 2, clip.Bottom, surface.Height})};
    for (int row = box.Top; row < box.Bottom; ++row)
        for (int column = box.Left; column < box.Right; ++column)
        {
            double outside = 1e9;
            for (const Segment& s : strokes)
                outside = std::min(outside, Outside(s, column + 0.5 - x, base - (row + 0.5)));
            const int weight = base::RoundEven(std::clamp(0.5 - outside, 0.0, 1.0) * 256);
            if (weight == 0)
                continue;
            const auto at =
                static_cast<std::size_t>(surface.Height - 1 - row) * static_cast<std::size_t>(surface.RowBytes) +
                static_cast<std::size_t>(column) * 3;
            surface.Bits[at] = Mixed(surface.Bits[at], colour.B, weight);
            surface.Bits[at + 1] = Mixed(surface.Bits[at + 1], colour.G, weight);
            surface.Bits[at + 2] = Mixed(surface.Bits[at + 2], colour.R, weight);
        }
}

bool Usable(const Surface& surface)
{
    return surface.Width > 0 && surface.Height > 0 && surface.RowBytes / 3 >= surface.Width &&
           surface.Bits.size() >= static_cast<std::size_t>(surface.Height) * static_cast<std::size_t>(surface.RowBytes);
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
    return Walk(utf8, style, 0, [](const Shaped&, double) {});
}

double Draw(const Surface& surface, double x, double y, const Style& style, std::string_view utf8, Colour colour,
            const Clip& clip)
{
    const bool fitted = Metrics(style).Fitted;
    const double left = fitted ? Whole(x) : x;
    const double base = (fitted ? Whole(y) : y) + Ascent(style.Size);
    const bool usable = Usable(surface);
    return Walk(utf8, style, left,
                [&](const Shaped& shaped, double pen)
                {
                    if (usable)
                        Paint(surface, shaped, pen, base, colour, clip);
                });
}

std::vector<Segment> Outline(std::string_view utf8, const Style& style)
{
    std::vector<Segment> out;
    Walk(utf8, style, 0,
         [&](const Shaped& shaped, double pen)
         {
             for (Segment s : shaped.Strokes.Items())
             {
                 s.X1 += pen;
                 s.X2 += pen;
                 out.push_back(s);
             }
         });
    return out;
}
}
