// assets/cars/Fittings.h: what a car has besides its body: cabin, wheels, mirrors, wing and shadow. Metres, as in
// Shape.h. The game knows some meshes by their number, so the order of the calls matters: body, cabin, windscreen,
// outside, spheres.
#pragma once
#include "assets/cars/Design.h"

namespace assets::cars
{
// The flat panels of the cabin, and the dials and steering wheel (texels from the atlas). From mesh 10 on; at least ten
// meshes.
void AddCabin(Model& model, const Design& design, Atlas& atlas, const std::string& texture);

inline constexpr int GlassMesh = 20;
// The glass, inserted as mesh 20: the game puts the broken one there.
void AddWindscreen(Model& model, const Design& design);

// Four tyres, four wheel faces, the shadow on the ground, mirrors, and the wing where there is one. Returns the
// shadow's index.
std::size_t AddOutside(Model& model, const Design& design, Atlas& atlas, const std::string& texture);

// Collision spheres 0 to 5 low on the body, 6 and 7 in the cabin, each linked to the body points it dents.
void AddSpheres(Model& model);
}
