// SPDX-License-Identifier: Zlib
// assets/track/Facades.h: walls, windows, doors and roofs as they are painted into the textures of buildings. `light`
// is what a surface colour is multiplied with (Light.h). Texels; row 0 is at the foot of a wall.
#pragma once
#include "assets/track/Models.h"

namespace assets::track
{
// Rain streaks, a darker foot and the shadow of the eaves.
void PaintPlaster(Canvas& sheet, const Region& region, Rgb colour, Rgb light, std::uint32_t seed);
// Coursed pale stone; a stone is `length` x `course` texels.
void PaintStone(Canvas& sheet, const Region& region, Rgb light, std::uint32_t seed, int course = 4, int length = 8);
// Curved terracotta tiles in rows down the slope.
void PaintTiles(Canvas& sheet, const Region& region, Rgb light, std::uint32_t seed);

// (x, y) is the middle of the sill. An open one has its shutters folded back beside it.
void PaintWindow(Canvas& sheet, double x, double y, double width, double height, Rgb shutters, Rgb light, bool open);
// Round-headed, on the ground; the head rises half a width above `height`.
void PaintDoor(Canvas& sheet, double x, double width, double height, Rgb light);

void AddChimney(Model& model, double x, double z, double low, double high);
}
