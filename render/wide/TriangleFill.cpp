// SPDX-License-Identifier: Zlib
// Four pixels at a time. Rounding and order of every line are those of render/TriangleFillPlain.cpp.
#include "render/TriangleFillPlain.h"

#include "render/wide/Pixels4.h"
#include "render/wide/Reach.h"
#include "render/wide/Routines.h"

#include <algorithm>

namespace render::VELKAR_WIDE
{
namespace
{
// A vertex: column, depth, texel column and row.
Double4 Values(const ScreenVertex& at)
{
    return Double4::Of(at.X, at.Z, at.U, at.V);
}

// Two values along the long edge of a triangle, and the same two along the short one that faces it.
struct Slopes
{
    Double4 From, Step;

    Double4 At(Double4 n, Double4 rows) const { return From + Step * n / rows; }
};

// Where a row of the screen meets the long edge and the short one.
struct Span
{
    double Place[4];         // column and depth, twice
    std::int32_t Columns[4]; // the columns rounded, at 0 and 2
    double Texel[4];         // texel column and row, twice, rounded
    std::int32_t Left;       // 0 where the long edge is the left one, else 2
    float* Depth;            // of the row
    std::uint8_t* Pixels;
};

class Edges
{
public:
    // The ends of an edge lie in different rows.
    Edges(const ScreenVertex& first, const ScreenVertex& last, const ScreenVertex& low, const ScreenVertex& high)
        : Y(Both(first.Y, low.Y)),
          Rows(Both(static_cast<double>(last.Y) - first.Y, static_cast<double>(high.Y) - low.Y))
    {
        const Double4 from = Values(first), lowFrom = Values(low);
        const Double4 step = Values(last) - from, lowStep = Values(high) - lowFrom;
        Place = {FirstHalves(from, lowFrom), FirstHalves(step, lowStep)};
        Texel = {LastHalves(from, lowFrom), LastHalves(step, lowStep)};
    }

    template <bool HasTexels> void Meet(std::int32_t y, std::int32_t count, Span* spans) const
    {
        Double4 n = Double4::Of(y) - Y;
        for (Span* stop = spans + count; spans != stop; ++spans, n = n + Double4::Of(1.0))
        {
            const Double4 place = Place.At(n, Rows);
            place.Store(spans->Place);
            place.Rounded().Store(spans->Columns);
            if constexpr (HasTexels)
                Double4::Of(Texel.At(n, Rows).Rounded()).Store(spans->Texel);
        }
    }

private:
    static Double4 Both(double longs, double shorts) { return Double4::Of(longs, longs, shorts, shorts); }

    Double4 Y, Rows; // of the lower ends, and from there to the upper ones
    Slopes Place, Texel;
};

// Four pixels of a row of which the mask's are nearer than what is there.
struct NearerFour
{
    double T[Lanes]; // 0 at the left end of the span to 1 at the right
    float Z[Lanes];
    std::int32_t Mask[Lanes];
    const Span* At;
    std::ptrdiff_t X; // of the first
};

// What pixels are painted with: At gives four, and takes those lanes out of the mask that are to stay.
struct FlatPaint
{
    static constexpr bool HasTexels = false;
    Int4 Pixels;

    Int4 At(const NearerFour&, Int4&) const { return Pixels; }
};

class TexelPaint
{
public:
    static constexpr bool HasTexels = true;

    TexelPaint(const base::ConstSurface& texture, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c)
        : Texture(texture), RowBytes(Int4::Of(static_cast<std::int32_t>(texture.RowBytes)))
    {
        const double lastU = texture.Width - 1, lastV = texture.Height - 1;
        bool areInside = true; // false where a place is no number
        for (const ScreenVertex* at : {&a, &b, &c})
            areInside = areInside && at->U >= 0.0 && at->U <= lastU && at->V >= 0.0 && at->V <= lastV;
        // The last texel of a picture has no fourth byte where rows are not padded.
        AreFourBytes = areInside && (texture.RowBytes > texture.Width * base::PixelBytes ||
                                     std::max({a.U, b.U, c.U}) < lastU || std::max({a.V, b.V, c.V}) < lastV);
    }

    Int4 At(const NearerFour& four, Int4& mask) const
    {
        const double *left = four.At->Texel + four.At->Left, *right = four.At->Texel + (2 - four.At->Left);
        const Double4 t = Double4::Load(four.T), rest = Double4::Of(1.0) - t;
        const Int4 u = (rest * Double4::Of(left[0]) + t * Double4::Of(right[0])).Rounded();
        const Int4 v = (rest * Double4::Of(left[1]) + t * Double4::Of(right[1])).Rounded();
        const Int4 offsets = v * RowBytes + (u + u + u);
        const Int4 texels = AreFourBytes ? GatherOf4(Texture.Bytes, offsets & mask) : Inside(u, v, offsets, mask);
        mask = Without(mask, texels == Int4::Of(0));
        return texels;
    }

private:
    Int4 Inside(Int4 u, Int4 v, Int4 offsets, Int4& mask) const
    {
        const Int4 none = Int4::Of(-1);
        mask = mask & (none < u) & (u < Int4::Of(Texture.Width)) & (none < v) & (v < Int4::Of(Texture.Height));
        return Gather(Texture.Bytes, offsets, mask);
    }

