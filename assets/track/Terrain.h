// SPDX-License-Identifier: Zlib
// assets/track/Terrain.h: for every texel of the ground, where it lies relative to road, shore and paths.
// Texel (x, z) covers a quarter unit; its middle is at ((x + 0.5) / 4, (z + 0.5) / 4).
#pragma once
#include "assets/common/Canvas.h"
#include "assets/common/Vectors.h"
#include "assets/track/Plan.h"

namespace assets::track
{
inline constexpr int TexelsPerUnit = 4;
inline constexpr int GroundSize = 2560;
inline constexpr float FarAway = 1000;

struct Terrain
{
    Mask Offset;    // to the left of the nearest centre line; FarAway where none is within about 48 units
    Mask Along;     // along the lap, units; valid where Offset is
    Mask HalfWidth; // of the road there
    Mask Bend;      // of the road there
    Mask Line;      // offset of the racing line there
    Mask Shore;     // distance to the shore line, positive on land; limited to 60
    Mask Track;     // distance to the nearest farm track's edge, negative on it; FarAway beyond 12
    Mask Street;    // the same for paved ways and the plaza

    Terrain();
};

Terrain SurveyTerrain(const Plan& plan);
// The lake's outline without corners; like the outline it runs outside the world.
std::vector<Point> ShoreLine(const Plan& plan);

inline Point TexelPlace(int x, int z)
{
    return {(x + 0.5) / TexelsPerUnit, (z + 0.5) / TexelsPerUnit};
}
}
