// SPDX-License-Identifier: Zlib
// Village houses, villa, church and bell tower. Walls stand along the axes: each side has its own light.
#include "assets/track/Facades.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "assets/track/Light.h"
#include "base/Numbers.h"

#include <array>

namespace assets::track
{
namespace
{
constexpr int WallWidth = 96, WallHeight = 96; // texels of one side
constexpr int RoofWidth = 128, RoofHeight = 64;
constexpr int SheetWidth = 4 * WallWidth, SheetHeight = WallHeight + RoofHeight;

struct House
{
    const char* Name;
    double HalfX, HalfZ, Eaves, Ridge;
    Rgb Plaster, Shutters;
    int Floors;
    std::uint32_t Seed;
};

const House HouseList[] = {
    {"house_a", 5.0, 4.0, 4.8, 6.6, Hex(0xEBC57F), Hex(0x54704A), 2, 1},
    {"house_b", 4.0, 4.5, 6.9, 8.6, Hex(0xE0A184), Hex(0x5C6B77), 3, 2},
    {"house_c", 6.5, 4.0, 4.2, 6.0, Hex(0xF0E0BE), Hex(0x7A4B32), 2, 3},
    {"house_d", 3.6, 3.6, 8.0, 9.6, Hex(0xD98E62), Hex(0x4A6B58), 3, 4},
    {"villa", 8.0, 5.0, 6.2, 8.4, Hex(0xF3D9A0), Hex(0x3F6650), 2, 5},
};

void Facade(Canvas& sheet, const Region& r, const House& house, int side, double metres, Rgb light)
{
    // Painted apart, so that nothing runs into the neighbour's part of the sheet.
    Canvas wall(r.Width, r.Height);
    const Region whole{0, 0, r.Width, r.Height};
    PaintPlaster(wall, whole, house.Plaster, light, house.Seed * 31u + static_cast<std::uint32_t>(side));
    const double perUnit = r.Width / metres, storey = r.Height / (house.Floors + 0.12);
    const int columns = std::max(1, base::RoundEven(metres / 2.9));
    const double width = 1.0 * perUnit, high = storey * 0.46;
    for (int floor = 0; floor < house.Floors; ++floor)
        for (int column = 0; column < columns; ++column)
        {
            const double x = (column + 0.5) * r.Width / columns, y = floor * storey + storey * 0.32;
            const double luck = HashUnit(column * 4 + side, floor, house.Seed + 60);
            if (floor == 0 && column == (columns - 1) / 2 && side % 2 == 0)
                PaintDoor(wall, x, 1.25 * perUnit, storey * 0.56, light);
            else if (luck < 0.86)
                PaintWindow(wall, x, y, width, high, house.Shutters, light, luck > 0.3);
            if (floor > 0 && luck > 0.3 && HashUnit(column, floor, house.Seed + 70) > 0.6) // flower boxes
                for (int i = 0; i < 7; ++i)
                    FillDisc(wall, {x - width / 2 + i * width / 6, y + 0.3}, 1.0,
                             i % 2 == 0 ? Hex(0xC8352F) * light : Hex(0x5E8A3C) * light, 0.9);
        }
    if (house.Floors > 1)
        FillRect(wall, 0, storey - 1, r.Width, 1.6, Hex(0xEFE4CC) * light, 0.5);
    Paste(sheet, wall, r.Left, r.Low);
}

Region WallRegion(int side)
{
    return {side * WallWidth, RoofHeight, WallWidth, WallHeight};
}
Region RoofRegion(int slope)
{
    return {slope * RoofWidth, 0, RoofWidth, RoofHeight};
}

// Sides: 0 south, 1 east, 2 north, 3 west. Texel columns run to the right as seen from outside.
constexpr std::array<Point, 4> SideNormals{{{0, -1}, {1, 0}, {0, 1}, {-1, 0}}};
// Roof slopes: 0 south, 1 north (plus the gables' plain wall in what is left).
const Rgb RoofLights[2] = {Mix(ShadeLight, SunLight, 0.45), SunLight};

Canvas HouseSheet(const House& house)
{
    Canvas sheet(SheetWidth, SheetHeight, Hex(0x808080));
    for (int side = 0; side < 4; ++side)
    {
        const Point normal = SideNormals[static_cast<std::size_t>(side)];
        const double metres = 2 * (side % 2 == 0 ? house.HalfX : house.HalfZ);
        Facade(sheet, WallRegion(side), house, side, metres, WallLight(normal.X, normal.Y));
    }
    for (int slope = 0; slope < 2; ++slope)
        PaintTiles(sheet, RoofRegion(slope), RoofLights[slope], house.Seed * 17u);
    // Plain plaster for the gables, lit from the west and unlit in the east.
    for (int gable = 0; gable < 2; ++gable)
        PaintPlaster(sheet, {2 * RoofWidth + gable * 64, 0, 64, RoofHeight}, house.Plaster,
                     WallLight(gable == 0 ? 1 : -1, 0), house.Seed * 13u);
    return sheet;
}

void AddWalls(Model& model, const std::string& texture, double hx, double hz, double high)
{
    model.Meshes.push_back(Upright(texture, WallRegion(0), -hx, -hz, hx, -hz, 0, high, 2));
    model.Meshes.push_back(Upright(texture, WallRegion(1), hx, -hz, hx, hz, 0, high, 2));
    model.Meshes.push_back(Upright(texture, WallRegion(2), hx, hz, -hx, hz, 0, high, 2));
    model.Meshes.push_back(Upright(texture, WallRegion(3), -hx, hz, -hx, -hz, 0, high, 2));
}

// Ridge along x; the roof reaches over the walls.
void AddRoof(Model& model, const std::string& texture, double hx, double hz, double eaves, double ridge)
{
    const double over = 0.55, low = eaves - 0.25, x = hx + 0.35, z = hz + over;
    model.Meshes.push_back(Face(texture, RoofRegion(0), {-x, low, -z}, {x, low, -z}, {x, ridge, 0}, {-x, ridge, 0}, 2));
    model.Meshes.push_back(Face(texture, RoofRegion(1), {x, low, z}, {-x, low, z}, {-x, ridge, 0}, {x, ridge, 0}, 2));
    const Region east{2 * RoofWidth, 0, 64, RoofHeight - 14}, west{2 * RoofWidth + 64, 0, 64, RoofHeight - 14};
    model.Meshes.push_back(
        Face(texture, east, {hx, eaves, -hz}, {hx, eaves, hz}, {hx, ridge - 0.1, 0}, {hx, ridge - 0.1, 0}));
    model.Meshes.push_back(
        Face(texture, west, {-hx, eaves, hz}, {-hx, eaves, -hz}, {-hx, ridge - 0.1, 0}, {-hx, ridge - 0.1, 0}));
}

void WriteHouse(const ModelFolder& folder, const House& house)
{
    folder.Texture(house.Name, HouseSheet(house));
    Model model;
    model.Mass = HeavyMass;
    AddWalls(model, house.Name, house.HalfX, house.HalfZ, house.Eaves);
    AddRoof(model, house.Name, house.HalfX, house.HalfZ, house.Eaves, house.Ridge);
    AddChimney(model, house.HalfX * 0.45, house.HalfZ * 0.35, house.Eaves + 0.6, house.Ridge + 0.5);
    folder.Write(house.Name, model);
}

void WriteChurch(const ModelFolder& folder)
{
    const House church{"church", 9.0, 5.0, 6.2, 9.0, Hex(0xEAD9B4), Hex(0x6B4A35), 1, 9};
    Canvas sheet = HouseSheet(church);
    for (int side = 0; side < 4; ++side)
    {
        const Region r = WallRegion(side);
        const Point normal = SideNormals[static_cast<std::size_t>(side)];
        const Rgb light = WallLight(normal.X, normal.Y);
        PaintStone(sheet, r, light, 91);
        if (side == 3) // the front looks west, into the evening sun
        {
            Canvas front(r.Width, r.Height);
            PaintDoor(front, r.Width / 2.0, 22, 26, light);
            FillDisc(front, {r.Width / 2.0, 66}, 12, Hex(0xF4EAD2) * light);
            FillDisc(front, {r.Width / 2.0, 66}, 9.5, Hex(0x3C4654));
            for (int ray = 0; ray < 8; ++ray)
            {
                const double angle = Pi * ray / 4;
                const Point spoke[] = {{r.Width / 2.0, 66},
                                       {r.Width / 2.0 + 10 * std::cos(angle), 66 + 10 * std::sin(angle)}};
                Stroke(front, spoke, 1.4, Hex(0xE8DABC) * light);
            }
            Paste(sheet, front, r.Left, r.Low);
        }
        else
        {
            for (int i = 0; i < 3; ++i) // tall round-headed windows
            {
                const double x = r.Left + r.Width * (i + 0.5) / 3;
                FillRect(sheet, x - 4, r.Low + 34, 8, 30, Hex(0xF0E4C8) * light);
                FillDisc(sheet, {x, r.Low + 64.0}, 4, Hex(0xF0E4C8) * light);
                FillRect(sheet, x - 2.7, r.Low + 36, 5.4, 28, Hex(0x364250));
                FillDisc(sheet, {x, r.Low + 64.0}, 2.7, Hex(0x364250));
            }
        }
    }
    folder.Texture("church", sheet);
    Model model;
    model.Mass = HeavyMass;
    AddWalls(model, "church", church.HalfX, church.HalfZ, church.Eaves);
    AddRoof(model, "church", church.HalfX, church.HalfZ, church.Eaves, church.Ridge);
    folder.Write("church", model);
}

void WriteTower(const ModelFolder& folder)
{
    constexpr int Side = 48, High = 224;
    constexpr double Half = 2.3, Top = 22.5, Tip = 27.5;
    Canvas sheet(4 * Side, High + 32, Hex(0x808080));
    for (int side = 0; side < 4; ++side)
    {
        const Point normal = SideNormals[static_cast<std::size_t>(side)];
        const Rgb light = WallLight(normal.X, normal.Y);
        const Region r{side * Side, 32, Side, High};
        PaintStone(sheet, r, light, 95);
        const double x = r.Left + Side / 2.0;
        for (const double level : {70.0, 140.0, 172.0, 214.0}) // string courses
        {
            FillRect(sheet, r.Left, r.Low + level, Side, 4, Hex(0xF2E6CA) * light);
            FillRect(sheet, r.Left, r.Low + level - 2, Side, 2, Hex(0x8A775A) * light, 0.7);
        }
        for (const double dx : {-9.0, 9.0}) // the bells' openings
        {
            FillRect(sheet, x + dx - 6, r.Low + 178, 12, 22, Hex(0x2B2A2E));
            FillDisc(sheet, {x + dx, r.Low + 200.0}, 6, Hex(0x2B2A2E));
            FillDisc(sheet, {x + dx, r.Low + 186.0}, 3.4, Hex(0xA8803C) * light);
        }
        FillDisc(sheet, {x, r.Low + 155.0}, 11, Hex(0xF6EEDA) * light); // the clock
        FillDisc(sheet, {x, r.Low + 155.0}, 9, Hex(0xE7E0C8) * light);
        const Point hour[] = {{x, r.Low + 155.0}, {x + 3.6, r.Low + 150.0}};
        const Point minute[] = {{x, r.Low + 155.0}, {x - 1, r.Low + 162.5}};
        Stroke(sheet, hour, 1.8, Hex(0x2F2A28));
        Stroke(sheet, minute, 1.2, Hex(0x2F2A28));
        for (const double level : {30.0, 104.0})
            FillRect(sheet, x - 2.5, r.Low + level, 5, 14, Hex(0x38332F));
        PaintTiles(sheet, {side * Side, 0, Side, 32}, side == 2 || side == 3 ? SunLight : RoofLights[0], 97);
    }
    folder.Texture("tower", sheet);
    Model model;
    model.Mass = HeavyMass;
    const Vec3 corners[] = {{-1, 0, -1}, {1, 0, -1}, {1, 0, 1}, {-1, 0, 1}};
    for (int side = 0; side < 4; ++side)
    {
        const Vec3 a = corners[side], b = corners[(side + 1) % 4];
        model.Meshes.push_back(Upright("tower", {side * Side, 32, Side, High}, a.X * Half, a.Z * Half, b.X * Half,
                                       b.Z * Half, 0, Top, 1, 4));
        const double eaves = Half + 0.5;
        model.Meshes.push_back(Face("tower", {side * Side, 0, Side, 32}, {a.X * eaves, Top - 0.1, a.Z * eaves},
                                    {b.X * eaves, Top - 0.1, b.Z * eaves}, {0, Tip, 0}, {0, Tip, 0}, 1, 2));
    }
    folder.Write("tower", model);
}
}

void WriteHouses(const ModelFolder& folder)
{
    for (const House& house : HouseList)
        WriteHouse(folder, house);
    WriteChurch(folder);
    WriteTower(folder);
}
}
