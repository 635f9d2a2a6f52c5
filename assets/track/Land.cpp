// SPDX-License-Identifier: Zlib
// Grass, fields, tracks, streets, shore and water of the ground.
#include "assets/track/Ground.h"

#include "assets/common/Noise.h"
#include "assets/track/FarCountry.h"

#include <algorithm>

namespace assets::track
{
namespace
{
constexpr double RimWidth = 32; // units at the border in which the detail ends

// Grain around 1: a little of it from texel to texel, which sparkles in the distance, more from one to three units.
double Grain(int x, int z, double strength)
{
    const Point p = TexelPlace(x, z);
    const double fine = HashUnit(x, z, 501) - 0.5;
    const double blades = Noise(p.X / 0.65, p.Y / 0.65, 502), tufts = Noise(p.X / 1.7, p.Y / 1.7, 503);
    return 1 + strength * (0.4 * fine + 0.3 * blades + 0.4 * tufts);
}

// Late summer grass: mown and green by the road, dry and tufted away from it.
Rgb Grass(const Terrain& terrain, int x, int z)
{
    const Point p = TexelPlace(x, z);
    const double offset = terrain.Offset.At(x, z), away = std::abs(offset) - terrain.HalfWidth.At(x, z);
    const double broad = Fbm(p.X / 62, p.Y / 62, 510, 4), middle = Fbm(p.X / 13, p.Y / 13, 511, 4);
    const double tufts = Fbm(p.X / 2.6, p.Y / 2.6, 512, 3);
    const double wild = SmoothStep(9, 24, away + 5 * middle);
    Rgb mown = Mix(Hex(0x6C8B38), Hex(0x879F4B), 0.5 + 0.8 * middle);
    if (std::abs(offset) < FarAway)
    {
        const double band = std::sin(offset * Pi / 3.2 + 0.25 * middle); // the mower's bands
        mown = mown * (1 + 0.055 * SmoothStep(-0.4, 0.4, band) - 0.0275);
    }
    Rgb dry = Mix(Hex(0xA79F55), Hex(0x7F8C3F), SmoothStep(-0.35, 0.3, broad + 0.5 * middle));
    dry = Mix(dry, Hex(0x5E7A31), 0.8 * SmoothStep(0.08, 0.45, broad - 0.25 * middle));
    dry = dry * (1 + 0.16 * tufts);
    dry = Mix(dry, Hex(0x56702C), 0.55 * SmoothStep(0.22, 0.42, tufts) * SmoothStep(-0.25, 0.05, middle));
    Rgb grass = Mix(mown, dry, wild) * Grain(x, z, Lerp(0.16, 0.26, wild));
    // Dust and tyre-torn earth along the road.
    const double worn = SmoothStep(2.6, 0.2, away + 1.6 * middle) * 0.55;
    grass = Mix(grass, Hex(0xB3A274) * Grain(x, z, 0.12), worn);
    // Single flowers and stones.
    const double luck = HashUnit(x, z, 520);
    if (wild > 0.4 && luck > 0.9988)
        return Mix(grass, luck > 0.9994 ? Hex(0xF4EBD0) : Hex(0xD9603C), 0.45);
    return grass;
}

Rgb VineRow(double across, double along, Rgb earth)
{
    const double row = std::abs(std::remainder(across, 4.6));
    const double leaves = Fbm(along / 1.3, across / 1.3, 531, 3);
    const double edge = 0.95 + 0.5 * leaves;
    const Rgb crown = Mix(Hex(0x5C7F2B), Hex(0x87A63F), Clamp01(0.5 + leaves));
    const Rgb shade = earth * 0.62;
    const double shadowSide = std::remainder(across, 4.6);
    Rgb colour = Mix(earth, shade, SmoothStep(2.1, 1.1, std::abs(shadowSide - 1.0)) * 0.8);
    colour = Mix(crown, colour, SmoothStep(edge - 0.25, edge + 0.15, row));
    return colour;
}

Rgb FieldColour(const Field& field, const Terrain& terrain, int x, int z)
{
    const Point p = TexelPlace(x, z);
    const double c = std::cos(field.RowAngle), s = std::sin(field.RowAngle);
    const double along = p.X * c + p.Y * s, across = p.Y * c - p.X * s;
    const double broad = Fbm(p.X / 30, p.Y / 30, 540, 4), fine = Fbm(p.X / 3, p.Y / 3, 541, 3);
    switch (field.Grows)
    {
    case Field::Vines:
    {
        const Rgb earth = Mix(Hex(0xA98A5E), Hex(0x97934F), SmoothStep(-0.3, 0.4, broad + 0.5 * fine));
        return VineRow(across + 0.3 * Noise(along / 20, across / 20, 533), along, earth) * Grain(x, z, 0.16);
    }
    case Field::Stubble:
    {
        const double rows = std::sin(across * 2 * Pi / 1.7 + 0.8 * fine);
        const double swath = std::sin(across * 2 * Pi / 15 + broad);
        Rgb straw = Mix(Hex(0xC7AC62), Hex(0xDCC680), Clamp01(0.5 + broad + 0.3 * swath));
        straw = Mix(straw, Hex(0x9C8A52), 0.35 * SmoothStep(0.2, 0.9, rows));
        return straw * (1 + 0.08 * fine) * Grain(x, z, 0.2);
    }
    case Field::Olives:
    {
        const Rgb earth = Mix(Hex(0xA8935F), Hex(0x8C9150), SmoothStep(-0.25, 0.25, broad + 0.6 * fine));
        return earth * (1 + 0.1 * fine) * Grain(x, z, 0.22);
    }
    case Field::Meadow:
        break;
    }
    const double swath = SmoothStep(-0.5, 0.5, std::sin(across * 2 * Pi / 9));
    return Mix(Grass(terrain, x, z), Mix(Hex(0x7A9A3C), Hex(0x90A94C), swath) * Grain(x, z, 0.2), 0.75);
}

Rgb FarmTrack(Rgb ground, const Terrain& terrain, int x, int z)
{
    const double edge = terrain.Track.At(x, z);
    if (edge > 1.5)
        return ground;
    const Point p = TexelPlace(x, z);
    const double fine = Fbm(p.X / 1.4, p.Y / 1.4, 550, 3), broad = Fbm(p.X / 9, p.Y / 9, 551, 3);
    Rgb dust = Mix(Hex(0xC9B58A), Hex(0xB19A6C), Clamp01(0.5 + broad + 0.4 * fine)) * Grain(x, z, 0.12);
    const double middle = SmoothStep(-1.15, -1.55, edge + 0.25 * fine); // grass between the ruts
    dust = Mix(dust, ground, 0.7 * middle);
    return Mix(ground, dust, SmoothStep(0.5, -0.3, edge + 0.7 * fine));
}

Rgb Paving(Rgb ground, const Terrain& terrain, int x, int z)
{
    const double edge = terrain.Street.At(x, z);
    if (edge > 1)
        return ground;
    const Point p = TexelPlace(x, z);
    const CellDistance stone = Cells(p.X / 0.85, p.Y / 0.85, 560);
    const double tone = (stone.Id & 255u) / 255.0, broad = Fbm(p.X / 7, p.Y / 7, 561, 3);
    Rgb paving = Mix(Hex(0xC6B595), Hex(0xB1A287), tone) * (1 + 0.12 * broad);
    paving = Mix(paving, Hex(0x8A7A5E), 0.38 * SmoothStep(0.16, 0.04, stone.Second - stone.First));
    // Pale bands of slabs mark out the plaza.
    const double band = std::min(std::abs(std::remainder(p.X + 0.3 * p.Y, 12)), std::abs(std::remainder(p.Y, 12)));
    if (edge < -3)
        paving = Mix(paving, Hex(0xE6DAC0), 0.75 * SmoothStep(0.45, 0.3, band));
    paving = Mix(paving, Hex(0xD9CDB4), 0.8 * SmoothStep(-0.75, -0.55, edge) * SmoothStep(0.15, -0.1, edge));
    return Mix(ground, paving * Grain(x, z, 0.07), SmoothStep(0.2, -0.1, edge));
}

Rgb Beach(Rgb ground, double shore, int x, int z)
{
    const Point p = TexelPlace(x, z);
    const double wave = Fbm(p.X / 6, p.Y / 6, 570, 4), place = shore + 2.2 * wave;
    if (place > 9)
        return ground;
    const CellDistance pebble = Cells(p.X / 0.55, p.Y / 0.55, 571);
    const double tone = (pebble.Id & 255u) / 255.0;
    Rgb sand = Mix(Hex(0xDCCB9F), Hex(0xC4B48C), Clamp01(0.5 + Fbm(p.X / 3, p.Y / 3, 572, 3)));
    sand = Mix(sand, Mix(Hex(0xE4DECD), Hex(0x9C9484), tone), 0.3 * SmoothStep(0.3, 0.12, pebble.First));
    sand = Mix(sand, sand * Rgb{0.66, 0.64, 0.60}, SmoothStep(1.5, 0.5, shore + 0.5 * wave)); // wet
    return Mix(ground, sand * Grain(x, z, 0.1), SmoothStep(7.0, 4.5, place));
}

Rgb Water(double depth, int x, int z)
{
    const Point p = TexelPlace(x, z);
    const double chop = Fbm(p.X / 1.5, p.Y / 1.1, 583, 2);
    Rgb water = OpenWater(p, depth) * (1 + 0.04 * chop);
    // Foam in two broken lines at the edge.
    const double edge = depth + 0.7 * Fbm(p.X / 4, p.Y / 4, 584, 3);
    const double foam = std::max(SmoothStep(0.6, 0.1, std::abs(edge - 0.4)),
                                 0.5 * SmoothStep(0.7, 0.1, std::abs(edge - 2.7)) * SmoothStep(0, 0.3, chop));
    water = Mix(water, Hex(0xF1EEDF), 0.7 * foam * SmoothStep(-0.5, 0.1, chop));
    return Mix(Hex(0xB5AB85), water, SmoothStep(-0.6, 2.4, depth));
}

// The rim of the ground loses its detail and becomes the country beyond, before the backdrop covers it.
Rgb TowardRim(Rgb colour, Point p, double shore)
{
    const double rim = std::min({p.X, p.Y, WorldSize - p.X, WorldSize - p.Y});
    if (rim > RimWidth + 8)
        return colour;
    const double ragged = rim + 8 * Fbm(p.X / 24, p.Y / 24, 595, 3);
    const double fading = SmoothStep(RimWidth, BackdropOverlap + 2, ragged);
    const double covered = SmoothStep(BackdropOverlap + 4, BackdropOverlap + 1, rim);
    return Mix(colour, FarCountry(p, shore), std::max(fading, covered));
}
}

Rgb LandColour(const Plan& plan, const Terrain& terrain, int x, int z)
{
    const Point p = TexelPlace(x, z);
    const double shore = terrain.Shore.At(x, z);
    if (shore < 0)
        return TowardRim(Water(-shore, x, z), p, shore);
    Rgb colour = Grass(terrain, x, z);
    for (const Field& field : plan.Fields)
        if (InsideOutline(field.Outline, p.X + 0.5 * Noise(p.X / 3, p.Y / 3, 590), p.Y))
            colour = FieldColour(field, terrain, x, z);
    colour = FarmTrack(colour, terrain, x, z);
    colour = Paving(colour, terrain, x, z);
    colour = Beach(colour, shore, x, z);
    return TowardRim(colour, p, shore);
}
}
