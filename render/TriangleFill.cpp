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

// An edge between two rows, ready to be asked for its place in any of them.
struct Edge
{
    double X = 0, Z = 0, U = 0, V = 0; // at its lower end
    double StepX = 0, StepZ = 0, StepU = 0, StepV = 0;
    double Y = 0, Rows = 0;

    Edge(const ScreenCorner& low, const ScreenCorner& high)
        : X(low.X), Z(low.Z), U(low.U), V(low.V), StepX(high.X - X), StepZ(high.Z - Z), StepU(high.U - U),
          StepV(high.V - V), Y(low.Y), Rows(high.Y - Y)
    {
    }
};

// The part of a row between two edges. Left and right are the ends before they are clamped to the screen.
struct Span
{
    std::int32_t Y = 0;
    double Left = 0, Width = 0;
    double LeftZ = 0, StepZ = 0;
    double LeftU = 0, LeftV = 0, RightU = 0, RightV = 0; // whole texels
    std::int32_t First = 0, Last = 0;                    // columns on the screen
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
        const Double2 leftU = Double2::Of(span.LeftU), rightU = Double2::Of(span.RightU);
        const Double2 leftV = Double2::Of(span.LeftV), rightV = Double2::Of(span.RightV);
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
template<bool Textured, class Draw>
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
        const double n = y - whole.Y, m = y - part.Y;
        const Edge *left = &whole, *right = &part;
        double leftN = n, rightN = m;
        std::int32_t leftX = base::RoundEven(whole.X + whole.StepX * n / whole.Rows);
        std::int32_t rightX = base::RoundEven(part.X + part.StepX * m / part.Rows);
        if (leftX > rightX)
        {
            std::swap(left, right);
            std::swap(leftN, rightN);
            std::swap(leftX, rightX);
        }
        Span span;
        span.First = std::max(leftX, 0);
        span.Last = std::min(rightX, screen.ScreenW - 1);
        if (span.First > span.Last)
            continue;
        span.Y = y;
        span.Left = leftX;
        span.Width = static_cast<double>(rightX) - leftX;
        span.LeftZ = left->Z + left->StepZ * leftN / left->Rows;
        span.StepZ = right->Z + right->StepZ * rightN / right->Rows - span.LeftZ;
        if constexpr (Textured)
        {
            span.LeftU = base::RoundEven(left->U + left->StepU * leftN / left->Rows);
            span.LeftV = base::RoundEven(left->V + left->StepV * leftN / left->Rows);
            span.RightU = base::RoundEven(right->U + right->StepU * rightN / right->Rows);
            span.RightV = base::RoundEven(right->V + right->StepV * rightN / right->Rows);
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
