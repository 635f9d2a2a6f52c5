// SPDX-License-Identifier: Zlib
// assets/cars/Fittings.h: what a car has besides its body: cabin, wheels, mirrors, wing and shadow. Metres, as in
// Shape.h. The game knows some meshes by their number, so the order of the calls matters: body, cabin, dashboard,
// windscreen, and then the rest.
#pragma once
#include "assets/cars/Design.h"

namespace assets::cars
{
// Walls, floor, seats, pillars and what else the driver sees around him, in flat colours.
void AddCabin(Model& model, const Design& design);

// Dashboard, clocks and steering wheel, in flat colours. With body and cabin at least twenty meshes.
void AddDashboard(Model& model, const Design& design);

inline constexpr int GlassMesh = 20;
// The glass, inserted as mesh 20: the game puts the broken one there.
void AddWindscreen(Model& model, const Design& design);

// Four tyres, four wheel faces, mirrors, and the wing where there is one; texels from the atlas.
void AddOutside(Model& model, const Design& design, Atlas& atlas, const std::string& texture);

// Helmet and shoulders, where neither the view from the seat nor the one back from it meets them.
void AddDriver(Model& model, const Design& design, Atlas& atlas, const std::string& texture);

// Two solid shapes on the ground, a darker one in a lighter.
void AddShadow(Model& model, const Design& design);
}
