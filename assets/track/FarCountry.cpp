// SPDX-License-Identifier: Zlib
#include "assets/track/FarCountry.h"

#include "assets/common/Noise.h"
#include "assets/track/Plan.h"
#include "assets/track/Sky.h"

#include <algorithm>

namespace assets::track
{
namespace
{
double BeyondBorder(Point p)
{
    return std::max({0.0, -p.X, -p.Y, p.X - WorldSize, p.Y - WorldSize});
}

// Fields, meadows and woods of the plain, larger the farther one goes.
Rgb Countryside(Point p)
{
    const double bend = 9 * Noise(p.X / 40, p.Y / 40, 651);
    const CellDistance field = Cells((p.X + bend) / 74, (p.Y - bend) / 46, 652);
    const Rgb crops[] = {Hex(0x8FA24C), Hex(0xB9AC68), Hex(0x7F963F), Hex(0xA8A05A), Hex(0x6F8B3E), Hex(0xC2B374)};
    const Rgb meadow = Mix(Hex(0x8C9748), Hex(0xA39E56), 0.5 + Fbm(p.X / 34, p.Y / 34, 653, 3));
    Rgb colour = Mix(meadow, crops[field.Id % std::size(crops)], 0.75 * SmoothStep(0, 40, BeyondBorder(p)));
    colour = Mix(colour, Hex(0x5F7838), 0.4 * SmoothStep(0.06, 0.02, field.Second - field.First)); // hedges
    const double wood = SmoothStep(0.18, 0.3, Fbm(p.X / 60, p.Y / 60, 654, 4));
    return Mix(colour, Hex(0x58703C), 0.7 * wood * SmoothStep(10, 40, BeyondBorder(p)));
}
}

Rgb OpenWater(Point p, double depth)
{
    const double far = SmoothStep(0, 34, depth + 5 * Fbm(p.X / 16, p.Y / 16, 580, 3));
    Rgb water = Mix(Hex(0x86B7A6), Hex(0x4389A0), SmoothStep(0.0, 0.35, far));
    water = Mix(water, Hex(0x376F90), SmoothStep(0.3, 1.0, far));
    // They run toward the shore with the evening wind; the low sun lies on their crests.
    const double bend = Fbm(p.X / 22, p.Y / 22, 581, 2) * 6;
    const double along = p.X * 0.42 + p.Y * 0.9 + bend, across = p.X * 0.9 - p.Y * 0.42;
    const double swell = Fbm(along / 3.4, across / 13, 582, 3);
    const double gusts = Fbm(along / 40, across / 60, 585, 2);
    water = water * (1 + 0.13 * swell + 0.10 * gusts);
    const double crest = SmoothStep(0.2, 0.6, swell + 0.12 * gusts);
    return Mix(water, Hex(0xF8E8C4), 0.26 * crest * (0.35 + 0.65 * far));
}

Rgb FarCountry(Point p, double shore)
{
    const double round = std::hypot(p.X - WorldSize / 2, p.Y - WorldSize / 2);
    const double toHills = HillsRadius - 22 - round + 16 * Fbm(p.X / 50, p.Y / 50, 655, 3);
    Rgb colour = Countryside(p);
    if (shore < 0)
    {
        const Rgb mirrored = Mix(OpenWater(p, -shore), Hex(0x5B7F72), 0.5 * SmoothStep(46, 4, toHills));
        const Rgb bank = Mix(Hex(0xC9BD92), Hex(0x6F8848), SmoothStep(-2, -6, toHills));
        colour = Mix(bank, mirrored, SmoothStep(-1.5, 1.5, toHills));
    }
    const double beach = SmoothStep(5.5, 3.5, shore + 1.5 * Noise(p.X / 9, p.Y / 9, 657));
    colour = shore < 0 ? Mix(Hex(0xC4B78E), colour, SmoothStep(0, 1.6, -shore)) : Mix(colour, Hex(0xD0C195), beach);
    return Mix(colour, Haze, 0.62 * (1 - std::exp(-BeyondBorder(p) / 150)));
}
}
