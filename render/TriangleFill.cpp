#include "render/TriangleFill.h"

#include "base/Numbers.h"
#include "render/Double2.h"

#include <algorithm>
#include <utility>

// Rounding and order of every line are those of the plain routines.
namespace render
{
namespace
{
// A value along two edges at once, the long one's first: a + (b - a) x n / d in each.
struct Slope
{
    Double2 From, Step;

    Slope(double longFrom, double longTo, double shortFrom, double shortTo)
        : From(Double2::Of(longFrom, shortFrom)), Step(Double2::Of(longTo, shortTo) - From)
    {
    }
    Double2 At(Double2 n, Double2 rows) const { return From + Step * n / rows; }
};

// Where a row meets the long edge, 0, and the short one, 1. Without initial values: tables of it are filled at once.
struct SpanEnds
{
    std::int32_t X[2]; // columns, not clamped to the screen
    double Z[2];
    double U[2], V[2]; // rounded
};

// The long edge of a triangle and the short one that faces it in some of its rows.
class Edges
{
public:
    Edges(const ScreenVertex& first, const ScreenVertex& last, const ScreenVertex& low, const ScreenVertex& high)
        : Y(Double2::Of(first.Y, low.Y)), Rows(Double2::Of(last.Y, high.Y) - Y), X(first.X, last.X, low.X, high.X),
          Z(first.Z, last.Z, low.Z, high.Z), U(first.U, last.U, low.U, high.U), V(first.V, last.V, low.V, high.V)
    {
    }

    void Find(std::int32_t y, std::int32_t count, SpanEnds* ends) const
    {
        Double2 n = Double2::Of(y) - Y;
        for (const SpanEnds* stop = ends + count; ends != stop; ++ends, n = n + Double2::Of(1.0))
        {
            X.At(n, Rows).StoreRounded(ends->X);
            Z.At(n, Rows).Store(ends->Z);
            U.At(n, Rows).Rounded().Store(ends->U);
            V.At(n, Rows).Rounded().Store(ends->V);
        }
    }

private:
    Double2 Y, Rows; // of the lower ends, and from there to the upper ones
    Slope X, Z, U, V;
};

// Two pixels at a time; texels are found where one of the two is nearer than its depth cell.
template <class Paint>
void DrawRow(const SpanEnds& ends, std::int32_t screenW, float* depth, std::uint8_t* pixels, const Paint& paint)
{
    const int left = ends.X[0] <= ends.X[1] ? 0 : 1, right = 1 - left;
    const std::int32_t first = std::max(ends.X[left], 0), last = std::min(ends.X[right], screenW - 1);
    const double leftX = ends.X[left], width = ends.X[right] - leftX;
    const Double2 wide = Double2::Of(width == 0.0 ? 1.0 : width); // one column takes the long edge's values
    const Double2 leftZ = Double2::Of(ends.Z[left]), stepZ = Double2::Of(ends.Z[right]) - leftZ;
    const Double2 leftU = Double2::Of(ends.U[left]), rightU = Double2::Of(ends.U[right]);
    const Double2 leftV = Double2::Of(ends.V[left]), rightV = Double2::Of(ends.V[right]);
    const Double2 one = Double2::Of(1.0), two = Double2::Of(2.0);
    Double2 n = Double2::Of(first - leftX, first - leftX + 1.0); // whole numbers: adding up loses nothing
    for (std::int32_t x = first; x <= last; x += 2, n = n + two)
    {
        const Double2 t = n / wide;
        float z[2];
        (leftZ + stepZ * t).StoreSingle(z);
        const bool isNearer[2] = {z[0] < depth[x], x < last && z[1] < depth[x + 1]};
        if (!isNearer[0] && !isNearer[1])
            continue;
        const Double2 rest = one - t;
        std::int32_t u[2], v[2];
        (rest * leftU + t * rightU).StoreRounded(u);
        (rest * leftV + t * rightV).StoreRounded(v);
        for (std::int32_t i = 0; i < 2; ++i)
            if (isNearer[i] && paint.Put(pixels + (x + i) * base::PixelBytes, u[i], v[i]))
                depth[x + i] = z[i];
    }
}

// Draws the rows of a triangle that are on the screen. The ends of many are found before the first is drawn, because
// drawing branches as the picture has it, and the processor then starts its divisions late.
template <class Paint>
void Fill(Screen& screen, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c, const Paint& paint)
{
    if (IsRejected(screen, a, b, c))
        return;
    const ScreenVertex *first = &a, *middle = &b, *last = &c;
    // Equal rows keep the order of the vertices.
    if (middle->Y < first->Y)
        std::swap(first, middle);
    if (last->Y < middle->Y)
    {
        std::swap(middle, last);
        if (middle->Y < first->Y)
            std::swap(first, middle);
    }
    constexpr std::int32_t mostRows = 32;
    SpanEnds ends[mostRows];
    const std::int32_t end = std::min(last->Y, screen.ScreenH - 1);
    for (std::int32_t y = std::max(first->Y, 0); y <= end;)
    {
        // The middle vertex's row belongs to the upper part, where there is one.
        const bool lower = y < middle->Y || middle->Y == last->Y;
        const ScreenVertex &low = lower ? *first : *middle, &high = lower ? *middle : *last;
        const std::int32_t stop = high.Y == last->Y ? end : std::min(high.Y - 1, end);
        const std::int32_t count = std::min(stop - y + 1, mostRows);
        Edges(*first, *last, low, high).Find(y, count, ends);
        float* depth = screen.Depth.Row(y);
        std::uint8_t* pixels = screen.Frame.Row(y);
        for (std::int32_t i = 0; i < count; ++i, depth += screen.ScreenW, pixels += screen.Frame.RowBytes)
            DrawRow(ends[i], screen.ScreenW, depth, pixels, paint);
        y += count;
    }
}

// What pixels are painted with: Put gives false where pixel and depth are to stay.
struct FlatPaint
{
    std::uint8_t Bytes[base::PixelBytes];

    explicit FlatPaint(base::Rgb colour) { base::Put(Bytes, colour); }
    bool Put(std::uint8_t* pixel, std::int32_t, std::int32_t) const
    {
        base::CopyPixel(pixel, Bytes);
        return true;
    }
};

struct TexelPaint
{
    base::ConstSurface Texture;

    bool Put(std::uint8_t* pixel, std::int32_t u, std::int32_t v) const
    {
        if (!Texture.Has(u, v))
            return false;
        const std::uint8_t* texel = Texture.At(u, v);
        if (base::IsBlack(texel))
            return false;
        base::CopyPixel(pixel, texel);
        return true;
    }
};
}

void FillTriFlat(Screen& screen, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c, base::Rgb colour)
{
    Fill(screen, a, b, c, FlatPaint(colour));
}

void FillTriTex(Screen& screen, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                const base::ConstSurface& texture)
{
    Fill(screen, a, b, c, TexelPaint{texture});
}
}
