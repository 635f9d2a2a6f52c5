// SPDX-License-Identifier: Zlib
// assets/track/Ground.h: the ground bitmap, four texels a unit: row 0 is z = 0, column 0 is x = 0. Land.cpp,
// Asphalt.cpp, Markings.cpp and Shadows.cpp each paint the layer they are named for.
#pragma once
#include "assets/common/Canvas.h"
#include "assets/track/Terrain.h"

#include <string>

namespace assets::track
{
// One texel of the land or of the lake, without road and shadows.
Rgb LandColour(const Plan& plan, const Terrain& terrain, int x, int z);

// A layer over the land; `Cover` is how much of the texel it takes.
struct Surface
{
    Rgb Colour;
    double Cover = 0; // 0 to 1
};
Surface RoadSurface(const Plan& plan, const Terrain& terrain, int x, int z); // also pit lane and kerbs
Surface GravelSurface(const Plan& plan, const Terrain& terrain, int x, int z);

// Lines, start line, grid, pit boxes, lettering, tyre marks, drain covers.
void PaintMarkings(Canvas& ground, const Plan& plan);
// Shadows of everything that stands.
void PaintShadows(Canvas& ground, const Plan& plan);

// All layers, on two threads.
Canvas PaintGround(const Plan& plan);
}
