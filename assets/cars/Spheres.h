// SPDX-License-Identifier: Zlib
// assets/cars/Spheres.h: the spheres that collide, and the points that each of them dents. World units, as the game's
// models.
#pragma once
#include "assets/common/Model3dm.h"

namespace assets::cars
{
// Spheres 0 to 5 low on the body, 6 and 7 in the cabin. `panels`: how many of the first meshes are the body's skin.
void AddSpheres(Model& model, int panels);
}
