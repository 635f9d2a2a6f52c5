// SPDX-License-Identifier: Zlib
// assets/track/Light.h: the one sun that every shadow, facade and cloud of the world agrees on.
#pragma once
#include "assets/common/Colour.h"

namespace assets::track
{
// Late afternoon: the sun stands in the west-north-west, across the lake. x is east, z is north, y is up.
inline constexpr double SunX = -0.80, SunZ = 0.60; // unit vector on the ground, toward the sun
inline constexpr double SunYaw = 0.9273;           // the camera yaw that looks into the sun
inline constexpr double ShadowLength = 2.2;        // ground length of the shadow of one unit of height (24 degrees)

inline constexpr Rgb SunLight{1.06, 0.98, 0.84};
inline constexpr Rgb ShadeLight{0.56, 0.62, 0.74};

// Light on a wall with this outward direction on the ground (unit length): 0 in the shade, 1 facing the sun.
inline double Facing(double normalX, double normalZ)
{
    const double facing = normalX * SunX + normalZ * SunZ;
    return facing > 0 ? facing : 0;
}

// What a surface colour is multiplied with.
inline Rgb WallLight(double normalX, double normalZ)
{
    return Mix(ShadeLight, SunLight, 0.15 + 0.85 * SmoothStep(-0.1, 0.8, Facing(normalX, normalZ)));
}
}
