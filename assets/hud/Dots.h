// SPDX-License-Identifier: Zlib
// assets/hud/Dots.h: half-covered pixels, which the game does not know, as dots whose density is the coverage.
#pragma once

namespace assets::hud
{
// A pixel is painted where the coverage, 0 to 1, is above this: ordered in four by four cells, even and without noise.
inline double DotThreshold(int x, int y)
{
    constexpr int order[4][4] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};
    return (order[y & 3][x & 3] + 0.5) / 16;
}
}
