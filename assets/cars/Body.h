// SPDX-License-Identifier: Zlib
// assets/cars/Body.h: the outer skin of a car, as panels with their painters, and the whole car.
// Metres; nose toward +z, left is -x, ground y = 0.
#pragma once
#include "assets/cars/Design.h"
#include "assets/common/Canvas.h"

namespace assets::cars
{
struct BodyPanel
{
    Panel Skin;    // the surface and where its grid is cut
    Painter Paint; // its colour at a point
};

// The first meshes of a car: bonnet, deck, roof, left and right flank, nose, tail, left and right cabin side, rear
// window. An open car has a fairing behind each seat and neither roof nor windows. Keeps references to the design.
std::vector<BodyPanel> BodyPanels(const Design& design);
inline constexpr std::size_t FirstWindow = 7; // what is see-through in panels from here on is a window pane

// A whole car with its texture. Without spheres, which are in Spheres.h.
struct Car
{
    Model Form;         // metres; its textured meshes name body.bmp
    Canvas Texture;     // all texels that they use; coverage 0 is see-through
    std::size_t Shadow; // the first of the meshes on the ground, which are the last ones
};
Car BuildCar(const Design& design);

// The car as the game loads it: in its units, with the spheres that collide.
Model GameModel(const Design& design, const Car& car);
}
