// SPDX-License-Identifier: Zlib
// assets/cars/Design.h: what makes one car different from another: shape, livery, lamps and fittings.
#pragma once
#include "assets/cars/Shape.h"
#include "assets/common/Colour.h"
#include "assets/common/Vectors.h"

#include <string>
#include <vector>

namespace assets::cars
{
enum class Front
{
    RoundLamps,
    SquareLamps,
    HiddenLamps // under flaps in the bonnet, slim lamps below
};
enum class Rear
{
    FourRounds,
    Band,   // one red strip over the whole tail
    Blocks, // red, amber and white squares
    Slim
};
enum class Spoiler
{
    None,
    Lip,
    Wing, // on two struts over the tail
    Roof  // a lip at the end of a long roof
};
enum class Rim
{
    Star,
    Mesh,
    Turbine,
    Dish
};

// Base paint at a point of the body; roundels, gaps, lamps and light come on top.
enum class Part
{
    Flank,
    Bonnet,
    Deck,
    Roof,
    Nose,
    Tail,
    Cabin,
    Wing
};
struct Design;
// `p` in metres, as in Shape.h.
using Livery = Rgb (*)(const Design& design, Part part, Vec3 p);

struct Design
{
    std::string Folder; // below data/models
    int Number;         // of the race, one or two figures
    cars::Shape Shape;
    cars::Livery Livery;
    Rgb Base, Second, Third; // paints, as the livery uses them
    Rgb Plate, Figures;      // behind and of the race number
    bool Roundel;            // a disc behind the number; else the number stands on the paint
    cars::Front Front;
    cars::Rear Rear;
    cars::Spoiler Spoiler;
    cars::Rim Rim;
    Rgb RimColour;
    bool Louvres; // over the rear window
    Rgb Helmet;
};

// The eight cars of the race, in the order of their folders car_1 … car_8.
std::vector<Design> Designs();
}
