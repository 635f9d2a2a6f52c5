// SPDX-License-Identifier: Zlib
#include "render/TriangleFillPlain.h"

#include "base/Numbers.h"

#include <algorithm>
#include <array>

namespace render
{
namespace
{
// One end of a span: the place on an edge at some row.
struct SpanEnd
{
    std::int32_t X = 0;
    double Z = 0;
    std::int32_t U = 0, V = 0;
};

// Whether every vertex lies on the same outer side of the screen, or all in one row: nothing to fill.
bool IsRejected(const Screen& screen, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c)
{
    return std::max({a.X, b.X, c.X}) < 0 || std::min({a.X, b.X, c.X}) >= screen.ScreenW ||
           std::max({a.Y, b.Y, c.Y}) < 0 || std::min({a.Y, b.Y, c.Y}) >= screen.ScreenH || (a.Y == b.Y && b.Y == c.Y);
}

double Between(double a, double b, double n, double d)
{
    return a + (b - a) * n / d;
}

// The edge from low to high at row y; they lie in different rows.
SpanEnd EdgeAt(const ScreenVertex& low, const ScreenVertex& high, std::int32_t y)
{
    const double n = static_cast<double>(y) - low.Y, d = static_cast<double>(high.Y) - low.Y;
    return {base::RoundEven(Between(low.X, high.X, n, d)), Between(low.Z, high.Z, n, d),
            base::RoundEven(Between(low.U, high.U, n, d)), base::RoundEven(Between(low.V, high.V, n, d))};
}

// Calls pixel(x, y, z, u, v) for every pixel of the triangle that lies on the screen.
template <class Pixel>
void ForEachPixel(const Screen& screen, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                  Pixel&& pixel)
{
    if (IsRejected(screen, a, b, c))
        return;
    std::array<ScreenVertex, 3> vertex{a, b, c};
    std::stable_sort(vertex.begin(), vertex.end(),
                     [](const ScreenVertex& p, const ScreenVertex& q) { return p.Y < q.Y; });
    const ScreenVertex &first = vertex[0], &middle = vertex[1], &last = vertex[2];
    const std::int32_t end = std::min(last.Y, screen.ScreenH - 1);
    for (std::int32_t y = std::max(first.Y, 0); y <= end; ++y)
    {
        const SpanEnd onLong = EdgeAt(first, last, y);
        // The middle vertex's row belongs to the upper part, where there is one.
        const bool lower = y < middle.Y || middle.Y == last.Y;
        const SpanEnd onShort = lower ? EdgeAt(first, middle, y) : EdgeAt(middle, last, y);
        const bool longIsLeft = onLong.X <= onShort.X;
        const SpanEnd& left = longIsLeft ? onLong : onShort;
        const SpanEnd& right = longIsLeft ? onShort : onLong;
        const double width = static_cast<double>(right.X) - left.X;
        const std::int32_t stop = std::min(right.X, screen.ScreenW - 1);
        for (std::int32_t x = std::max(left.X, 0); x <= stop; ++x)
        {
            // A span of one column shows the long edge's values.
            const double t = width == 0.0 ? 0.0 : (static_cast<double>(x) - left.X) / width;
            const auto z = static_cast<float>(left.Z + (right.Z - left.Z) * t);
            pixel(x, y, z, base::RoundEven((1.0 - t) * left.U + t * right.U),
                  base::RoundEven((1.0 - t) * left.V + t * right.V));
        }
    }
}
}

void FillTriFlatPlain(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                      base::Rgb colour)
{
    ForEachPixel(canvas.Screen, a, b, c,
                 [&](std::int32_t x, std::int32_t y, float z, std::int32_t, std::int32_t)
                 {
                     if (!(z < canvas.Depth.At(x, y)))
                         return;
                     canvas.Depth.At(x, y) = z;
                     base::Put(canvas.Pixels.Row(y) + x * base::PixelBytes, colour);
                 });
}

void FillTriTexPlain(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                     const base::ConstSurface& texture)
{
    ForEachPixel(canvas.Screen, a, b, c,
                 [&](std::int32_t x, std::int32_t y, float z, std::int32_t u, std::int32_t v)
                 {
                     if (!texture.Has(u, v) || !(z < canvas.Depth.At(x, y)))
                         return;
                     const std::uint8_t* texel = texture.At(u, v);
                     if (base::IsBlack(texel))
                         return;
                     canvas.Depth.At(x, y) = z;
                     base::CopyPixel(canvas.Pixels.Row(y) + x * base::PixelBytes, texel);
                 });
}
}
