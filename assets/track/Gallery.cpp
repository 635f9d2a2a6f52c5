// SPDX-License-Identifier: Zlib
// One bay of a column gallery along the shore, open to the road and to the lake. The sun stands behind it, over the
// lake: what looks toward the road lies in warm shade, and the columns throw stripes over the floor.
#include "assets/track/Facades.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "assets/track/Light.h"
#include "base/Numbers.h"

#include <vector>

namespace assets::track
{
namespace
{
constexpr double HalfBay = 3.0, ColumnsFront = -1.6, ColumnsBack = 1.6; // the rows of columns
constexpr double BaySpringing = 3.2, BayRise = 1.3, HalfSpan = 2.68, BayTop = 4.95;
constexpr double BayWallLow = 3.0; // of the arched wall's picture
constexpr double BayRidge = 5.5, BayEaves = 2.05, BayEavesHigh = 4.85;
constexpr double BayScale = 16;  // a unit
constexpr double SunAlong = 0.6; // cosine of the sun's direction with local +x when the front looks east

constexpr Region ArchedWall{0, 0, 96, 32}, RoofLit{0, 32, 96, 36}, RoofShade{0, 68, 96, 36}, BayFloor{0, 104, 96, 56},
    BayBeams{96, 104, 64, 56}, BayColumn{96, 0, 48, 80}, BaySoffit{144, 0, 12, 80}, BayPlain{96, 80, 64, 24};
constexpr int BaySheetWidth = 160, BaySheetHeight = 160;

const Rgb PaleStone = Hex(0xE2D2AC);
const Rgb Shaded = Mix(ShadeLight, SunLight, 0.32);

// How high the arch stands over x, from the bay's middle.
double BayArch(double x)
{
    const double share = x / HalfSpan;
    return BaySpringing + BayRise * std::sqrt(std::max(0.0, 1 - share * share));
}

Rgb Weathered(int x, int y, std::uint32_t seed)
{
    return PaleStone * (1 + 0.1 * Fbm(x / 16.0, y / 12.0, seed, 3) + 0.05 * (HashUnit(x, y, seed + 1) - 0.5));
}

void PaintArchedWall(Canvas& sheet)
{
    const Region& r = ArchedWall;
    for (int y = 0; y < r.Height; ++y)
        for (int x = 0; x < r.Width; ++x)
        {
            const double along = (x + 0.5) / BayScale - HalfBay, high = BayWallLow + (y + 0.5) / BayScale;
            const double over = high - BayArch(along);
            if (std::abs(along) < HalfSpan && over < 0)
                continue;
            Rgb c = Weathered(x, y, 401);
            if (std::abs(along) < HalfSpan + 0.1 && over < 0.3) // wedge stones
                c = (x / 5) % 2 == 0 ? Hex(0xC98C62) : Hex(0xEBDDBB);
            if (y > r.Height - 5)
                c = y == r.Height - 5 ? c * 0.6 : Hex(0xEDE0C0);
            sheet.Set(r.Left + x, r.Low + y, c * Shaded);
        }
}

// Turned once round from local +x over +z; base and capital are parts of the picture.
void PaintColumn(Canvas& sheet)
{
    const Region& r = BayColumn;
    for (int y = 0; y < r.Height; ++y)
        for (int x = 0; x < r.Width; ++x)
        {
            const double around = 2 * Pi * (x + 0.5) / r.Width;
            const double sun = std::cos(around) * SunAlong + std::sin(around) * std::sqrt(1 - SunAlong * SunAlong);
            Rgb c = Weathered(x, y, 411) * Mix(ShadeLight * 1.12, SunLight, SmoothStep(-0.35, 0.7, sun));
            if (y < 10 || y > r.Height - 9)
                c = c * (y % 4 == 1 ? 0.72 : 1.04);
            sheet.Set(r.Left + x, r.Low + y, c);
        }
}

// Flags of stone; the sun comes in low under the arches of the lake side.
void PaintFloor(Canvas& sheet)
{
    const Region& r = BayFloor;
    for (int y = 0; y < r.Height; ++y)
        for (int x = 0; x < r.Width; ++x)
        {
            const double tone = HashUnit((x + y / 14 % 2 * 12) / 24, y / 14, 421);
            const bool joint = (x + y / 14 % 2 * 12) % 24 == 0 || y % 14 == 0;
            const Rgb c = Mix(Hex(0xCBB48C), Hex(0xB09674), tone) * (joint ? 0.8 : 1.0);
            // The shadow of the column at the back runs from the far corners toward the road.
            const double along = (x + 0.5) / BayScale, across = 3.5 * (1 - (y + 0.5) / r.Height);
            const double shadow = std::abs(std::remainder(along + across * 0.75, 2 * HalfBay));
            const Rgb light = Mix(ShadeLight * 1.05, SunLight, SmoothStep(0.28, 0.42, shadow));
            sheet.Set(r.Left + x, r.Low + y, c * light * (0.95 + 0.08 * HashUnit(x, y, 422)));
        }
}

void PaintBeams(Canvas& sheet)
{
    for (int y = 0; y < BayBeams.Height; ++y)
        for (int x = 0; x < BayBeams.Width; ++x)
        {
            const bool beam = x % 16 < 5;
            const Rgb c = beam ? Hex(0x7A5638) : Hex(0xB98A5A) * (y % 4 == 0 ? 0.85 : 1.0);
            // Warm light from the floor.
            sheet.Set(BayBeams.Left + x, BayBeams.Low + y,
                      c * (x % 16 == 5 ? 0.5 : 0.78) * (0.94 + 0.1 * HashUnit(x, y, 431)));
        }
}

Canvas GalleryPicture()
{
    Canvas sheet(BaySheetWidth, BaySheetHeight);
    PaintArchedWall(sheet);
    PaintColumn(sheet);
    PaintFloor(sheet);
    PaintBeams(sheet);
    PaintTiles(sheet, RoofLit, SunLight, 441);
    PaintTiles(sheet, RoofShade, Mix(ShadeLight, SunLight, 0.5), 442);
    for (int y = 0; y < BaySoffit.Height; ++y) // the sun reaches the foot of one side
        for (int x = 0; x < BaySoffit.Width; ++x)
            sheet.Set(BaySoffit.Left + x, BaySoffit.Low + y,
                      Weathered(x, y, 451) * Mix(SunLight, ShadeLight, SmoothStep(0, 50, y)));
    for (int y = 0; y < BayPlain.Height; ++y)
        for (int x = 0; x < BayPlain.Width; ++x)
            sheet.Set(BayPlain.Left + x, BayPlain.Low + y, Weathered(x, y, 461) * (y < 2 ? 0.7 : 1.0) * Shaded);
    return sheet;
}

ModelMesh RoundColumn(double x, double z)
{
    ModelMesh column = Turned("gallery", BayColumn, {{0, 0.46}, {0.42, 0.32}, {2.92, 0.26}, {3.25, 0.45}}, 5, x, z);
    SetRows(column, BayColumn, {0, 10, 70, 79});
    return column;
}

// The underside of the arch between its two faces.
ModelMesh ArchSoffit(double z0, double z1)
{
    constexpr int Steps = 6;
    ModelMesh mesh(Steps + 1, 2);
    mesh.Texture = ModelFolder::PathOf("gallery");
    for (int i = 0; i <= Steps; ++i)
    {
        const double x = -HalfSpan * std::cos(Pi * i / Steps);
        const int v = BaySoffit.Low + base::RoundEven(1.0 * i / Steps * (BaySoffit.Height - 1));
        mesh.At(i, 0) = {x, BayArch(x), z0, BaySoffit.Left, v};
        mesh.At(i, 1) = {x, BayArch(x), z1, BaySoffit.Left + BaySoffit.Width - 1, v};
    }
    return mesh;
}

void AddArcade(Model& model)
{
    constexpr double Thick = 0.22, X = HalfBay;
    for (const double side : {-1.0, 1.0})
        model.Meshes.push_back(Upright("gallery", ArchedWall, -X, ColumnsFront + side * Thick, X,
                                       ColumnsFront + side * Thick, BayWallLow, BayTop, 3));
    model.Meshes.push_back(ArchSoffit(ColumnsFront - Thick, ColumnsFront + Thick));
    model.Meshes.push_back(RoundColumn(-X, ColumnsFront));
    model.Meshes.push_back(RoundColumn(X, ColumnsFront));
    // Toward the lake: a straight beam on square posts.
    model.Meshes.push_back(Upright("gallery", BayPlain, X, ColumnsBack, -X, ColumnsBack, 4.45, BayTop, 2));
    for (const double x : {-X, X})
        for (const double turn : {-1.0, 1.0}) // two crossed faces do for a slim post
            model.Meshes.push_back(Upright("gallery", {BayColumn.Left + (turn < 0 ? 0 : 24), 0, 24, 80}, x - 0.22,
                                           ColumnsBack + turn * 0.22, x + 0.22, ColumnsBack - turn * 0.22, 0, 4.45));
}

void AddRoofAndFloor(Model& model)
{
    constexpr double X = HalfBay, High = 0.14, Step = -2.0;
    model.Meshes.push_back(Face("gallery", RoofShade, {-X, BayEavesHigh, -BayEaves}, {X, BayEavesHigh, -BayEaves},
                                {X, BayRidge, 0}, {-X, BayRidge, 0}, 3));
    model.Meshes.push_back(Face("gallery", RoofLit, {X, BayEavesHigh, BayEaves}, {-X, BayEavesHigh, BayEaves},
                                {-X, BayRidge, 0}, {X, BayRidge, 0}, 3));
    model.Meshes.push_back(Face("gallery", BayBeams, {-X, BayTop - 0.1, ColumnsFront}, {X, BayTop - 0.1, ColumnsFront},
                                {X, BayTop - 0.1, ColumnsBack}, {-X, BayTop - 0.1, ColumnsBack}, 3));
    model.Meshes.push_back(
        Face("gallery", BayFloor, {-X, High, Step}, {X, High, Step}, {X, High, -Step}, {-X, High, -Step}, 3));
    model.Meshes.push_back(
        Upright("gallery", {BayPlain.Left, BayPlain.Low, BayPlain.Width, 5}, -X, Step, X, Step, 0, High, 2));
    for (const double x : {-X, X}) // the ends of the roof
        model.Meshes.push_back(Face("gallery", BayPlain, {x, BayTop - 0.1, ColumnsFront},
                                    {x, BayTop - 0.1, ColumnsBack}, {x, BayRidge - 0.03, 0}, {x, BayRidge - 0.03, 0}));
}
}

void WriteGallery(const ModelFolder& folder)
{
    folder.Texture("gallery", GalleryPicture(), Black::Key);
    Model model;
    model.Mass = HeavyMass;
    AddArcade(model);
    AddRoofAndFloor(model);
    folder.Write("gallery", model);
}
}
