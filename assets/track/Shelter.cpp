// SPDX-License-Identifier: Zlib
// A lay-by shelter where a car is repaired: a timber shed, open in front, with a lean-to roof of tiles. Local x along
// the road, open toward -z.
#include "assets/track/Facades.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "assets/track/Lettering.h"
#include "assets/track/Light.h"

namespace assets::track
{
namespace
{
constexpr double ShedX = 3.5, ShedZ = 1.5, ShedFront = 3.2, ShedBack = 2.55;

constexpr Region ShedInside{0, 0, 112, 44}, ShedOutside{0, 44, 112, 40}, ShedRoof{0, 84, 112, 40},
    ShedSign{112, 0, 112, 12}, ShedFloor{112, 12, 112, 40}, ShedFlank{112, 52, 48, 48}, ShedPost{160, 52, 8, 48},
    ShedChest{168, 52, 40, 24}, ShedCeiling{112, 100, 112, 24};

void PaintPlanks(Canvas& sheet, const Region& r, Rgb light, std::uint32_t seed)
{
    for (int y = 0; y < r.Height; ++y)
        for (int x = 0; x < r.Width; ++x)
        {
            const int plank = x / 6;
            Rgb c = Mix(Hex(0xC39A66), Hex(0x9C7448), HashUnit(plank, 0, seed));
            c = c * (0.95 + 0.14 * Fbm(x / 2.0, y / 16.0, seed + 1, 2)) * (x % 6 == 0 ? 0.66 : 1.0);
            sheet.Set(r.Left + x, r.Low + y, c * light);
        }
}

void PaintTools(Canvas& sheet)
{
    // A board of tools, a rack of tyres, a poster: bright enough to be read in the shade.
    FillRect(sheet, 8, 18, 40, 18, Hex(0x6A8FA8) * 0.8);
    constexpr Rgb Metal = Hex(0xDCE0E2);
    for (int i = 0; i < 6; ++i)
    {
        const double x = 12.0 + i * 6;
        FillRect(sheet, x, 21, 1.6, 6 + i % 3 * 3, Metal);
        FillDisc(sheet, {x + 0.8, 28.0 + i % 3 * 3}, 1.8, i % 2 == 0 ? Metal : Hex(0xD8503A));
    }
    for (int i = 0; i < 4; ++i)
    {
        const Point hub{62.0 + i * 9, 28};
        FillDisc(sheet, hub, 4.6, Hex(0x2C2C30));
        FillDisc(sheet, hub, 2.0, Hex(0x8C8E92));
    }
    FillRect(sheet, 56, 22, 44, 1.6, Hex(0x7A5638));
    FillRect(sheet, 101, 20, 9, 14, Hex(0xF2E8CC) * 0.85);
    FillDisc(sheet, {105.5, 28}, 2.8, Hex(0xC63A2B));
    FillRect(sheet, 4, 8, 104, 2.4, Hex(0x8A6238)); // a bench
    for (double x = 8; x < 104; x += 24)
        FillRect(sheet, x, 0, 2, 8, Hex(0x6E4E30));
}

Canvas ShelterPicture()
{
    Canvas sheet(224, 124, Hex(0x808080));
    PaintPlanks(sheet, ShedInside, Mix(ShadeLight, SunLight, 0.18) * 0.82, 701);
    for (int x = 0; x < ShedInside.Width; ++x) // deeper shade below the roof
        for (int y = 30; y < ShedInside.Height; ++y)
            sheet.Shade(x, y, {0.6, 0.6, 0.64}, SmoothStep(30, 44, y));
    PaintTools(sheet);
    PaintPlanks(sheet, ShedCeiling, Mix(ShadeLight, SunLight, 0.2) * 0.8, 708);
    PaintPlanks(sheet, ShedOutside, Mix(ShadeLight, SunLight, 0.55), 702);
    PaintPlanks(sheet, ShedFlank, Mix(ShadeLight, SunLight, 0.65), 703);
    PaintPlanks(sheet, ShedPost, SunLight, 704);
    PaintTiles(sheet, ShedRoof, SunLight, 705);
    for (int y = 0; y < ShedFloor.Height; ++y)
        for (int x = 0; x < ShedFloor.Width; ++x)
        {
            const double oil = SmoothStep(0.25, 0.5, Fbm(x / 11.0, y / 8.0, 706, 3));
            const Rgb c = Mix(Hex(0xB4AC9C), Hex(0x5A5650), 0.7 * oil) * (0.94 + 0.1 * HashUnit(x, y, 707));
            sheet.Set(ShedFloor.Left + x, ShedFloor.Low + y,
                      c * Mix(SunLight, ShadeLight, SmoothStep(6, 22, y)) * (x % 28 == 0 ? 0.85 : 1));
        }
    FillRect(sheet, ShedSign.Left, ShedSign.Low, ShedSign.Width, ShedSign.Height, Hex(0xF2E9D2));
    FillRect(sheet, ShedSign.Left, ShedSign.Low, ShedSign.Width, 1.5, Hex(0xC63A2B));
    FillRect(sheet, ShedSign.Left, ShedSign.Low + 10.5, ShedSign.Width, 1.5, Hex(0xC63A2B));
    PaintText(sheet, "OFFICINA", {ShedSign.Left + 56.0, ShedSign.Low + 6.0}, 7, 1.4, Hex(0x1F3D66), 1, 1.3);
    FillRect(sheet, ShedChest.Left, ShedChest.Low, ShedChest.Width, ShedChest.Height, Hex(0xC63A2B));
    for (const double y : {2.0, 9.0, 16.0})
    {
        FillRect(sheet, ShedChest.Left + 2, ShedChest.Low + y, 36, 5.4, Hex(0xD9503F));
        FillRect(sheet, ShedChest.Left + 12, ShedChest.Low + y + 2, 16, 1.4, Hex(0xF0E6D6));
    }
    return sheet;
}

void AddChest(Model& model, double x, double z)
{
    constexpr double Wide = 0.6, Deep = 0.3, High = 0.95;
    model.Meshes.push_back(Upright("shedbox", ShedChest, x - Wide, z - Deep, x + Wide, z - Deep, 0.1, High));
    for (const double side : {-1.0, 1.0})
        model.Meshes.push_back(FlatFace(Hex(0x9C3026), {x + side * Wide, 0.1, z - Deep},
                                        {x + side * Wide, 0.1, z + Deep}, {x + side * Wide, High, z + Deep},
                                        {x + side * Wide, High, z - Deep}));
    model.Meshes.push_back(FlatFace(Hex(0xE2604C), {x - Wide, High, z - Deep}, {x + Wide, High, z - Deep},
                                    {x + Wide, High, z + Deep}, {x - Wide, High, z + Deep}));
}
}

void WriteShelter(const ModelFolder& folder)
{
    folder.Texture("shedbox", ShelterPicture());
    Model model;
    model.Mass = HeavyMass;
    constexpr double X = ShedX, Z = ShedZ, Over = 0.25, Sign = 0.42;
    // Inner and outer faces stand a hand apart, so that each keeps its own light.
    model.Meshes.push_back(Upright("shedbox", ShedInside, -X, Z - 0.1, X, Z - 0.1, 0, ShedBack, 4, 2));
    model.Meshes.push_back(Upright("shedbox", ShedOutside, X, Z, -X, Z, 0, ShedBack, 3, 2));
    for (const double x : {-X, X})
        model.Meshes.push_back(
            Face("shedbox", ShedFlank, {x, 0, -Z}, {x, 0, Z}, {x, ShedBack, Z}, {x, ShedFront - 0.1, -Z}, 2, 2));
    model.Meshes.push_back(Face("shedbox", ShedRoof, {-X - Over, ShedFront, -Z - Over},
                                {X + Over, ShedFront, -Z - Over}, {X + Over, ShedBack, Z + Over},
                                {-X - Over, ShedBack, Z + Over}, 4, 2));
    model.Meshes.push_back(
        Upright("shedbox", ShedSign, -X - Over, -Z - Over, X + Over, -Z - Over, ShedFront - Sign, ShedFront + 0.02, 4));
    // What the tiles rest on.
    model.Meshes.push_back(Face("shedbox", ShedCeiling, {-X, ShedFront - 0.12, -Z}, {X, ShedFront - 0.12, -Z},
                                {X, ShedBack - 0.06, Z}, {-X, ShedBack - 0.06, Z}, 4, 2));
    model.Meshes.push_back(
        Face("shedbox", ShedFloor, {-X, 0.06, -Z}, {X, 0.06, -Z}, {X, 0.06, Z}, {-X, 0.06, Z}, 3, 2));
    for (const double x : {-X + 0.1, X - 0.1})
        model.Meshes.push_back(Upright("shedbox", ShedPost, x - 0.1, -Z, x + 0.1, -Z, 0, ShedFront - Sign, 1, 1));
    AddChest(model, 2.3, 0.9);
    folder.Write("shedbox", model);
}
}
