#include "assets/cars/Design.h"

#include <cmath>

namespace assets::cars
{
namespace
{
// A low grand tourer with a sloping back.
Shape Fastback()
{
    return {{{-2.06, .84},
             {-1.7, .90},
             {-1.27, .945},
             {-.8, .915},
             {0, .895},
             {.8, .895},
             {1.3, .93},
             {1.7, .88},
             {2.0, .78}},
            {{-2.06, .06}, {-1.27, .10}, {-.6, .06}, {.58, .065}, {1.3, .09}, {2, .07}},
            {{-2.06, .79},
             {-1.6, .84},
             {-1.27, .865},
             {-.7, .81},
             {0, .775},
             {.58, .765},
             {.9, .755},
             {1.3, .745},
             {1.7, .66},
             {2.0, .55}},
            {{-2.2, .80},
             {-2.06, .815},
             {-1.6, .85},
             {-1.0, .86},
             {0, .80},
             {.78, .80},
             {1.3, .725},
             {1.7, .65},
             {2.0, .585},
             {2.2, .53}},
            {{-2.06, .30}, {-1.7, .22}, {-1.2, .17}, {1.0, .16}, {1.7, .19}, {2.0, .22}},
            .17,
            .05,
            .09,
            -.62,
            -1.66,
            .70};
}

// A wedge: low blade of a nose, high tail.
Shape Wedge()
{
    return {{{-2.06, .90},
             {-1.7, .925},
             {-1.27, .945},
             {-.8, .91},
             {0, .89},
             {.8, .89},
             {1.3, .915},
             {1.7, .88},
             {2.0, .80}},
            {{-2.06, .05}, {-1.27, .07}, {-.6, .06}, {.58, .06}, {1.3, .06}, {2, .05}},
            {{-2.06, .87},
             {-1.6, .88},
             {-1.27, .875},
             {-.7, .83},
             {0, .785},
             {.58, .755},
             {.9, .735},
             {1.3, .70},
             {1.7, .59},
             {2.0, .48}},
            {{-2.2, .87},
             {-2.06, .88},
             {-1.6, .89},
             {-1.0, .89},
             {0, .82},
             {.78, .79},
             {1.3, .70},
             {1.7, .59},
             {2.0, .50},
             {2.2, .44}},
            {{-2.06, .33}, {-1.7, .23}, {-1.2, .17}, {1.0, .15}, {1.7, .17}, {2.0, .19}},
            .20,
            .03,
            .05,
            -.52,
            -1.50,
            .72};
}

// A square coupé with a boot and wide arches.
Shape Notchback()
{
    return {{{-2.06, .86},
             {-1.72, .90},
             {-1.6, .94},
             {-1.0, .945},
             {-.86, .885},
             {0, .88},
             {.88, .885},
             {1.0, .94},
             {1.6, .935},
             {1.72, .87},
             {2.0, .82}},
            {{-2.06, .04},
             {-1.6, .09},
             {-1.0, .095},
             {-.8, .035},
             {.58, .035},
             {.88, .035},
             {1.0, .09},
             {1.6, .09},
             {2, .04}},
            {{-2.06, .83},
             {-1.6, .845},
             {-1.27, .84},
             {-.7, .82},
             {0, .80},
             {.58, .785},
             {.9, .775},
             {1.3, .75},
             {1.7, .71},
             {2.0, .66}},
            {{-2.2, .84},
             {-2.06, .845},
             {-1.6, .865},
             {-1.0, .87},
             {0, .82},
             {.78, .815},
             {1.3, .785},
             {1.7, .74},
             {2.0, .69},
             {2.2, .65}},
            {{-2.06, .27}, {-1.7, .22}, {-1.2, .18}, {1.0, .17}, {1.7, .19}, {2.0, .21}},
            .08,
            .06,
            .06,
            -.78,
            -1.36,
            .70};
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
    return (part == Part::Bonnet || part == Part::Roof || part == Part::Deck) && std::abs(p.X + 0.0) < 0.10 ? d.Second
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
        {"car_2", 12, Notchback(), TwinStripes, Hex(0x1A4FA8), White, White, White, Hex(0x12264E), true,
         Front::SquareLamps, Rear::Blocks, Spoiler::Lip, Rim::Dish, Hex(0xE6E8EA), false, Hex(0xE8C020)},
        {"car_3", 3, Wedge(), DarkBonnet, Hex(0xF2C40E), Black, Black, Hex(0xF2C40E), Black, false, Front::HiddenLamps,
         Rear::Band, Spoiler::Lip, Rim::Turbine, Hex(0xB9BDC2), true, Black},
        {"car_4", 21, Notchback(), Tricolour, White, Hex(0x0E8A46), Hex(0xD01C28), Black, White, true,
         Front::SquareLamps, Rear::Slim, Spoiler::Wing, Rim::Mesh, Hex(0xE0E2E4), false, Hex(0x0E8A46)},
        {"car_5", 88, Wedge(), Shards, Hex(0x1B1C22), Hex(0xF06A10), White, Hex(0xF06A10), White, false,
         Front::HiddenLamps, Rear::Slim, Spoiler::Wing, Rim::Star, Hex(0xE8742A), false, Hex(0xF06A10)},
        {"car_6", 34, Fastback(), NoseBand, Hex(0x0F5A38), Hex(0xF0C828), White, Hex(0xF0C828), Hex(0x0B3C27), true,
         Front::RoundLamps, Rear::Blocks, Spoiler::None, Rim::Mesh, Hex(0xD9B44A), false, Hex(0xF0C828)},
        {"car_7", 9, Fastback(), TwoTone, Hex(0x97A1AC), Hex(0xB01E2A), White, White, Hex(0xB01E2A), true,
         Front::SquareLamps, Rear::Band, Spoiler::Wing, Rim::Turbine, Hex(0xF0F0F0), false, Hex(0xB01E2A)},
        {"car_8", 55, Wedge(), Chevrons, Hex(0x5B2A8C), Hex(0x27C4B8), White, White, Hex(0x2A1046), true,
         Front::HiddenLamps, Rear::FourRounds, Spoiler::None, Rim::Dish, Hex(0x27C4B8), true, Hex(0x27C4B8)},
    };
}
}
