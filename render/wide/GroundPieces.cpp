// SPDX-License-Identifier: Zlib
#include "render/wide/GroundPieces.h"

#include "base/Math.h"
#include "render/Bands.h"
#include "render/GroundPlain.h"

#include <array>

namespace render::VELKAR_WIDE
{
void FillNearest(const GroundView& view, const GroundPiece& piece)
{
    const std::uint8_t* texels = view.Sharp.Bytes;
    std::uint8_t* pixel = piece.Pixels;
    const std::int32_t last = piece.Count - 1;
    for (std::int32_t i = 0; i < last; ++i, pixel += base::PixelBytes)
        StorePixelOf4(pixel, LoadPixelOf4(texels + piece.Offset[i]));
    StorePixel(pixel, LoadPixelOf4(texels + piece.Offset[last]));
}

BlurMix::BlurMix(float weight) : Exact(!(weight > 0.0f && weight < 0x1p-22f))
{
    constexpr double least = 0x1p-9; // below 1 / 255, and above it 32 bits hold every weight
    const double used = weight > 0.0f && weight < least ? least : weight;
    const auto whole = static_cast<std::uint32_t>(used * 0x1p32);
    const auto high = static_cast<std::uint16_t>(whole >> 16), low = static_cast<std::uint16_t>(whole);
    High = Channels8::Of(high);
    Low = Channels8::Of(low);
    HighSign = High.Signs();
    LowSign = Low.Signs();
}

namespace
{
// Calls colour(i) for the pixels of a piece that may differ from the one before, and gives each its colour.
// isSame(i): whether a pixel has the same as the one before wherever the two have one texel. Texels are larger than
// pixels nearly everywhere, so that most neighbours do.
template <class IsSame, class Colour>
void FillRuns(const GroundPiece& piece, const IsSame& isSame, const Colour& colour)
{
    std::uint8_t* pixel = piece.Pixels;
    std::int32_t now = colour(0);
    const std::int32_t last = piece.Count - 1;
    for (std::int32_t i = 0; i < last; ++i, pixel += base::PixelBytes)
    {
        StorePixelOf4(pixel, now);
        if (piece.Offset[i + 1] != piece.Offset[i] || !isSame(i + 1))
            now = colour(i + 1);
    }
    StorePixel(pixel, now);
}

std::int32_t PlainColour(const GroundView& view, const GroundPiece& piece, std::int32_t i)
{
    std::uint8_t bytes[base::PixelBytes];
    GroundPixelPlain(view, piece.X + i, piece.Y, bytes);
    return LoadPixel(bytes);
}
}

void FillMixed(const GroundView& view, const GroundPiece& piece, const BlurMix& mix)
{
    FillRuns(
        piece, [](std::int32_t) { return true; },
        [&](std::int32_t i)
        {
            if (!mix.IsExact())
                return PlainColour(view, piece, i);
            const std::int32_t at = piece.Offset[i];
            return mix.Mixed(LoadPixelOf4(view.Sharp.Bytes + at), LoadPixelOf4(view.Blurred.Bytes + at));
        });
}

namespace
{
// floor(sum / divisor) for all sums of bytes whose weights add up to the divisor.
// floor(floor(sum / 2^Before) x Factor / 2^(16 + After)).
struct Division
{
    std::int32_t Before = 0, After = 0;
    std::int32_t Factor = 0; // at most 16 bits
};

constexpr Division DivisionBy(std::int32_t divisor)
{
    Division by;
    while (divisor % 2 == 0 && divisor > 2)
    {
        divisor /= 2;
        ++by.Before;
    }
    while (2 << by.After < divisor)
        ++by.After;
    by.Factor = ((1 << (16 + by.After)) + divisor - 1) / divisor;
    return by;
}

// The factor may be a little too large: the quotient of the largest sum below a multiple must not reach it.
constexpr bool IsExact(std::int32_t divisor)
{
    const Division by = DivisionBy(divisor);
    const std::int64_t whole = std::int64_t{1} << (16 + by.After), odd = divisor >> by.Before;
    const std::int64_t excess = by.Factor * odd - whole;
    return by.Factor < 1 << 16 && excess >= 0 && excess * (256 * odd - 1) < whole;
}

constexpr std::int32_t SmallDivisor = 100; // below one tap

constexpr std::int32_t TentDivisor(std::int32_t taps)
{
    return (taps + 1) * (taps + 1);
}

static_assert(
    []
    {
        bool all = IsExact(SmallDivisor);
        for (std::int32_t taps = 1; taps <= MostTaps; ++taps)
            all = all && IsExact(TentDivisor(taps));
        return all;
    }());

// Weights as factors of two pixels, by weight.
constexpr std::int32_t MostWeight = SmallDivisor;
using WeightTable = std::array<std::array<std::uint16_t, 8>, MostWeight + 1>;
constexpr WeightTable Weights = []
{
    WeightTable table{};
    for (std::size_t weight = 0; weight < table.size(); ++weight)
        for (std::uint16_t& factor : table[weight])
            factor = static_cast<std::uint16_t>(weight);
    return table;
}();
}

Tent::Tent(float taps)
{
    const std::int32_t n = base::Floor(taps);
    if (n == 0 && taps < FewestTaps)
        return;
    std::int32_t divisor = SmallDivisor;
    if (n > 0)
    {
        Taps = n;
        Middle = n + 1;
        Side = n;
        divisor = TentDivisor(n);
    }
    else
    {
        Taps = 1;
        Side = base::RoundEven(taps / SideWeightStep);
        Middle = SmallDivisor - 2 * Side;
    }
    const Division by = DivisionBy(divisor);
    Before = by.Before;
    After = by.After;
    Factor = Channels8::Of(static_cast<std::uint16_t>(by.Factor));
}

namespace
{
// Where a number is half way between two whole ones: what rounding took of it.
Int4 IsHalf(Double4 taken)
{
    return (taken == Double4::Of(0.5)) | (taken == Double4::Of(-0.5));
}

std::int32_t SharedTaps(const ColumnTaps& a, const ColumnTaps& b)
{
    std::int32_t shared = 0;
    while (!a.HasTies && shared < MostTaps && a.Offset[shared] == b.Offset[shared])
        ++shared;
    return shared;
}
}

// Texel + k x step rounds to the texel + the rounded k x step, whatever the texel, unless the step ends exactly between
// two texels; then the parity of the texel decides, and the column is left to the plain routine.
void FindTaps(const GroundView& view, const Band& band)
{
    constexpr std::int32_t fours = (MostTaps + 3) / 4;
    for (std::int32_t x = band.First; x <= band.Last; ++x)
    {
        const double a = base::Atan(view.ColumnSlope[x]) + view.Yaw;
        const double du = static_cast<float>(view.SinYaw * base::Sin(a));
        const double dv = static_cast<float>(view.CosYaw * base::Cos(a));
        ColumnTaps& taps = view.Taps[x];
        taps.HasTies = !(du >= -1.0 && du <= 1.0 && dv >= -1.0 && dv <= 1.0);
        taps.Shared = 0;
        if (taps.HasTies)
            continue;
        std::int32_t offsets[4 * fours];
        const Int4 rowBytes = Int4::Of(static_cast<std::int32_t>(view.Sharp.RowBytes));
        Int4 ties = Int4::Of(0);
        for (std::int32_t four = 0; four < fours; ++four)
        {
            const double k = 4.0 * four;
            const Double4 steps = Double4::Of(k + 1.0, k + 2.0, k + 3.0, k + 4.0);
            const Double4 alongU = steps * Double4::Of(du), alongV = steps * Double4::Of(dv);
            const Int4 u = alongU.Rounded(), v = alongV.Rounded();
            (v * rowBytes + (u + u + u)).Store(offsets + 4 * four);
            const Int4 isTie = IsHalf(alongU - Double4::Of(u)) | IsHalf(alongV - Double4::Of(v));
            ties = ties | (isTie & (Int4::Of(4 * four, 4 * four + 1, 4 * four + 2, 4 * four + 3) < Int4::Of(MostTaps)));
        }
        for (std::int32_t k = 0; k < MostTaps; ++k)
            taps.Offset[k] = offsets[k];
        taps.HasTies = ties.Bits() != 0;
        taps.Shared = x > band.First && !taps.HasTies ? SharedTaps(view.Taps[x - 1], taps) : 0;
    }
}

void FillTent(const GroundView& view, const GroundPiece& piece, const Tent& tent)
{
    if (tent.Width() == 0)
        return FillNearest(view, piece);
    const Channels8 middle = Channels8::Load(Weights[static_cast<std::size_t>(tent.MiddleWeight())].data());
    const std::array<std::uint16_t, 8>* side = &Weights[static_cast<std::size_t>(tent.SideWeight())];
    const ColumnTaps* columns = view.Taps + piece.X;
    FillRuns(
        piece, [&](std::int32_t i) { return columns[i].Shared >= tent.Width(); },
        [&](std::int32_t i)
        {
            const ColumnTaps& taps = columns[i];
            if (taps.HasTies)
                return PlainColour(view, piece, i);
            const std::uint8_t* centre = view.Sharp.Bytes + piece.Offset[i];
            Channels8 sums = Channels8::Two(LoadPixelOf4(centre), 0) * middle;
            for (std::int32_t k = 0; k < tent.Width(); ++k)
            {
                const Channels8 two =
                    Channels8::Two(LoadPixelOf4(centre - taps.Offset[k]), LoadPixelOf4(centre + taps.Offset[k]));
                sums = sums + two * Channels8::Load((side - k)->data());
            }
            return tent.Divided(sums.Folded()).Pixel();
        });
}
}
