// SPDX-License-Identifier: Zlib
// assets/cars/Pieces.h: the simple meshes that fittings are made of. Metres, as in Shape.h.
#pragma once
#include "assets/cars/Shape.h"
#include "assets/cars/Surface.h"
#include "assets/common/Colour.h"
#include "assets/common/Vectors.h"

namespace assets::cars
{
// The eye of the player in the car; nothing may stand close before it. The driver sits behind the wheel there.
inline constexpr Vec3 Eye{-0.30 / UnitsPerMetre, 1.10 / UnitsPerMetre, -0.05 / UnitsPerMetre};
inline constexpr double SeatX = -0.27;

// A mesh of one colour from rows of points, all of one length. No channel becomes 0, which would be see-through.
ModelMesh FlatMesh(Rgb colour, const std::vector<std::vector<Vec3>>& rows);

// A flat clock face, wheel or the like lies at `Middle`; Right and Up are its directions, of unit length.
struct Plane
{
    Vec3 Middle, Right, Up;
    Vec3 At(double x, double y) const { return Middle + Right * x + Up * y; }
};
ModelMesh Disc(Rgb colour, const Plane& plane, double radius, int corners); // an even number of corners
// Part of a ring; angles in radians from Right toward Up.
ModelMesh Arc(Rgb colour, const Plane& plane, double inner, double outer, double from, double to, int cells);
// A straight bar that points away from the middle.
ModelMesh Hand(Rgb colour, const Plane& plane, double angle, double from, double to, double half);
// A rectangle.
ModelMesh Plate(Rgb colour, const Plane& plane, double halfWidth, double halfHeight);

// A face of width x height painted texels between four corners, cut into cells x cells.
ModelMesh Face(Vec3 lowLeft, Vec3 lowRight, Vec3 highLeft, Vec3 highRight, int cells, int width, int height,
               const Painter& painter, Atlas& atlas, const std::string& texture);

// Heights (0 to 1) at which the windscreen's pillars are cut.
std::vector<double> PillarKnots();
}
