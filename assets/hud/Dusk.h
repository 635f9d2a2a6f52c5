// SPDX-License-Identifier: Zlib
// assets/hud/Dusk.h: the lake after sunset, behind the menu and the splash picture.
#pragma once
#include "assets/common/Canvas.h"
#include "assets/common/Vectors.h"
#include "assets/hud/Portrait.h"

namespace assets::hud
{
// Directions and places are those of the scene: y up, the eye above the origin, the road leading toward the sun.
struct Dusk
{
    double SunX = -0.30;         // across / ahead of the sun's direction
    double SunUp = 0.034;        // its height above the horizon, likewise
    double RoadHeading = 0.3;    // radians from +z toward -x
    double RoadX = 0, RoadZ = 0; // a point of the road's middle line
    double Night = 0;            // 0 just after sunset … 1 an hour later
};

// The open sky in a direction; below the horizon, the dark ground.
Rgb SkyColour(const Dusk& dusk, Vec3 direction);

// Sky, clouds, mountains, village and lake down to the shore.
void PaintLake(Canvas& canvas, const Dusk& dusk, const SceneView& view);

// The road with its wall on the lake's side, lit by the lamps of a car in this pose, and trees where it ends.
void PaintRoad(Canvas& canvas, const Dusk& dusk, const SceneView& view, const CarPose& car);

// Light around bright spots, darker corners, a little grain.
void Develop(Canvas& canvas, double glow);
}
