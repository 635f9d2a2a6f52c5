// cars/Design.h: what makes one car different from another.
#pragma once
#include "cars/Shape.h"
#include <string>
#include <vector>

namespace assets
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
    Wing
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
using Livery = Rgb (*)(const Design& design, Part part, Vec3 p);

struct Design
{
    std::string Folder;
    int Number;
    assets::Shape Shape;
    assets::Livery Livery;
    Rgb Base, Second, Third;
    Rgb Plate, Figures; // behind and of the race number
    bool Roundel;       // a disc behind the number; else the number stands on the paint
    assets::Front Front;
    assets::Rear Rear;
    assets::Spoiler Spoiler;
    assets::Rim Rim;
    Rgb RimColour;
    bool Louvres; // over the rear window
    Rgb Helmet;
};

// The eight cars of the race, in the order of their folders car_1 … car_8.
std::vector<Design> Designs();
}
