#include "render/Ground.h"

#include "base/Math.h"
#include "base/Numbers.h"
#include "render/Blend.h"
#include "render/Double2.h"
#include "render/GroundPlain.h"
#include "render/GroundThreads.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace render
{
namespace
{
constexpr std::int32_t Chunk = 64; // columns whose texels are found before they are fetched

// A run of texels of one row.
struct TexelRun
{
    std::int32_t U[Chunk], V[Chunk];
};

struct RowSpan
{
    std::int32_t Y = 0;
    std::int32_t First = 0, Count = 0; // columns, Count at most Chunk
    std::uint8_t* Pixels = nullptr;    // of the first column
};

// Load3 where a fourth byte may be read as well.
std::uint32_t Load3Of4(const std::uint8_t* from)
{
    if constexpr (std::endian::native != std::endian::little)
        return Load3(from);
    std::uint32_t bytes = 0;
    std::memcpy(&bytes, from, 4);
    return bytes;
}

// Two columns at a time; each line is one of TexelPlain. CamX - SinYaw x RowDist and its like are the row's own.
void FindTexels(const GroundView& view, const RowSpan& span, TexelRun& run)
{
    const Double2 slant = Double2::Of(view.RowSlant[span.Y]);
    const Double2 startX = Double2::Of(view.CamX - view.SinYaw * view.RowDist[span.Y]);
    const Double2 startZ = Double2::Of(view.CosYaw * view.RowDist[span.Y] + view.CamZ);
    const Double2 cosYaw = Double2::Of(view.CosYaw), sinYaw = Double2::Of(view.SinYaw);
    const Double2 scale = Double2::Of(view.GroundScale);
    for (std::int32_t i = 0; i < span.Count; i += 2)
    {
        const Double2 lateral = (Double2::Load(view.ColumnSlope + span.First + i) * slant).Single();
        ((startX + cosYaw * lateral) * scale).StoreRounded(run.U + i);
        ((startZ + sinYaw * lateral) * scale).StoreRounded(run.V + i);
    }
}

// The texels that are at least `margin` from every side of the picture. One comparison an axis, as negative numbers are
// the largest of the unsigned ones.
class Interior
{
public:
    Interior(const base::ConstSurface& picture, std::int32_t margin)
        : Least(static_cast<std::uint32_t>(margin)),
          Columns(static_cast<std::uint32_t>(std::max(picture.Width - 2 * margin, 0))),
          Rows(static_cast<std::uint32_t>(std::max(picture.Height - 2 * margin, 0)))
    {
    }
    bool Has(std::int32_t u, std::int32_t v) const
    {
        return static_cast<std::uint32_t>(u) - Least < Columns && static_cast<std::uint32_t>(v) - Least < Rows;
    }

private:
    std::uint32_t Least, Columns, Rows;
};

void CopySky(const GroundView& view, const Band& band, std::int32_t y)
{
    const std::int32_t row = SkyRow(view, y);
    std::uint8_t* pixel = view.Frame.At(band.First, y);
    if (view.Sky.Width < SkyWidth || row < 0 || row >= view.Sky.Height)
    {
        for (std::int32_t x = band.First; x <= band.Last; ++x, pixel += base::PixelBytes)
            base::CopyPixel(pixel, SkyPixel(view, x, row));
        return;
    }
    for (std::int32_t x = band.First; x <= band.Last;)
    {
        const std::int32_t column = (view.SkyOffset + x) % SkyWidth;
        const std::int32_t count = std::min(SkyWidth - column, band.Last - x + 1);
        std::memcpy(pixel, view.Sky.At(column, row), static_cast<std::size_t>(count) * base::PixelBytes);
        x += count;
        pixel += count * base::PixelBytes;
    }
}

// Calls ground(u, v, x, pixel) for every ground pixel of the span and copies the sky into the others.
template <class GroundPixel>
void FillSpan(const GroundView& view, const RowSpan& span, std::int32_t margin, GroundPixel&& ground)
{
    TexelRun run;
    FindTexels(view, span, run);
    const Interior interior(view.Sharp, margin);
    std::uint8_t* pixel = span.Pixels;
    // Along a row u and v only grow or only shrink: between two texels inside there is none outside.
    const std::int32_t last = span.Count - 1;
    if (interior.Has(run.U[0], run.V[0]) && interior.Has(run.U[last], run.V[last]))
    {
        for (std::int32_t i = 0; i < span.Count; ++i, pixel += base::PixelBytes)
            ground(run.U[i], run.V[i], span.First + i, pixel);
        return;
    }
    const std::int32_t skyRow = SkyRow(view, span.Y);
    for (std::int32_t i = 0; i < span.Count; ++i, pixel += base::PixelBytes)
        if (interior.Has(run.U[i], run.V[i]))
            ground(run.U[i], run.V[i], span.First + i, pixel);
        else
            base::CopyPixel(pixel, SkyPixel(view, span.First + i, skyRow));
}

// What the three filters share: row by row, because rows lie together in memory. fill draws one span of a ground row.
template <class Fill> void DrawRows(const GroundView& view, const Band& band, StopCheck& check, Fill&& fill)
{
    if (band.Last < band.First)
        return;
    for (std::int32_t y = 0; y < view.Frame.Height; ++y)
    {
        if (check.MustStop())
            return;
        float* depth = view.Depth->Row(y);
        std::fill(depth + band.First, depth + band.Last + 1, FarDepth);
        if (IsSkyRow(view, y))
        {
            CopySky(view, band, y);
            continue;
        }
        for (std::int32_t x = band.First; x <= band.Last; x += Chunk)
            fill(RowSpan{y, x, std::min(Chunk, band.Last - x + 1), view.Frame.At(x, y)});
    }
}

// Texel + k x step rounds to the texel + the rounded k x step, whatever the texel, unless the step ends exactly between
// two texels; then the parity of the texel decides, and the column is left to the plain routine.
bool IsTie(double step)
{
    return step - std::floor(step) == 0.5;
}

void FindTaps(const GroundView& view, const Band& band)
{
    for (std::int32_t x = band.First; x <= band.Last; ++x)
    {
        const double a = base::Atan(view.ColumnSlope[x]) + view.Yaw;
        const double du = static_cast<float>(view.SinYaw * base::Sin(a));
        const double dv = static_cast<float>(view.CosYaw * base::Cos(a));
        ColumnTaps& taps = view.Taps[x];
        taps.HasTies = !(du >= -1.0 && du <= 1.0 && dv >= -1.0 && dv <= 1.0);
        for (std::int32_t k = 1; k <= MostTaps && !taps.HasTies; ++k)
        {
            const std::int32_t u = base::RoundEven(k * du), v = base::RoundEven(k * dv);
            taps.Offset[k - 1] = static_cast<std::int32_t>(v * view.Sharp.RowBytes) + u * base::PixelBytes;
            taps.HasTies = IsTie(k * du) || IsTie(k * dv);
        }
    }
}

// A texel and its neighbours on both sides, n of them, weighted and divided by the sum of the weights. The first
// neighbours weigh sideWeight, the next ones each one less.
struct Tent
{
    std::int32_t n = 0;
    std::uint32_t MiddleWeight = 0, SideWeight = 0;
    std::uint32_t Divisor = 1;
};

// Blue and red are summed in the two halves of one word, which suffice: no divisor is above 225. The division is a
// multiplication by 2^32 / divisor, exact for these sums. Four bytes are read for three, which the margin allows.
void FillTent(const GroundView& view, const RowSpan& span, const Tent& tent)
{
    const std::uint64_t reciprocal = (std::uint64_t{1} << 32) / tent.Divisor + 1;
    const auto mean = [reciprocal](std::uint32_t sum)
    { return static_cast<std::uint32_t>((sum & 0xFFFF) * reciprocal >> 32); };
    constexpr std::uint32_t blueRed = 0xFF00FF, green = 0xFF;
    FillSpan(view, span, TapMargin,
             [&](std::int32_t u, std::int32_t v, std::int32_t x, std::uint8_t* pixel)
             {
                 const ColumnTaps& taps = view.Taps[x];
                 if (taps.HasTies)
                     return GroundPixelPlain(view, x, span.Y, pixel);
                 const std::uint8_t* centre = view.Sharp.At(u, v);
                 const std::uint32_t middle = Load3Of4(centre);
                 std::uint32_t sumBlueRed = (middle & blueRed) * tent.MiddleWeight;
                 std::uint32_t sumGreen = (middle >> 8 & green) * tent.MiddleWeight;
                 std::uint32_t weight = tent.SideWeight;
                 for (std::int32_t k = 0; k < tent.n; ++k, --weight)
                 {
                     const std::uint32_t left = Load3Of4(centre - taps.Offset[k]);
                     const std::uint32_t right = Load3Of4(centre + taps.Offset[k]);
                     sumBlueRed += ((left & blueRed) + (right & blueRed)) * weight;
                     sumGreen += ((left >> 8 & green) + (right >> 8 & green)) * weight;
                 }
                 Store3(pixel, mean(sumBlueRed) | mean(sumGreen) << 8 | mean(sumBlueRed >> 16) << 16);
             });
}

void FillNearest(const GroundView& view, const RowSpan& span, std::int32_t margin)
{
    FillSpan(view, span, margin,
             [sharp = view.Sharp](std::int32_t u, std::int32_t v, std::int32_t, std::uint8_t* pixel)
             { base::CopyPixel(pixel, sharp.At(u, v)); });
}
}

void GroundNearest(const GroundView& view, const Band& band, StopCheck& check)
{
    DrawRows(view, band, check, [&](const RowSpan& span) { FillNearest(view, span, 0); });
}

void GroundLinear(const GroundView& view, const Band& band, StopCheck& check)
{
    DrawRows(view, band, check,
             [&](const RowSpan& span)
             {
                 const double w = view.BlurWeight[span.Y], rest = 1.0 - w;
                 FillSpan(view, span, 0,
                          [&](std::int32_t u, std::int32_t v, std::int32_t, std::uint8_t* pixel)
                          { Blend<Rounding::Down>(view.Blurred.At(u, v), w, view.Sharp.At(u, v), rest, pixel); });
             });
}

void GroundAniso(const GroundView& view, const Band& band, StopCheck& check)
{
    FindTaps(view, band);
    DrawRows(view, band, check,
             [&](const RowSpan& span)
             {
                 const float taps = view.TapCount[span.Y];
                 const std::int32_t n = base::Floor(taps);
                 const auto w = static_cast<std::uint32_t>(base::RoundEven(taps / SideWeightStep));
                 const auto width = static_cast<std::uint32_t>(n);
                 if (n > 0)
                     FillTent(view, span, {n, width + 1, width, (width + 2) * width + 1});
                 else if (taps < FewestTaps)
                     FillNearest(view, span, TapMargin);
                 else
                     FillTent(view, span, {1, (50 - w) * 2, w, 100});
             });
}

void DrawGroundBand(const GroundView& view, const Band& band, StopCheck& check)
{
    switch (view.TxtFilter)
    {
    case Filter::Linear:
        return GroundLinear(view, band, check);
    case Filter::Anisotropic:
        return GroundAniso(view, band, check);
    default:
        return GroundNearest(view, band, check);
    }
}
}
