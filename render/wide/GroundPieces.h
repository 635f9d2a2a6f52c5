// SPDX-License-Identifier: Zlib
// render/wide/GroundPieces.h: the three filters over a piece of a ground row, and what each knows of the row.
#pragma once
#include "render/GroundView.h"
#include "render/wide/Channels8.h"
#include "render/wide/Pixels4.h"

#include <cstdint>

namespace render::VELKAR_WIDE
{
// Neighbouring pixels of one row that all show the ground.
struct GroundPiece
{
    std::int32_t Y = 0, X = 0, Count = 0; // the row, the first column, columns
    const std::int32_t* Offset = nullptr; // of each one's texel, bytes; a fourth byte may be read behind the texel
    std::uint8_t* Pixels = nullptr;       // of the first column
};

// The texel itself.
void FillNearest(const GroundView& view, const GroundPiece& piece);

// Sharp and blurred texel, mixed by the row's weight w: floor(blurred w + sharp (1 - w)) in double precision. From
// 2^-22 up, and for 0, both products and the sum are exact, as w has 24 bits; then that is sharp + floor((blurred -
// sharp) w), found in whole numbers with w as a fraction of 2^32. All weights below 1/255 give the same.
class BlurMix
{
public:
    explicit BlurMix(float weight);

    // Whether the whole numbers give what the doubles do.
    bool IsExact() const { return Exact; }
    std::int32_t Mixed(std::int32_t sharp, std::int32_t blurred) const
    {
        return Mixed(Channels8::Two(sharp, 0), Channels8::Two(blurred, 0)).Pixel();
    }

private:
    Channels8 Mixed(Channels8 sharp, Channels8 blurred) const
    {
        const Channels8 d = blurred - sharp;
        // d x w x 2^16 is d x High + d x Low / 2^16. The factors have no sign, d has one: where High or Low is read as
        // negative, it lacks 2^16, and the high half of the product lacks d.
        const Channels8 below = HighSigned(d, Low) + (d & LowSign);
        const Channels8 product = d * High, sum = product + below;
        const Channels8 carry = Channels8::Of(1) + IsAtLeast(sum, product); // 1 where the sum went beyond 16 bits
        return sharp + HighSigned(d, High) + (d & HighSign) + below.Signs() + carry;
    }

    bool Exact;
    Channels8 High, Low;         // the two halves of w x 2^32
    Channels8 HighSign, LowSign; // -1 where the half has its topmost bit
};
void FillMixed(const GroundView& view, const GroundPiece& piece, const BlurMix& mix);

// A texel and its neighbours on both sides along the ray, weighted and divided by the sum of the weights. The first
// neighbours weigh SideWeight, the next ones each one less.
class Tent
{
public:
    // taps: of the row, 0 to MostTaps, with a fraction.
    explicit Tent(float taps);

    std::int32_t Width() const { return Taps; } // neighbours on each side; 0: the texel alone
    std::int32_t MiddleWeight() const { return Middle; }
    std::int32_t SideWeight() const { return Side; }
    // The sum by the divisor, rounded down: shifts and a multiplication, exact for all sums of weighted bytes.
    Channels8 Divided(Channels8 sum) const
    {
        return HighUnsigned(sum.ShiftedRight(Before), Factor).ShiftedRight(After);
    }

private:
    std::int32_t Taps = 0, Middle = 1, Side = 0;
    std::int32_t Before = 0, After = 0; // bits of the two shifts
    Channels8 Factor = Channels8::Of(0);
};
// Writes the taps of the band's columns.
void FindTaps(const GroundView& view, const Band& band);
void FillTent(const GroundView& view, const GroundPiece& piece, const Tent& tent);
}