    base::ConstSurface Texture;
    Int4 RowBytes;
    bool AreFourBytes; // all texels of the triangle are the picture's, and may be read as four bytes
};

// Three steps over many rows at once instead of all three row by row: where the spans end, which of their pixels are
// nearer, and the painting. What is found decides where the processor goes on; so it need not wait for each find before
// it begins the next.
template <class Paint> class Painter
{
public:
    Painter(Screen& screen, const Paint& paint) : To(screen), With(paint) {}

    // Rows from y on, as many as there is room for at most.
    void Draw(const Edges& edges, std::int32_t y, std::int32_t count)
    {
        edges.template Meet<Paint::HasTexels>(y, count, Spans);
        for (std::int32_t i = 0; i < count; ++i)
        {
            Spans[i].Depth = To.Depth.Row(y + i);
            Spans[i].Pixels = To.Frame.Row(y + i);
            Test(Spans[i]);
        }
        PaintFound();
    }

    static constexpr std::int32_t MostRows = 32;

private:
    void Test(Span& span)
    {
        const int left = span.Columns[0] <= span.Columns[2] ? 0 : 2, right = 2 - left;
        span.Left = left;
        const std::int32_t first = std::max(span.Columns[left], 0);
        const std::int32_t last = std::min(span.Columns[right], To.ScreenW - 1);
        const double leftX = span.Columns[left], columns = span.Columns[right] - leftX;
        const Double4 wide = Double4::Of(columns == 0.0 ? 1.0 : columns); // one column takes the long edge's values
        const Double4 leftZ = Double4::Of(span.Place[left + 1]), stepZ = Double4::Of(span.Place[right + 1]) - leftZ;
        const auto test = [&](std::int32_t x, Int4 lanes)
        {
            if (Count == Room)
                PaintFound();
            NearerFour& four = Found[Count];
            const Double4 t = (Double4::Of(x - leftX) + Double4::Of(0.0, 1.0, 2.0, 3.0)) / wide;
            const Float4 z = (leftZ + stepZ * t).Single();
            const Int4 mask = (z < Float4::Load(span.Depth + x)) & lanes;
            t.Store(four.T);
            z.Store(four.Z);
            mask.Store(four.Mask);
            four.At = &span;
            four.X = x;
            Count += mask.Bits() != 0;
        };
        const std::int32_t border = To.ScreenW - Lanes; // from here on, four columns do not lie in the row
        std::int32_t x = first;
        for (; x <= std::min(last, border); x += Lanes)
            test(x, FirstLanes(last - x + 1));
        if (x <= last)
            test(border, LanesFrom(x - border) & FirstLanes(last - border + 1));
    }

    void PaintFound()
    {
        for (const NearerFour *four = Found, *end = Found + Count; four != end; ++four)
        {
            Int4 mask = Int4::Load(four->Mask);
            const Int4 pixels = With.At(*four, mask);
            StorePixels(four->At->Pixels + four->X * base::PixelBytes, pixels, mask);
            float* depth = four->At->Depth + four->X;
            Choose(mask, Float4::Load(four->Z), Float4::Load(depth)).Store(depth);
        }
        Count = 0;
    }

    static constexpr std::size_t Room = 64;

    Screen& To;
    const Paint& With;
    Span Spans[MostRows];
    std::size_t Count = 0;
    NearerFour Found[Room];
};

// Draws the rows of the triangle from y on.
template <class Paint>
void FillFrom(Screen& screen, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c, std::int32_t y,
              const Paint& paint)
{
    const ScreenVertex *first = &a, *middle = &b, *last = &c;
    // Equal rows keep the order of the vertices. Without branches: which way they go is anybody's guess.
    const auto order = [](const ScreenVertex*& low, const ScreenVertex*& high)
    {
        const ScreenVertex *p = low, *q = high;
        const bool swaps = q->Y < p->Y;
        low = swaps ? q : p;
        high = swaps ? p : q;
    };
    order(first, middle);
    order(middle, last);
    order(first, middle);
    const std::int32_t end = std::min(last->Y, screen.ScreenH - 1);
    Painter<Paint> painter(screen, paint);
    while (y <= end)
    {
        // The middle vertex's row belongs to the upper part, where there is one.
        const bool lower = y < middle->Y || middle->Y == last->Y;
        const ScreenVertex &low = lower ? *first : *middle, &high = lower ? *middle : *last;
        const std::int32_t stop = high.Y == last->Y ? end : std::min(high.Y - 1, end);
        const Edges edges(*first, *last, low, high);
        for (; y <= stop; y += Painter<Paint>::MostRows)
            painter.Draw(edges, y, std::min(stop - y + 1, Painter<Paint>::MostRows));
        y = stop + 1;
    }
}
}

bool MayShow(const Screen& screen, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c)
{
    return screen.ScreenW < Lanes || RowToDrawFrom(screen, a, b, c) < screen.ScreenH;
}

void FillTriFlat(Screen& screen, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c, base::Rgb colour)
{
    if (screen.ScreenW < Lanes)
        return FillTriFlatPlain(screen, a, b, c, colour);
    const std::int32_t row = RowToDrawFrom(screen, a, b, c);
    if (row < screen.ScreenH)
        FillFrom(screen, a, b, c, row, FlatPaint{Int4::Of(colour.B | colour.G << 8 | colour.R << 16)});
}

void FillTriTex(Screen& screen, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                const base::ConstSurface& texture)
{
    if (screen.ScreenW < Lanes)
        return FillTriTexPlain(screen, a, b, c, texture);
    const std::int32_t row = RowToDrawFrom(screen, a, b, c);
    if (row < screen.ScreenH)
        FillFrom(screen, a, b, c, row, TexelPaint(texture, a, b, c));
}
}
