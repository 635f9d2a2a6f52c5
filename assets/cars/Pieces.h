// assets/cars/Pieces.h: the simple meshes that fittings are made of. Metres, as in Shape.h.
#pragma once
#include "assets/cars/Surface.h"
#include "assets/common/Colour.h"
#include "assets/common/Vectors.h"

namespace assets::cars
{
// The driver sits left of the middle; the eye of the player in the car is at (-0.30, 1.10, -0.05), looking ahead:
// nothing may stand close before it.
inline constexpr double SeatX = -0.31;

// A mesh of one colour from rows of points, all of one length. No channel becomes 0, which would be see-through.
ModelMesh FlatMesh(Rgb colour, const std::vector<std::vector<Vec3>>& rows);

// A face of width x height painted texels between four corners, cut into cells x cells.
ModelMesh Face(Vec3 lowLeft, Vec3 lowRight, Vec3 highLeft, Vec3 highRight, int cells, int width, int height,
               const Painter& painter, Atlas& atlas, const std::string& texture);
}
