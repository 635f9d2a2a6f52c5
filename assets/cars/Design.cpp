// SPDX-License-Identifier: Zlib
#include "assets/cars/Design.h"

#include <cmath>

namespace assets::cars
{
namespace
{
// A low grand tourer with a sloping back.
Shape Fastback()
{
    return {.HalfWidth = {{-2.06, .84},
                          {-1.7, .90},
                          {-1.27, .945},
                          {-.8, .915},
                          {0, .895},
                          {.8, .895},
                          {1.3, .93},
                          {1.7, .88},
                          {2.0, .78}},
            .Inset = {{-2.06, .06}, {-1.27, .10}, {-.6, .06}, {.88, .065}, {1.3, .09}, {2, .07}},
            .ShoulderY = {{-2.06, .77},
                          {-1.6, .815},
                          {-1.27, .825},
                          {-.7, .765},
                          {0, .73},
                          {.6, .71},
                          {.9, .70},
                          {1.3, .715},
                          {1.7, .645},
                          {2.0, .55}},
            .CentreY = {{-2.2, .775},
                        {-2.06, .795},
                        {-1.6, .83},
                        {-1.0, .83},
                        {0, .75},
                        {.9, .685},
                        {1.1, .665},
                        {1.35, .66},
                        {1.7, .63},
                        {2.0, .575},
                        {2.2, .53}},
            .SillY = {{-2.06, .30}, {-1.7, .22}, {-1.2, .17}, {1.0, .16}, {1.7, .19}, {2.0, .22}},
            .NoseBulge = .17,
            .BumperOut = .05,
            .TailBulge = .09,
            .RoofY = 1.195,
            .RoofRear = -.42,
            .WindowRear = -1.66,
            .WindowHalf = .70};
}

// A wedge: low blade of a nose, high tail.
Shape Wedge()
{
    return {.HalfWidth = {{-2.06, .90},
                          {-1.7, .925},
                          {-1.27, .945},
                          {-.8, .91},
                          {0, .89},
                          {.8, .89},
                          {1.3, .915},
                          {1.7, .88},
                          {2.0, .80}},
            .Inset = {{-2.06, .05}, {-1.27, .07}, {-.6, .06}, {.58, .06}, {1.3, .06}, {2, .05}},
            .ShoulderY = {{-2.06, .85},
                          {-1.6, .86},
                          {-1.27, .85},
                          {-.7, .79},
                          {0, .745},
                          {.6, .715},
                          {.9, .70},
                          {1.3, .69},
                          {1.7, .60},
                          {2.0, .48}},
            .CentreY = {{-2.2, .85},
                        {-2.06, .86},
                        {-1.6, .87},
                        {-1.0, .86},
                        {0, .77},
                        {.9, .69},
                        {1.1, .67},
                        {1.35, .65},
                        {1.7, .59},
                        {2.0, .50},
                        {2.2, .44}},
            .SillY = {{-2.06, .33}, {-1.7, .23}, {-1.2, .17}, {1.0, .15}, {1.7, .17}, {2.0, .19}},
            .NoseBulge = .20,
            .BumperOut = .03,
            .TailBulge = .05,
            .RoofY = 1.185,
            .RoofRear = -.34,
            .WindowRear = -1.50,
            .WindowHalf = .72};
}

// A small rally car: square arches, a long roof and an upright tail.
Shape Hatchback()
{
    return {.HalfWidth = {{-2.06, .86},
                          {-1.72, .89},
                          {-1.62, .945},
                          {-.98, .945},
                          {-.86, .87},
                          {0, .865},
                          {.88, .87},
                          {1.0, .945},
                          {1.62, .94},
                          {1.74, .87},
                          {2.0, .83}},
            .Inset = {{-2.06, .04},
                      {-1.62, .10},
                      {-.98, .105},
                      {-.8, .035},
                      {.58, .035},
                      {.88, .04},
                      {1.0, .10},
                      {1.62, .10},
                      {2, .04}},
            .ShoulderY = {{-2.06, .82},
                          {-1.6, .825},
                          {-1.27, .82},
                          {-.7, .785},
                          {0, .75},
                          {.6, .725},
                          {.9, .71},
                          {1.3, .715},
                          {1.7, .66},
                          {2.0, .63}},
            .CentreY = {{-2.2, .83},
                        {-2.06, .835},
                        {-1.6, .85},
                        {-1.0, .84},
                        {0, .77},
                        {.9, .695},
                        {1.1, .675},
                        {1.35, .68},
                        {1.7, .675},
                        {2.0, .635},
                        {2.2, .585}},
            .SillY = {{-2.06, .27}, {-1.7, .22}, {-1.2, .18}, {1.0, .17}, {1.7, .19}, {2.0, .21}},
            .NoseBulge = .09,
            .BumperOut = .06,
            .TailBulge = .06,
            .RoofY = 1.225,
            .RoofRear = -1.50,
            .WindowRear = -1.98,
            .WindowHalf = .72};
}

// A low open two-seater with round fenders and a hump behind each seat.
Shape Barchetta()
{
    return {.Open = true,
            .HalfWidth = {{-2.06, .80},
                          {-1.7, .90},
                          {-1.27, .945},
                          {-.8, .905},
                          {0, .875},
                          {.8, .885},
                          {1.3, .93},
                          {1.7, .87},
                          {2.0, .74}},
            .Inset = {{-2.06, .09}, {-1.27, .14}, {-.6, .06}, {.88, .07}, {1.3, .13}, {2, .10}},
            .ShoulderY = {{-2.06, .70},
                          {-1.6, .80},
                          {-1.27, .825},
                          {-.7, .74},
                          {0, .675},
                          {.6, .68},
                          {.9, .695},
                          {1.3, .73},
                          {1.7, .655},
                          {2.0, .53}},
            .CentreY = {{-2.2, .67},
                        {-2.06, .70},
                        {-1.6, .745},
                        {-1.0, .75},
                        {0, .70},
                        {.9, .68},
                        {1.1, .66},
                        {1.35, .645},
                        {1.7, .605},
                        {2.0, .55},
                        {2.2, .50}},
            .SillY = {{-2.06, .30}, {-1.7, .22}, {-1.2, .17}, {1.0, .16}, {1.7, .19}, {2.0, .21}},
            .NoseBulge = .19,
            .BumperOut = .05,
            .TailBulge = .10,
            .RoofY = 1.165,
            .RoofRear = -.60,
            .WindowRear = -.66,
            .WindowHalf = .70};
}

// Two lengthwise stripes over the whole car.
Rgb TwinStripes(const Design& d, Part part, Vec3 p)
{
    const bool top = part != Part::Flank && part != Part::Cabin;
    return top && std::abs(std::abs(p.X) - 0.19) < 0.11 ? d.Second : d.Base;
}

// A light nose, and a wave of it along the flanks.
Rgb NoseBand(const Design& d, Part part, Vec3 p)
{
    if (p.Z > 1.52 && part != Part::Roof)
        return p.Z < 1.58 ? d.Third : d.Second;
    if (part == Part::Flank && std::abs(p.Y - (0.30 + 0.02 * p.Z)) < 0.028)
        return d.Second;
    return d.Base;
}

// Dark bonnet and roof, a dark belt below.
Rgb DarkBonnet(const Design& d, Part part, Vec3 p)
{
    const bool bonnet = part == Part::Bonnet && std::abs(p.X) < 0.60 && p.Z < 1.86;
    const bool belt = (part == Part::Flank || part == Part::Tail || part == Part::Nose) && p.Y < 0.36;
    return bonnet || belt || part == Part::Wing ? d.Second : d.Base;
}

// Three bands, slanting up behind the door and on over the tail; three lengthwise ones on top, left of the middle.
Rgb Tricolour(const Design& d, Part part, Vec3 p)
{
    double across = p.X + 0.33;
    if (part == Part::Flank)
        across = (p.Z + 0.95 + (p.Y - 0.5) * 0.9) * 0.62;
    else if (part == Part::Cabin || part == Part::Tail || part == Part::Wing)
        return part == Part::Wing ? d.Third : d.Base;
    if (across > -0.21 && across < -0.07)
        return d.Second;
    if (across > 0.07 && across < 0.21)
        return d.Third;
    return d.Base;
}

// Dark in front, bright behind, the border broken in slanting steps.
Rgb Shards(const Design& d, Part part, Vec3 p)
{
    const double slant = part == Part::Flank || part == Part::Cabin ? (p.Y - 0.5) * 0.9 : std::abs(p.X) * 0.55;
    const double at = p.Z - slant;
    if (part == Part::Wing || part == Part::Tail)
        return d.Second;
    if (at < -1.05)
        return d.Second;
    if (at < -0.90 || (at > -0.80 && at < -0.66))
        return at < -0.90 ? d.Third : d.Second;
    return at > -0.58 && at < -0.53 ? d.Third : d.Base;
}

// The lower half in another colour, parted by a fine line that rises to the back.
Rgb TwoTone(const Design& d, Part part, Vec3 p)
{
    if (part == Part::Flank || part == Part::Nose || part == Part::Tail)
    {
        const double line = 0.47 - 0.02 * p.Z;
        if (p.Y < line - 0.02)
            return d.Second;
        if (p.Y < line)
            return d.Third;
    }
    if (part == Part::Wing)
        return d.Second;
    return (part == Part::Bonnet || part == Part::Roof || part == Part::Deck) && std::abs(p.X) < 0.10 ? d.Second
                                                                                                      : d.Base;
}

// Broad chevrons that point forward.
Rgb Chevrons(const Design& d, Part part, Vec3 p)
{
    const double reach = part == Part::Flank || part == Part::Cabin ? std::abs(p.Y - 0.5) * 1.1 : std::abs(p.X) * 0.8;
    const double at = p.Z + reach;
    if (part == Part::Wing)
        return d.Third;
    if (part == Part::Tail)
        return d.Base;
    if (at > 1.15 && at < 1.45)
        return d.Second;
    if (at > 0.92 && at < 1.05)
        return d.Third;
    if (at > -1.55 && at < -1.25)
        return d.Second;
    return at > -1.78 && at < -1.65 ? d.Third : d.Base;
}
}

std::vector<Design> Designs()
{
    constexpr Rgb White = Hex(0xE4E3DE), Black = Hex(0x17181C);
    return {
        {"car_1", 7, Fastback(), NoseBand, Hex(0xC4121C), White, Hex(0xE0B040), White, Black, true, Front::RoundLamps,
         Rear::FourRounds, Spoiler::Lip, Rim::Star, Hex(0xD8C690), false, White},
        {"car_2", 12, Hatchback(), TwinStripes, Hex(0x1A4FA8), White, White, White, Hex(0x12264E), true,
         Front::SquareLamps, Rear::Blocks, Spoiler::Lip, Rim::Dish, Hex(0xE6E8EA), false, Hex(0xE8C020)},
        {"car_3", 3, Wedge(), DarkBonnet, Hex(0xF2C40E), Black, Black, Hex(0xF2C40E), Black, false, Front::HiddenLamps,
         Rear::Band, Spoiler::Lip, Rim::Turbine, Hex(0xB9BDC2), true, Black},
        {"car_4", 21, Hatchback(), Tricolour, White, Hex(0x0E8A46), Hex(0xD01C28), Black, White, true,
         Front::SquareLamps, Rear::Slim, Spoiler::Roof, Rim::Mesh, Hex(0xE0E2E4), false, Hex(0x0E8A46)},
        {"car_5", 88, Wedge(), Shards, Hex(0x1B1C22), Hex(0xF06A10), White, Hex(0xF06A10), White, false,
         Front::HiddenLamps, Rear::Slim, Spoiler::Wing, Rim::Star, Hex(0xE8742A), false, Hex(0xF06A10)},
        {"car_6", 34, Barchetta(), NoseBand, Hex(0x0F5A38), Hex(0xF0C828), White, Hex(0xF0C828), Hex(0x0B3C27), true,
         Front::RoundLamps, Rear::FourRounds, Spoiler::None, Rim::Mesh, Hex(0xD9B44A), false, Hex(0xF0C828)},
        {"car_7", 9, Barchetta(), TwoTone, Hex(0xA7B1BC), Hex(0xB01E2A), White, White, Hex(0xB01E2A), true,
         Front::RoundLamps, Rear::Band, Spoiler::None, Rim::Turbine, Hex(0xF0F0F0), false, Hex(0xB01E2A)},
        {"car_8", 55, Hatchback(), Chevrons, Hex(0x5B2A8C), Hex(0x27C4B8), White, White, Hex(0x2A1046), true,
         Front::SquareLamps, Rear::Blocks, Spoiler::Roof, Rim::Star, Hex(0x27C4B8), false, Hex(0x27C4B8)},
    };
}
}
