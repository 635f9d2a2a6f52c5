// assets/cars/Body.h: the outer skin of a car, as panels with their painters.
#pragma once
#include "assets/cars/Design.h"
#include "assets/common/Canvas.h"

namespace assets::cars
{
struct BodyPanel
{
    Panel Skin;
    Painter Paint;
};

// Meshes 0 to 9 of a car: bonnet, deck, roof, left and right flank, nose, tail, left and right cabin side, rear window.
// Keeps references to the design.
std::vector<BodyPanel> BodyPanels(const Design& design);
constexpr std::size_t FirstWindow = 7; // panels from here on have window panes

// A whole car with its texture, as the game loads it.
struct Car
{
    Model Form;
    Canvas Texture;
    std::size_t Shadow; // the mesh on the ground
};
Car BuildCar(const Design& design);
}
