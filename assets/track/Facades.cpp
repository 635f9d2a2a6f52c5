// SPDX-License-Identifier: Zlib
#include "assets/track/Facades.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "assets/track/Light.h"

namespace assets::track
{
void PaintPlaster(Canvas& sheet, const Region& r, Rgb colour, Rgb light, std::uint32_t seed)
{
    for (int y = 0; y < r.Height; ++y)
        for (int x = 0; x < r.Width; ++x)
        {
            const double cloud = Fbm(x / 22.0, y / 22.0, seed, 4), streak = Fbm(x / 3.0, y / 40.0, seed + 1, 3);
            const double foot = SmoothStep(12, 0, y + 6 * cloud);
            Rgb c = colour * (1 + 0.09 * cloud + 0.05 * streak + 0.05 * (HashUnit(x, y, seed + 2) - 0.5));
            c = Mix(c, Hex(0xA38F76), 0.5 * foot);
            const double eaves = SmoothStep(r.Height - 12.0, r.Height - 2.0, y); // shadow below the roof
            sheet.Set(r.Left + x, r.Low + y, c * light * (1 - 0.38 * eaves));
        }
}

void PaintWindow(Canvas& sheet, double x, double y, double width, double height, Rgb shutters, Rgb light, bool open)
{
    FillRect(sheet, x - width / 2 - 1, y - 1.5, width + 2, 1.8, Hex(0xE8DFC8) * light);
    FillRect(sheet, x - width / 2 - 0.8, y, width + 1.6, height + 1, Hex(0xE6DAC2) * light);
    const Rgb pane = open ? Hex(0x2E3840) : shutters * light;
    FillRect(sheet, x - width / 2, y, width, height, pane);
    if (!open)
    {
        for (double slat = y + 1; slat < y + height - 0.5; slat += 2)
            FillRect(sheet, x - width / 2 + 0.5, slat, width - 1, 0.8, shutters * light * 0.72);
        FillRect(sheet, x - 0.4, y, 0.8, height, shutters * light * 0.6);
        return;
    }
    FillRect(sheet, x - width / 2, y + height * 0.45, width, height * 0.55, Hex(0x5E7484) * light, 0.7);
    FillRect(sheet, x - 0.35, y, 0.7, height, Hex(0xE8DFC8) * light);
    for (const double side : {-1.0, 1.0}) // shutters folded back against the wall
    {
        const double left = side < 0 ? x - width / 2 - width * 0.62 : x + width / 2 + 0.12 * width;
        FillRect(sheet, left, y, width * 0.5, height, shutters * light);
        for (double slat = y + 1; slat < y + height - 0.5; slat += 2)
            FillRect(sheet, left + 0.4, slat, width * 0.5 - 0.8, 0.8, shutters * light * 0.75);
        FillRect(sheet, left + 0.8, y - 0.8, width * 0.5, 0.9, Hex(0x6B5A48) * light, 0.5);
    }
}

void PaintDoor(Canvas& sheet, double x, double width, double height, Rgb light)
{
    FillRect(sheet, x - width / 2 - 1.5, 0, width + 3, height + 1.5, Hex(0xCDBFA4) * light);
    FillDisc(sheet, {x, height}, width / 2 + 1.2, Hex(0xCDBFA4) * light);
    FillDisc(sheet, {x, height}, width / 2, Hex(0x5B3B26) * light);
    FillRect(sheet, x - width / 2, 0, width, height, Hex(0x5B3B26) * light);
    FillRect(sheet, x - 0.4, 0, 0.8, height + width / 2, Hex(0x38251A) * light);
}

void PaintTiles(Canvas& sheet, const Region& r, Rgb light, std::uint32_t seed)
{
    for (int y = 0; y < r.Height; ++y)
        for (int x = 0; x < r.Width; ++x)
        {
            const int course = y / 5, tile = (x + (course % 2) * 2) / 4;
            const double tone = HashUnit(tile, course, seed),
                         arc = std::sin(Pi * ((x + (course % 2) * 2) % 4 + 0.5) / 4);
            const double lip = y % 5 == 0 ? 0.72 : 1;
            Rgb c = Mix(Hex(0xB5573A), Hex(0xD98A5A), tone);
            if (tone > 0.93)
                c = Hex(0xA88A66);
            const double moss = SmoothStep(0.15, 0.5, Fbm(x / 18.0, y / 18.0, seed + 3, 3));
            c = Mix(c, Hex(0x8A7A52), 0.35 * moss) * (0.72 + 0.36 * arc) * lip;
            sheet.Set(r.Left + x, r.Low + y, c * light);
        }
}

void PaintStone(Canvas& sheet, const Region& r, Rgb light, std::uint32_t seed, int course, int length)
{
    for (int y = 0; y < r.Height; ++y)
        for (int x = 0; x < r.Width; ++x)
        {
            const int row = y / course, along = x + row % 2 * length / 2 + row % 3;
            const double tone = HashUnit(along / length, row, seed);
            const bool joint = y % course == 0 || along % length == 0;
            Rgb c = Mix(Hex(0xDCC9A2), Hex(0xB9A582), tone) * (joint ? 0.84 : 1.0);
            c = c * (1 + 0.08 * Fbm(x / 20.0, y / 20.0, seed + 4, 3));
            sheet.Set(r.Left + x, r.Low + y, c * light);
        }
}

void AddChimney(Model& model, double x, double z, double low, double high)
{
    const double r = 0.4;
    const Rgb brick = Hex(0xB5714F);
    model.Meshes.push_back(FlatFace(brick * ShadeLight, {x - r, low, z - r}, {x + r, low, z - r}, {x + r, high, z - r},
                                    {x - r, high, z - r}));
    model.Meshes.push_back(
        FlatFace(brick, {x - r, low, z + r}, {x + r, low, z + r}, {x + r, high, z + r}, {x - r, high, z + r}));
    model.Meshes.push_back(
        FlatFace(brick, {x - r, low, z - r}, {x - r, low, z + r}, {x - r, high, z + r}, {x - r, high, z - r}));
    model.Meshes.push_back(FlatFace(brick * ShadeLight, {x + r, low, z - r}, {x + r, low, z + r}, {x + r, high, z + r},
                                    {x + r, high, z - r}));
}
}
