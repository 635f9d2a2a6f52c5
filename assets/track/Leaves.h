// SPDX-License-Identifier: Zlib
// assets/track/Leaves.h: how leaves are painted, and where light falls on them. A crown is lit as the round body that
// it stands for: what is painted depends on the place in the crown alone, so pictures that cross agree where they meet.
#pragma once
#include "assets/common/Canvas.h"
#include "assets/common/Vectors.h"
#include "assets/track/Models.h"

#include <vector>

namespace assets::track
{
// The darkest tone is that of leaves in open shade; anything near black would draw a line round the crown.
struct Leafage
{
    Rgb Lit, Middle, Dark;
    std::uint32_t Seed;
};

// 0 to 1 at a place of a crown that fills the unit ball.
double CrownLight(Vec3 place);

// A tuft of leaves of this brightness, brighter toward its top; `lean` 1 puts its bright side to the left, -1 to the
// right. With `wrap` what leaves the region at one side enters it at the other.
struct Tuft
{
    Point Centre;
    double Radius, Light, Lean;
};
void PaintTuft(Canvas& picture, const Region& region, const Tuft& tuft, const Leafage& leaves, bool wrap = false);

// The upright cut through a crown, given by its rings, from the lowest to the highest. `sunward` is the cosine between
// the picture's direction from its middle to its left end and the sun's on the ground.
void PaintCrownCut(Canvas& sheet, const Region& region, const std::vector<Ring>& crown, double tuftRadius,
                   double sunward, const Leafage& leaves);
// What wraps a crown: columns run once round it from east over north, rows from its foot to its top. Ragged holes let
// the depth of the crown be seen.
void PaintCrownSkin(Canvas& sheet, const Region& region, double tuftRadius, const Leafage& leaves);

// Bark that wraps a trunk, columns as in a skin. `patches` paints the pale scales of a plane tree.
void PaintBark(Canvas& sheet, const Region& region, bool patches);
}
