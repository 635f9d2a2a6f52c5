// SPDX-License-Identifier: Zlib
// assets/track/FarCountry.h: the land and the lake beyond the ground's border, up to the hills around them. The
// ground's rim and the backdrop both take their colours from here, so that the ground does not end in a line.
#pragma once
#include "assets/common/Colour.h"
#include "assets/common/Vectors.h"

namespace assets::track
{
// The hills stand on a circle round the middle of the world; there the lake has its far shore.
inline constexpr double HillsRadius = 570;
// So many units of the ground's rim lie under the backdrop: the filters leave out nearly four, and from the tower a row
// of the screen is six deep.
inline constexpr double BackdropOverlap = 10;

// Water with its long waves; the foam and the ripples near the shore are the ground's.
Rgb OpenWater(Point p, double depth);
// The colour of a place at the border or beyond it, without anything finer than some units, as few texels go there.
// `shore` is its distance to the shore line, positive on land.
Rgb FarCountry(Point p, double shore);
}
