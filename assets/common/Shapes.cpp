// SPDX-License-Identifier: Zlib
#include "assets/common/Shapes.h"

#include "base/Numbers.h"

#include <algorithm>

namespace assets
{
namespace
{
// Whole pixel range that [low, high] touches, cut to 0 .. size - 1; empty when First > Last.
struct PixelRange
{
    int First, Last;
};

PixelRange Touched(double low, double high, int size)
{
    if (!(low < size) || !(high > 0))
        return {0, -1};
    return {base::Floor(std::max(low, 0.0)), base::Floor(std::min(high, size - 1e-6))};
}

void Raise(Mask& mask, int x, int y, double value)
{
    float& cell = mask.At(x, y);
    cell = std::max(cell, static_cast<float>(value));
}
}

void CoverPolygon(int width, int height, std::span<const Point> outline, const Cover& put)
{
    if (outline.size() < 3)
        return;
    double lowX = outline[0].X, highX = lowX, lowY = outline[0].Y, highY = lowY;
    for (const Point& p : outline)
    {
        lowX = std::min(lowX, p.X);
        highX = std::max(highX, p.X);
        lowY = std::min(lowY, p.Y);
        highY = std::max(highY, p.Y);
    }
    const PixelRange rows = Touched(lowY, highY, height), columns = Touched(lowX, highX, width);
    if (rows.First > rows.Last || columns.First > columns.Last)
        return;
    // Eight lines a row, each with exact horizontal coverage.
    constexpr int Lines = 8;
    std::vector<double> cover(static_cast<std::size_t>(columns.Last - columns.First + 1));
    std::vector<double> cuts;
    for (int y = rows.First; y <= rows.Last; ++y)
    {
        std::fill(cover.begin(), cover.end(), 0.0);
        for (int line = 0; line < Lines; ++line)
        {
            const double level = y + (line + 0.5) / Lines;
            cuts.clear();
            for (std::size_t i = 0; i < outline.size(); ++i)
            {
                const Point a = outline[i], b = outline[(i + 1) % outline.size()];
                if ((a.Y <= level) != (b.Y <= level))
                    cuts.push_back(a.X + (b.X - a.X) * (level - a.Y) / (b.Y - a.Y));
            }
            std::sort(cuts.begin(), cuts.end());
            for (std::size_t i = 0; i + 1 < cuts.size(); i += 2)
            {
                const PixelRange span = Touched(cuts[i], cuts[i + 1], width);
                for (int x = span.First; x <= span.Last; ++x)
                    cover[static_cast<std::size_t>(x - columns.First)] +=
                        std::max(0.0, std::min(cuts[i + 1], x + 1.0) - std::max(cuts[i], x * 1.0)) / Lines;
            }
        }
        for (int x = columns.First; x <= columns.Last; ++x)
            if (const double c = cover[static_cast<std::size_t>(x - columns.First)]; c > 0)
                put(x, y, std::min(c, 1.0));
    }
}

void CoverDisc(int width, int height, Point centre, double radius, double softness, const Cover& put)
{
    const double soft = std::max(softness, 1.0), reach = radius + soft;
    const PixelRange rows = Touched(centre.Y - reach, centre.Y + reach, height);
    const PixelRange columns = Touched(centre.X - reach, centre.X + reach, width);
    for (int y = rows.First; y <= rows.Last; ++y)
        for (int x = columns.First; x <= columns.Last; ++x)
        {
            const double dx = x + 0.5 - centre.X, dy = y + 0.5 - centre.Y;
            const double c = Clamp01((radius - std::sqrt(dx * dx + dy * dy)) / soft + 0.5);
            if (c > 0)
                put(x, y, c);
        }
}

void CoverStroke(int width, int height, std::span<const Point> line, double thickness, bool closed, const Cover& put)
{
    if (line.empty())
        return;
    const double half = thickness / 2, reach = half + 1;
    double lowX = line[0].X, highX = lowX, lowY = line[0].Y, highY = lowY;
    for (const Point& p : line)
    {
        lowX = std::min(lowX, p.X);
        highX = std::max(highX, p.X);
        lowY = std::min(lowY, p.Y);
        highY = std::max(highY, p.Y);
    }
    const PixelRange rows = Touched(lowY - reach, highY + reach, height);
    const PixelRange columns = Touched(lowX - reach, highX + reach, width);
    if (rows.First > rows.Last || columns.First > columns.Last)
        return;
    // The nearest distance to any segment first, so that joints are not painted twice.
    Mask nearest(columns.Last - columns.First + 1, rows.Last - rows.First + 1, 1e9f);
    const std::size_t segments = line.size() == 1 ? 1 : line.size() - (closed ? 0 : 1);
    for (std::size_t i = 0; i < segments; ++i)
    {
        const Point a = line[i], b = line[(i + 1) % line.size()];
        const PixelRange r = Touched(std::min(a.Y, b.Y) - reach, std::max(a.Y, b.Y) + reach, height);
        const PixelRange c = Touched(std::min(a.X, b.X) - reach, std::max(a.X, b.X) + reach, width);
        for (int y = r.First; y <= r.Last; ++y)
            for (int x = c.First; x <= c.Last; ++x)
            {
                float& cell = nearest.At(x - columns.First, y - rows.First);
                cell = std::min(cell, static_cast<float>(SegmentDistance(a, b, {x + 0.5, y + 0.5})));
            }
    }
    // A line thinner than a pixel keeps its width and pales instead.
    const double strength = std::min(thickness, 1.0);
    for (int y = 0; y < nearest.Height; ++y)
        for (int x = 0; x < nearest.Width; ++x)
            if (const double c = Clamp01(std::max(half, 0.5) - nearest.At(x, y) + 0.5); c > 0)
                put(x + columns.First, y + rows.First, c * strength);
}

void FillPolygon(Canvas& canvas, std::span<const Point> outline, Rgb colour, double opacity)
{
    CoverPolygon(canvas.Width, canvas.Height, outline,
                 [&](int x, int y, double c) { canvas.Blend(x, y, colour, c * opacity); });
}

void FillRect(Canvas& canvas, double x, double y, double width, double height, Rgb colour, double opacity)
{
    const Point corners[] = {{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}};
    FillPolygon(canvas, corners, colour, opacity);
}

void FillDisc(Canvas& canvas, Point centre, double radius, Rgb colour, double opacity, double softness)
{
    CoverDisc(canvas.Width, canvas.Height, centre, radius, softness,
              [&](int x, int y, double c) { canvas.Blend(x, y, colour, c * opacity); });
}

void FillEllipse(Canvas& canvas, Point centre, double radiusX, double radiusY, Rgb colour, double opacity)
{
    std::vector<Point> outline;
    const int corners = std::max(16, base::RoundEven(std::max(radiusX, radiusY) * 3));
    for (int i = 0; i < corners; ++i)
    {
        const double angle = 2 * Pi * i / corners;
        outline.push_back({centre.X + radiusX * std::cos(angle), centre.Y + radiusY * std::sin(angle)});
    }
    FillPolygon(canvas, outline, colour, opacity);
}

void Stroke(Canvas& canvas, std::span<const Point> line, double thickness, Rgb colour, double opacity, bool closed)
{
    CoverStroke(canvas.Width, canvas.Height, line, thickness, closed,
                [&](int x, int y, double c) { canvas.Blend(x, y, colour, c * opacity); });
}

void FillPolygon(Mask& mask, std::span<const Point> outline, double value)
{
    CoverPolygon(mask.Width, mask.Height, outline, [&](int x, int y, double c) { Raise(mask, x, y, c * value); });
}

void FillDisc(Mask& mask, Point centre, double radius, double value, double softness)
{
    CoverDisc(mask.Width, mask.Height, centre, radius, softness,
              [&](int x, int y, double c) { Raise(mask, x, y, c * value); });
}

void Stroke(Mask& mask, std::span<const Point> line, double thickness, double value, bool closed)
{
    CoverStroke(mask.Width, mask.Height, line, thickness, closed,
                [&](int x, int y, double c) { Raise(mask, x, y, c * value); });
}
}
