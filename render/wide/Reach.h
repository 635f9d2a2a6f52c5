// SPDX-License-Identifier: Zlib
// render/wide/Reach.h: how far a triangle reaches on the screen, and whether anything of it may show.
#pragma once
#include "render/TriangleFill.h"
#include "render/wide/Wide.h"

#include <algorithm>
#include <cstdint>

namespace render::VELKAR_WIDE
{
// Columns that are looked at at once; no screen is narrower here.
inline constexpr std::int32_t Lanes = 4;

// The lanes below `count`, all for four and more; those from `skipped` on, 0 to 4.
inline Int4 FirstLanes(std::int32_t count)
{
    alignas(16) static constexpr std::int32_t lanes[2 * Lanes] = {-1, -1, -1, -1, 0, 0, 0, 0};
    return Int4::Load(lanes + (count < Lanes ? Lanes - count : 0));
}
inline Int4 LanesFrom(std::int32_t skipped)
{
    alignas(16) static constexpr std::int32_t lanes[2 * Lanes] = {0, 0, 0, 0, -1, -1, -1, -1};
    return Int4::Load(lanes + Lanes - skipped);
}

// How columns first to last of a row are taken by fours: from First on, the last four from Last on. A column may be
// among two of the fours. Fewer than four columns are lanes of a single four that lies in the row.
struct Fours
{
    std::int32_t First, Last;
    Int4 Lanes;

    Fours(std::int32_t first, std::int32_t last, std::int32_t width)
        : First(first), Last(last - (VELKAR_WIDE::Lanes - 1)), Lanes(Int4::Of(-1))
    {
        if (Last >= First)
            return;
        First = Last = first < width - VELKAR_WIDE::Lanes ? first : width - VELKAR_WIDE::Lanes;
        Lanes = LanesFrom(first - First) & FirstLanes(last - First + 1);
    }
    // The four behind that at x; Last is the last.
    std::int32_t Next(std::int32_t x) const { return x + VELKAR_WIDE::Lanes < Last ? x + VELKAR_WIDE::Lanes : Last; }
};

// The part of the screen that a triangle may cover, and the least depth that any of its pixels can have.
struct Reach
{
    std::int32_t FirstX, FirstY, LastX, LastY; // empty where a last one is below the first
    float Depth;

    Reach(const Screen& screen, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c)
    {
        // X and Y lie side by side; the two lanes behind them are not used.
        const Int4 p = Int4::Load(&a), q = Int4::Load(&b), r = Int4::Load(&c);
        std::int32_t least[4], most[4];
        Max(Min(Min(p, q), r), Int4::Of(0)).Store(least);
        Min(Max(Max(p, q), r), Int4::Of(screen.ScreenW - 1, screen.ScreenH - 1, 0, 0)).Store(most);
        FirstX = least[0];
        FirstY = least[1];
        LastX = most[0];
        LastY = most[1];
        // Interpolation may leave the vertices' depths by a few units in the last place of a double. What is no number
        // is hidden by nothing, and does not show either.
        constexpr double slack = 0x1p-40;
        const float nearest = std::min({a.Z, b.Z, c.Z}), farthest = std::max({a.Z, b.Z, c.Z});
        Depth = static_cast<float>(nearest - std::max(-static_cast<double>(nearest), double{farthest}) * slack);
    }
};

// The first row of the reach with a cell that something this near may be written to; one above its last where there is
// none. Most triangles are hidden behind what was drawn before: this finds it out without their edges.
inline std::int32_t FirstShowingRow(const Canvas& canvas, const Reach& reach)
{
    const Float4 depth = Float4::Of(reach.Depth);
    const Fours fours(reach.FirstX, reach.LastX, canvas.Screen.ScreenW);
    const unsigned lanes = fours.Lanes.Bits();
    const float* cells = canvas.Depth.Row(reach.FirstY);
    for (std::int32_t y = reach.FirstY; y <= reach.LastY; ++y, cells += canvas.Screen.ScreenW)
        for (std::int32_t x = fours.First;; x = fours.Next(x))
        {
            if ((lanes & ~(Float4::Load(cells + x) <= depth).Bits()) != 0)
                return y;
            if (x == fours.Last)
                break;
        }
    return reach.LastY + 1;
}

// Whether anything of a triangle may be seen; the rows below that cannot are taken from its reach.
inline bool Shows(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                  Reach& reach)
{
    if (reach.LastX < reach.FirstX || reach.LastY < reach.FirstY || (a.Y == b.Y && b.Y == c.Y))
        return false;
    reach.FirstY = FirstShowingRow(canvas, reach);
    return reach.FirstY <= reach.LastY;
}
}
