// SPDX-License-Identifier: Zlib
// Terraced houses of a village street: narrow, wall to wall, their fronts along local -z. Each comes twice: with the
// sun on its front, and ("_s") with its front in shade and the sun behind.
#include "assets/track/Facades.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "assets/track/Light.h"
#include "base/Numbers.h"

namespace assets::track
{
namespace
{
constexpr double TerraceDepth = 3.5;
constexpr int FrontTexels = 14, BackTexels = 8; // a unit
constexpr int FrontHigh = 118, StripHigh = 44;  // rows of the fronts, and of the strip below them

enum class AtStreet // what a house has at the street
{
    Shop,   // door and a shop window under an awning
    Portal, // one great door between barred windows
    Arches  // two open arches with shops
};

struct RowHouse
{
    const char* Name;
    double Width, Eaves, Ridge;
    AtStreet Street;
    Rgb Plaster, Shutters;
    int Columns;  // windows of an upper floor
    bool Balcony; // on the first floor
    std::uint32_t Seed;
};

const RowHouse Terrace[] = {
    {"rowhouse_a", 6, 7.6, 8.9, AtStreet::Shop, Hex(0xE9B765), Hex(0x4C6E4E), 2, true, 301},
    {"rowhouse_b", 7, 6.5, 8.1, AtStreet::Portal, Hex(0xDD9478), Hex(0x5A6E7C), 3, false, 302},
    {"rowhouse_c", 8, 8.4, 9.9, AtStreet::Arches, Hex(0xF1E1BC), Hex(0x7C4A34), 3, true, 303},
};

// Where the parts of the houses' one sheet lie. Above the strip with what they share stand fronts and backs.
constexpr Region RoofFront{0, 0, 104, StripHigh}, RoofBack{104, 0, 104, StripHigh};
constexpr Region Railing{400, 0, 56, 12}, Awning{400, 16, 40, 20}, Beam{400, 38, 56, 6};
constexpr int StreetSheetWidth = 462;

Region SideRegion(int house, bool lit)
{
    return {208 + 32 * (2 * house + (lit ? 0 : 1)), 0, 32, StripHigh};
}
Region FrontRegion(int house)
{
    constexpr int Left[] = {0, 84, 182};
    return {Left[house], StripHigh, base::RoundEven(Terrace[house].Width * FrontTexels),
            base::RoundEven(Terrace[house].Eaves * FrontTexels)};
}
Region BackRegion(int house)
{
    constexpr int Left[] = {294, 342, 398};
    return {Left[house], StripHigh, base::RoundEven(Terrace[house].Width * BackTexels), 72};
}

struct StreetLights
{
    Rgb Front, Back, Lit, Shade;
};
StreetLights LightsOf(bool sunny)
{
    const Rgb warm = WallLight(SunX, SunZ), dim = Mix(ShadeLight, SunLight, 0.34);
    return {sunny ? warm : dim, sunny ? dim : warm, WallLight(0, 1), dim};
}

void PaintShopWindow(Canvas& wall, double left, double width, double height, Rgb light)
{
    FillRect(wall, left - 2, 0, width + 4, height + 2, Hex(0x6A4A30) * light);
    FillRect(wall, left, 6, width, height - 6, Hex(0x2B2F36));
    FillRect(wall, left, height * 0.55, width, height * 0.4, Hex(0xE9B968), 0.45); // lamps inside
    for (double x = left + 3; x < left + width - 3; x += 4)
    {
        const int item = base::RoundEven(x);
        const double high = 4 + 7 * HashUnit(item, 0, 311);
        constexpr Rgb Goods[] = {Hex(0xC9483A), Hex(0xE0B04A), Hex(0x6E8F4E), Hex(0xD8D0BE), Hex(0x9A6A44)};
        FillRect(wall, x, 8, 3, high, Goods[Hash(item, 1, 312) % 5] * 0.85);
    }
    for (const double share : {0.0, 0.33, 0.66})
        FillRect(wall, left + share * width, 6, 1, height - 6, Hex(0x6A4A30) * light);
    FillRect(wall, left, 0, width, 6, Hex(0x7C5638) * light);
}

void PaintArch(Canvas& wall, double x, double width, double height, Rgb light)
{
    FillRect(wall, x - width / 2 - 2.5, 0, width + 5, height, Hex(0xD9CBA8) * light);
    FillDisc(wall, {x, height}, width / 2 + 2.5, Hex(0xD9CBA8) * light);
    const Rgb deep = Hex(0x37322E);
    FillRect(wall, x - width / 2, 0, width, height, deep);
    FillDisc(wall, {x, height}, width / 2, deep);
    FillRect(wall, x - width / 2 + 3, 0, width - 6, height - 6, Hex(0x8A6238) * 0.8);
    FillRect(wall, x - width / 2 + 5, 5, width - 10, height - 14, Hex(0xE7B765) * 0.8); // a lit shop inside
    FillRect(wall, x - 0.7, 0, 1.4, height - 6, Hex(0x4A3424));
}

void PaintStreetFloor(Canvas& wall, const RowHouse& house, Rgb light)
{
    const double unit = FrontTexels, wide = wall.Width;
    for (int y = 0; y < 10; ++y) // a foot of grey stone
        for (int x = 0; x < wall.Width; ++x)
            wall.Set(x, y, Hex(0xA79C88) * light * (0.88 + 0.14 * HashUnit(x / 7, y / 5, house.Seed + 5)));
    switch (house.Street)
    {
    case AtStreet::Shop:
        PaintDoor(wall, 1.2 * unit, 1.1 * unit, 2.0 * unit, light);
        PaintShopWindow(wall, 2.6 * unit, 2.7 * unit, 2.2 * unit, light);
        break;
    case AtStreet::Portal:
        PaintDoor(wall, wide / 2, 1.7 * unit, 1.9 * unit, light);
        for (const double x : {1.3 * unit, wide - 1.3 * unit})
        {
            PaintWindow(wall, x, 1.0 * unit, 0.9 * unit, 1.3 * unit, house.Shutters, light, true);
            for (double bar = -0.35; bar < 0.4; bar += 0.23)
                FillRect(wall, x + bar * unit, 1.0 * unit, 0.9, 1.3 * unit, Hex(0x2A2A2E));
        }
        break;
    case AtStreet::Arches:
        PaintArch(wall, 2.0 * unit, 2.3 * unit, 1.55 * unit, light);
        PaintArch(wall, wide - 2.0 * unit, 2.3 * unit, 1.55 * unit, light);
        break;
    }
}

void PaintUpperFloors(Canvas& wall, const RowHouse& house, double storey, Rgb light)
{
    const int floors = base::RoundEven(house.Eaves / 2.75) - 1;
    for (int floor = 1; floor <= floors; ++floor)
    {
        FillRect(wall, 0, floor * storey - 1, wall.Width, 2.2, Hex(0xF2E7CF) * light, 0.55);
        FillRect(wall, 0, floor * storey - 2, wall.Width, 1, Hex(0x6A5844) * light, 0.35);
        for (int column = 0; column < house.Columns; ++column)
        {
            const double x = (column + 0.5) * wall.Width / house.Columns, y = floor * storey + storey * 0.24;
            const double luck = HashUnit(column, floor, house.Seed + 60);
            const double width = 0.92 * FrontTexels, high = storey * (floor == floors ? 0.46 : 0.56);
            PaintWindow(wall, x, y, width, high, house.Shutters, light, luck > 0.35);
            if (HashUnit(column, floor, house.Seed + 70) > 0.55) // geraniums
                for (int i = 0; i < 9; ++i)
                {
                    const Point bloom{x - width / 2 + i * width / 8,
                                      y + 0.5 + 1.2 * HashUnit(i, floor, house.Seed + 71)};
                    FillDisc(wall, bloom, 1.5, (i % 2 == 0 ? Hex(0xD23A34) : Hex(0x5E8A3C)) * light, 0.95);
                }
        }
    }
}

void PaintFront(Canvas& sheet, int index, Rgb light)
{
    const RowHouse& house = Terrace[index];
    const Region r = FrontRegion(index);
    Canvas wall(r.Width, r.Height);
    PaintPlaster(wall, {0, 0, wall.Width, wall.Height}, house.Plaster, light, house.Seed);
    const double storey = 2.75 * FrontTexels;
    PaintUpperFloors(wall, house, storey, light);
    PaintStreetFloor(wall, house, light);
    for (const double x : {0.0, wall.Width - 3.0}) // corner stones
        for (int y = 0; y < wall.Height; y += 8)
            FillRect(wall, x, y, 3, 7, Hex(0xE6DABC) * light, 0.5);
    Paste(sheet, wall, r.Left, r.Low);
}

void PaintBack(Canvas& sheet, int index, Rgb light)
{
    const RowHouse& house = Terrace[index];
    const Region r = BackRegion(index);
    Canvas wall(r.Width, r.Height);
    PaintPlaster(wall, {0, 0, r.Width, r.Height}, house.Plaster, light, house.Seed + 7);
    for (int floor = 0; floor < 3; ++floor)
        for (int column = 0; column < 2; ++column)
            if (HashUnit(column, floor, house.Seed + 80) > 0.2)
                PaintWindow(wall, (column + 0.5) * r.Width / 2, floor * 23.0 + 7, 6, 11, house.Shutters, light,
                            HashUnit(column, floor, house.Seed + 81) > 0.4);
    Paste(sheet, wall, r.Left, r.Low);
}

// Iron bars with geraniums; what lies between stays see-through.
void PaintRailing(Canvas& sheet, Rgb light)
{
    const Region& r = Railing;
    for (int x = 0; x < r.Width; ++x)
        for (int y = 0; y < r.Height; ++y)
        {
            if (x % 3 == 0 || y == 0 || y == r.Height - 1)
                sheet.Set(r.Left + x, r.Low + y, Hex(0x3E4044) * light);
            const double bush = 5.0 + 3.5 * Noise(x / 3.0, 0.5, 321) + 2 * HashUnit(x, y, 322);
            if (y > 3 && y < bush + 2)
                sheet.Set(r.Left + x, r.Low + y,
                          (HashUnit(x / 2, y / 2, 323) > 0.55 ? Hex(0xDA4038) : Hex(0x5C8A3E)) * light);
        }
}

void PaintAwning(Canvas& sheet, Rgb light)
{
    const Region& r = Awning;
    for (int y = 0; y < r.Height; ++y)
        for (int x = 0; x < r.Width; ++x)
            sheet.Set(r.Left + x, r.Low + y,
                      ((x / 5) % 2 == 0 ? Hex(0xF4EDDC) : Hex(0xC63A2B)) * light * (y < 4 ? 0.8 : 0.9 + 0.01 * y));
}

Canvas HousesSheet(bool sunny)
{
    Canvas sheet(StreetSheetWidth, StripHigh + FrontHigh);
    const StreetLights lights = LightsOf(sunny);
    PaintTiles(sheet, RoofFront, sunny ? SunLight : Mix(ShadeLight, SunLight, 0.4), 331);
    PaintTiles(sheet, RoofBack, sunny ? Mix(ShadeLight, SunLight, 0.4) : SunLight, 332);
    PaintRailing(sheet, lights.Front);
    PaintAwning(sheet, lights.Front);
    FillRect(sheet, Beam.Left, Beam.Low, Beam.Width, Beam.Height, Hex(0xD9CCB0) * lights.Front);
    FillRect(sheet, Beam.Left, Beam.Low, Beam.Width, 2, Hex(0x8C7C64) * lights.Front);
    for (int house = 0; house < 3; ++house)
    {
        PaintFront(sheet, house, lights.Front);
        PaintBack(sheet, house, lights.Back);
        for (const bool lit : {true, false})
            PaintPlaster(sheet, SideRegion(house, lit), Terrace[house].Plaster, lit ? lights.Lit : lights.Shade,
                         Terrace[house].Seed + 9);
    }
    return sheet;
}

void AddBody(Model& model, const std::string& sheet, int index, bool sunny)
{
    const RowHouse& house = Terrace[index];
    const double x = house.Width / 2, z = TerraceDepth;
    model.Meshes.push_back(Upright(sheet, FrontRegion(index), -x, -z, x, -z, 0, house.Eaves, 4, 3));
    model.Meshes.push_back(Upright(sheet, BackRegion(index), x, z, -x, z, 0, house.Eaves, 2, 1));
    // A front in the sun looks west and has its right flank to the south, away from it; the other way round in shade.
    for (const double flank : {-1.0, 1.0})
    {
        const Region side = SideRegion(index, (flank < 0) == sunny);
        model.Meshes.push_back(Upright(sheet, side, flank * x, flank * -z, flank * x, flank * z, 0, house.Eaves));
        model.Meshes.push_back(Face(sheet, {side.Left, side.Low, side.Width, StripHigh - 14},
                                    {flank * x, house.Eaves, -z}, {flank * x, house.Eaves, z},
                                    {flank * x, house.Ridge, 0}, {flank * x, house.Ridge, 0}));
    }
    const double low = house.Eaves - 0.15, out = z + 0.55, drop = 0.18;
    model.Meshes.push_back(
        Face(sheet, RoofFront, {-x, low, -out}, {x, low, -out}, {x, house.Ridge, 0}, {-x, house.Ridge, 0}, 2));
    model.Meshes.push_back(
        Face(sheet, RoofBack, {x, low, out}, {-x, low, out}, {-x, house.Ridge, 0}, {x, house.Ridge, 0}, 2));
    model.Meshes.push_back(Upright(sheet, Beam, -x, -out, x, -out, low - drop, low, 2));
    AddChimney(model, x * 0.5, 0.9, house.Eaves + 0.5, house.Ridge + 0.7);
}

void AddBalcony(Model& model, const std::string& sheet, const RowHouse& house)
{
    const double x = house.Width * 0.36, z = -TerraceDepth, out = z - 0.75, low = 2.72, floor = 2.86,
                 top = floor + 0.85;
    model.Meshes.push_back(Face(sheet, Beam, {-x, low, out}, {x, low, out}, {x, low, z}, {-x, low, z}));
    model.Meshes.push_back(Upright(sheet, Beam, -x, out, x, out, low, floor));
    model.Meshes.push_back(Upright(sheet, Railing, -x, out, x, out, floor, top, 2));
    const Region end{Railing.Left, Railing.Low, 10, Railing.Height};
    model.Meshes.push_back(Upright(sheet, end, -x, z, -x, out, floor, top));
    model.Meshes.push_back(Upright(sheet, end, x, out, x, z, floor, top));
}

void AddAwning(Model& model, const std::string& sheet, double x0, double x1)
{
    const double z = -TerraceDepth - 0.02, out = z - 1.0, low = 2.02, high = 2.6;
    model.Meshes.push_back(Face(sheet, {Awning.Left, Awning.Low + 5, Awning.Width, Awning.Height - 5}, {x0, low, out},
                                {x1, low, out}, {x1, high, z}, {x0, high, z}, 2));
    model.Meshes.push_back(
        Upright(sheet, {Awning.Left, Awning.Low, Awning.Width, 5}, x0, out, x1, out, low - 0.22, low));
}
}

void WriteRowhouses(const ModelFolder& folder)
{
    for (const bool sunny : {true, false})
    {
        const std::string ending = sunny ? "" : "_s", sheet = "rowhouses" + ending;
        folder.Texture(sheet, HousesSheet(sunny), Black::Key);
        for (int index = 0; index < 3; ++index)
        {
            const RowHouse& house = Terrace[index];
            Model model;
            model.Mass = HeavyMass;
            AddBody(model, sheet, index, sunny);
            if (house.Balcony)
                AddBalcony(model, sheet, house);
            if (house.Street == AtStreet::Shop)
                AddAwning(model, sheet, -0.6, 2.5);
            folder.Write(house.Name + ending, model);
        }
    }
}
}
