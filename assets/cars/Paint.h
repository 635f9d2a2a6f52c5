// SPDX-License-Identifier: Zlib
// assets/cars/Paint.h: the painters of a car's panels: livery, number, gaps, lamps, windows, and the light on all of
// it, which is part of the paint: the game draws textures as they are.
#pragma once
#include "assets/cars/Design.h"
#include "assets/common/Colour.h"
#include "assets/common/Vectors.h"

namespace assets::cars
{
// The paint's colour on a surface with this outward direction, lit from above and from one side. `gloss` 0 (cloth) to 1
// (fresh paint).
Rgb Lit(Rgb paint, Vec3 normal, double gloss);

// Each keeps a reference to the design. `side` is -1 left, +1 right.
Painter FlankPainter(const Design& design, double side);
Painter BonnetPainter(const Design& design);
Painter DeckPainter(const Design& design);
Painter RoofPainter(const Design& design);
Painter NosePainter(const Design& design);
Painter TailPainter(const Design& design);
Painter CabinPainter(const Design& design);
Painter RearWindowPainter(const Design& design);
Painter FairingPainter(const Design& design);
Painter WingPainter(const Design& design);
}
