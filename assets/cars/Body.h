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

// Meshes 0 to 9 of a car: bonnet, deck, roof, left and right flank, nose, tail, left and right cabin side, rear window.
// Keeps references to the design.
std::vector<BodyPanel> BodyPanels(const Design& design);
inline constexpr std::size_t FirstWindow = 7; // panels from here on have window panes

// A whole car with its texture, as the game loads it.
struct Car
{
    Model Form;         // its textured meshes name body.bmp
    Canvas Texture;     // all texels that they use; coverage 0 is see-through
    std::size_t Shadow; // the mesh on the ground
};
Car BuildCar(const Design& design);
}
