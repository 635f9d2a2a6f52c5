#include "render/TriangleFill.h"

#include "base/Numbers.h"
#include "render/Double2.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace Mod3D
{
namespace
{
constexpr std::int32_t Chunk = 32; // pixels of a span whose values are found before they are drawn

// An edge between two rows, ready to be asked for its place in any of them: two values at a time, each
// a + (b - a) x n / d.
struct Edge
{
    Double2 XZ, UV; // at its lower end
    Double2 StepXZ, StepUV;
    double Y = 0;
    Double2 Rows;

    Edge(const ScreenCorner& low, const ScreenCorner& high)
        : XZ(Double2::Of(low.X, low.Z)), UV(Double2::Of(low.U, low.V)), StepXZ(Double2::Of(high.X, high.Z) - XZ),
          StepUV(Double2::Of(high.U, high.V) - UV), Y(low.Y), Rows(Double2::Of(high.Y - Y))
    {
    }
    // Column, not yet rounded, and depth at row y.
    void PlaceAt(std::int32_t y, double* xz) const { (XZ + StepXZ * Double2::Of(y - Y) / Rows).Store(xz); }
    void TexelAt(std::int32_t y, std::int32_t* uv) const { (UV + StepUV * Double2::Of(y - Y) / Rows).StoreRounded(uv); }
};

// The part of a row between two edges. Left and right are the ends before they are clamped to the screen.
struct Span
{
    std::int32_t Y = 0;
    double Left = 0, Width = 0;
    double LeftZ = 0, StepZ = 0;
    std::int32_t LeftTexel[2] = {}, RightTexel[2] = {}; // U, V
    std::int32_t First = 0, Last = 0;                   // columns on the screen
};

// t of a chunk's pixels, two at a time, and what follows from it. One column takes the long edge's values: t is 0.
struct Chunks
{
    double T[Chunk];
    float Z[Chunk];
    std::int32_t U[Chunk], V[Chunk];

    void FindDepths(const Span& span, std::int32_t x, std::int32_t count)
    {
        const double width = span.Width == 0.0 ? 1.0 : span.Width;
        const Double2 wide = Double2::Of(width), leftZ = Double2::Of(span.LeftZ), stepZ = Double2::Of(span.StepZ);
        const Double2 two = Double2::Of(2.0);
        const double start = x - span.Left;
        Double2 n = Double2::Of(start, start + 1.0); // whole numbers: adding up loses nothing
        for (std::int32_t i = 0; i < count; i += 2, n = n + two)
        {
            const Double2 t = n / wide;
            t.Store(T + i);
            (leftZ + stepZ * t).StoreSingle(Z + i);
        }
    }

    void FindTexels(const Span& span, std::int32_t count)
    {
        const Double2 one = Double2::Of(1.0);
        const Double2 leftU = Double2::Of(span.LeftTexel[0]), rightU = Double2::Of(span.RightTexel[0]);
        const Double2 leftV = Double2::Of(span.LeftTexel[1]), rightV = Double2::Of(span.RightTexel[1]);
        for (std::int32_t i = 0; i < count; i += 2)
        {
            const Double2 t = Double2::Load(T + i), rest = one - t;
            (rest * leftU + t * rightU).StoreRounded(U + i);
            (rest * leftV + t * rightV).StoreRounded(V + i);
        }
    }
};

// Calls draw(span) for every row of the triangle on the screen that has columns on it. Rounding and order of every line
// are those of the plain routine.
template <bool Textured, class Draw>
void WalkSpans(const Screen& screen, const ScreenCorner& a, const ScreenCorner& b, const ScreenCorner& c, Draw&& draw)
{
    const ScreenCorner *first = &a, *middle = &b, *last = &c;
    // Equal rows keep the order of the corners.
    if (middle->Y < first->Y)
        std::swap(first, middle);
    if (last->Y < middle->Y)
    {
        std::swap(middle, last);
        if (middle->Y < first->Y)
            std::swap(first, middle);
    }
    const Edge whole(*first, *last), lower(*first, *middle), upper(*middle, *last);
    const std::int32_t end = std::min(last->Y, screen.ScreenH - 1);
    for (std::int32_t y = std::max(first->Y, 0); y <= end; ++y)
    {
        const Edge& part = y < middle->Y || middle->Y == last->Y ? lower : upper;
        double onWhole[2], onPart[2];
        whole.PlaceAt(y, onWhole);
        part.PlaceAt(y, onPart);
        const std::int32_t wholeX = base::RoundEven(onWhole[0]), partX = base::RoundEven(onPart[0]);
        const bool wholeIsLeft = wholeX <= partX;
        const std::int32_t leftX = wholeIsLeft ? wholeX : partX, rightX = wholeIsLeft ? partX : wholeX;
        Span span;
        span.First = std::max(leftX, 0);
        span.Last = std::min(rightX, screen.ScreenW - 1);
        if (span.First > span.Last)
            continue;
        span.Y = y;
        span.Left = leftX;
        span.Width = static_cast<double>(rightX) - leftX;
        span.LeftZ = wholeIsLeft ? onWhole[1] : onPart[1];
        span.StepZ = (wholeIsLeft ? onPart[1] : onWhole[1]) - span.LeftZ;
        if constexpr (Textured)
        {
            whole.TexelAt(y, wholeIsLeft ? span.LeftTexel : span.RightTexel);
            part.TexelAt(y, wholeIsLeft ? span.RightTexel : span.LeftTexel);
        }
        draw(span);
    }
}

bool AnyNearer(const float* z, const float* depth, std::int32_t count)
{
    bool any = false;
    for (std::int32_t i = 0; i < count; ++i)
        any |= z[i] < depth[i];
    return any;
}
}

void FillTriFlat(Screen& screen, const ScreenCorner& a, const ScreenCorner& b, const ScreenCorner& c, Rgb colour)
{
    if (IsRejected(screen, a, b, c))
        return;
    const std::uint8_t bytes[3] = {colour.B, colour.G, colour.R};
    Chunks chunk;
    WalkSpans<false>(screen, a, b, c,
                     [&](const Span& span)
                     {
                         std::uint8_t* frameRow = screen.Frame.Row(span.Y);
                         float* depthRow = screen.Depth.data() + static_cast<std::ptrdiff_t>(span.Y) * screen.ScreenW;
                         for (std::int32_t x = span.First; x <= span.Last; x += Chunk)
                         {
                             const std::int32_t count = std::min(Chunk, span.Last - x + 1);
                             chunk.FindDepths(span, x, count);
                             float* depth = depthRow + x;
                             std::uint8_t* pixel = frameRow + x * 3;
                             for (std::int32_t i = 0; i < count; ++i)
                                 if (chunk.Z[i] < depth[i])
                                 {
                                     depth[i] = chunk.Z[i];
                                     std::memcpy(pixel + i * 3, bytes, 3);
                                 }
                         }
                     });
}

void FillTriTex(Screen& screen, const ScreenCorner& a, const ScreenCorner& b, const ScreenCorner& c,
                const TexelField& texture)
{
    if (IsRejected(screen, a, b, c))
        return;
    Chunks chunk;
    WalkSpans<true>(screen, a, b, c,
                    [&](const Span& span)
                    {
                        std::uint8_t* frameRow = screen.Frame.Row(span.Y);
                        float* depthRow = screen.Depth.data() + static_cast<std::ptrdiff_t>(span.Y) * screen.ScreenW;
                        for (std::int32_t x = span.First; x <= span.Last; x += Chunk)
                        {
                            const std::int32_t count = std::min(Chunk, span.Last - x + 1);
                            chunk.FindDepths(span, x, count);
                            float* depth = depthRow + x;
                            if (!AnyNearer(chunk.Z, depth, count))
                                continue;
                            chunk.FindTexels(span, count);
                            std::uint8_t* pixel = frameRow + x * 3;
                            for (std::int32_t i = 0; i < count; ++i)
                            {
                                if (!(chunk.Z[i] < depth[i]) || !texture.Has(chunk.U[i], chunk.V[i]))
                                    continue;
                                const std::uint8_t* texel = texture.At(chunk.U[i], chunk.V[i]);
                                if ((texel[0] | texel[1] | texel[2]) == 0)
                                    continue;
                                depth[i] = chunk.Z[i];
                                std::memcpy(pixel + i * 3, texel, 3);
                            }
                        }
                    });
}
}
