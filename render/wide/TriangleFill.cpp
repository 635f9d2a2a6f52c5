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

// Where a row of the screen meets the left edge, in the first half of each, and the right one, in the second.
struct Span
{
    double Place[4];         // column and depth
    std::int32_t Columns[4]; // column, rounded, and nothing
    double Texel[4];         // texel column and row, rounded
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
            const Int4 columns = place.Rounded();
            const Int4 longIsRight = (columns.HalvesSwapped() < columns).AllFirst();
            place.HalvesSwapped(longIsRight).Store(spans->Place);
            Choose(longIsRight, columns.HalvesSwapped(), columns).Store(spans->Columns);
            if constexpr (HasTexels)
                Double4::Of(Texel.At(n, Rows).Rounded()).HalvesSwapped(longIsRight).Store(spans->Texel);
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
        const double *left = four.At->Texel, *right = left + 2;
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
    Painter(const Canvas& canvas, const Paint& paint) : To(canvas), With(paint) {}

    // Rows from y on, as many as there is room for at most.
    void Draw(const Edges& edges, std::int32_t y, std::int32_t count)
    {
        edges.template Meet<Paint::HasTexels>(y, count, Spans);
        float* depth = To.Depth.Row(y);
        std::uint8_t* pixels = To.Pixels.Row(y);
        for (Span *span = Spans, *stop = Spans + count; span != stop; ++span)
        {
            span->Depth = depth;
            span->Pixels = pixels;
            Test(*span);
            depth += To.Depth.Width;
            pixels += To.Pixels.RowBytes;
        }
        PaintFound();
    }

    static constexpr std::int32_t MostRows = 32;

private:
    void Test(const Span& span)
    {
        const std::int32_t first = std::max(span.Columns[0], 0);
        const std::int32_t last = std::min(span.Columns[2], To.Screen.ScreenW - 1);
        const double leftX = span.Columns[0];
        const Double4 wide = Double4::Of(std::max(span.Columns[2] - leftX, 1.0)); // one column: the long edge's values
        const Double4 leftZ = Double4::Of(span.Place[1]), stepZ = Double4::Of(span.Place[3]) - leftZ;
        const auto test = [&](std::int32_t x, Double4 fromLeft, Int4 lanes)
        {
            if (End == Found + Room)
                PaintFound();
            const Double4 t = fromLeft / wide;
            const Float4 z = (leftZ + stepZ * t).Single();
            const Int4 mask = (z < Float4::Load(span.Depth + x)) & lanes;
            NearerFour* const four = End; // kept, if any of it is nearer
            t.Store(four->T);
            z.Store(four->Z);
            mask.Store(four->Mask);
            four->At = &span;
            four->X = x;
            End = mask.Bits() != 0 ? four + 1 : four;
        };
        const std::int32_t border = To.Screen.ScreenW - Lanes; // from here on, four columns do not lie in the row
        std::int32_t x = first;
        const Int4 each = Int4::Of(0, 1, 2, 3), end = Int4::Of(last + 1);
        Double4 fromLeft = Double4::Of(first - leftX) + Double4::Of(each);
        for (const std::int32_t stop = std::min(last, border); x <= stop; x += Lanes)
        {
            test(x, fromLeft, Int4::Of(x) + each < end);
            fromLeft = fromLeft + Double4::Of(Lanes);
        }
        if (x <= last)
            test(border, Double4::Of(border - leftX) + Double4::Of(each),
                 LanesFrom(x - border) & FirstLanes(last - border + 1));
    }

    void PaintFound()
    {
        for (const NearerFour* four = Found; four != End; ++four)
        {
            Int4 mask = Int4::Load(four->Mask);
            const Int4 pixels = With.At(*four, mask);
            StorePixels(four->At->Pixels + four->X * base::PixelBytes, pixels, mask);
            float* depth = four->At->Depth + four->X;
            Choose(mask, Float4::Load(four->Z), Float4::Load(depth)).Store(depth);
        }
        End = Found;
    }

    static constexpr std::size_t Room = 64;

    const Canvas& To;
    const Paint& With;
    Span Spans[MostRows];
    NearerFour Found[Room];
    NearerFour* End = Found;
};

// Draws the rows of the triangle from y on.
template <class Paint>
void FillFrom(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c, std::int32_t y,
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
    const std::int32_t end = std::min(last->Y, canvas.Screen.ScreenH - 1);
    Painter<Paint> painter(canvas, paint);
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

// makePaint() gives what it is painted with, if it may show at all.
template <class MakePaint>
void Fill(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
          const MakePaint& makePaint)
{
    Reach reach(canvas.Screen, a, b, c);
    if (!Shows(canvas, a, b, c, reach))
        return;
    if (canvas.Drawn != nullptr)
        canvas.Drawn->Add(reach.FirstX, reach.LastX, reach.FirstY, reach.LastY);
    FillFrom(canvas, a, b, c, reach.FirstY, makePaint());
}
}

bool MayShow(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c)
{
    if (canvas.Screen.ScreenW < Lanes)
        return true;
    Reach reach(canvas.Screen, a, b, c);
    return Shows(canvas, a, b, c, reach);
}

void FillTriFlat(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                 base::Rgb colour)
{
    if (canvas.Screen.ScreenW < Lanes)
        return FillTriFlatPlain(canvas, a, b, c, colour);
    Fill(canvas, a, b, c, [&] { return FlatPaint{Int4::Of(colour.B | colour.G << 8 | colour.R << 16)}; });
}

void FillTriTex(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                const base::ConstSurface& texture)
{
    if (canvas.Screen.ScreenW < Lanes)
        return FillTriTexPlain(canvas, a, b, c, texture);
    Fill(canvas, a, b, c, [&] { return TexelPaint(texture, a, b, c); });
}
}
