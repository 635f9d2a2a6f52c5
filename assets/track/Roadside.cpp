// SPDX-License-Identifier: Zlib
// Walls, fences, tyre stacks, and light things that a car passes through. Fronts look along local -z.
#include "assets/track/Models.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "assets/track/Light.h"
#include "base/Numbers.h"

#include <functional>

namespace assets::track
{
namespace
{
// The two faces, the coping and the ends of a straight wall: the picture's rows below `coping` are the face, those
// above the top.
Model WallModel(const std::string& texture, int width, int height, int coping, double halfThick, double high)
{
    constexpr double X = 6;
    const Region face{0, 0, width, coping}, end{0, 0, 12, coping}, top{0, coping, width, height - coping};
    const double z = halfThick;
    Model model;
    model.Mass = HeavyMass;
    model.Meshes.push_back(Upright(texture, face, -X, -z, X, -z, 0, high, 3, 1));
    model.Meshes.push_back(Upright(texture, face, X, z, -X, z, 0, high));
    model.Meshes.push_back(Face(texture, top, {-X, high, -z}, {X, high, -z}, {X, high, z}, {-X, high, z}));
    for (const double x : {-X, X})
        model.Meshes.push_back(Upright(texture, end, x, -z, x, z, 0, high));
    return model;
}

void WriteStoneWall(const ModelFolder& folder)
{
    constexpr int Width = 192;
    Canvas picture(Width, 34);
    for (int y = 0; y < 34; ++y)
        for (int x = 0; x < Width; ++x)
        {
            // Repeats along the wall, so that pieces join.
            const CellDistance stone = Cells(x / 8.0, y / 5.2, 1101, Width / 8, 0);
            const double tone = (stone.Id & 255u) / 255.0;
            Rgb c = Mix(Hex(0xD2C09A), Hex(0x9A8C74), tone) * (0.92 + 0.16 * HashUnit(x, y, 1102));
            c = Mix(c, Hex(0x6E624E), 0.7 * SmoothStep(0.14, 0.03, stone.Second - stone.First));
            const double wild = 5 * Noise(x / 12.0, 0, 1104, Width / 12);
            c = Mix(c, Hex(0x7E8A4E), 0.55 * SmoothStep(8, 1, y + wild));
            if (y >= 22) // coping slabs: their edge, then their top
                c = Hex(0xE0D3B4) * (0.95 + 0.08 * HashUnit(x, y, 1103)) * (x % 24 == 0 ? 0.75 : 1);
            if (y == 21)
                c = c * 0.62;
            picture.Set(x, y, c * (y < 22 ? 0.8 + 0.14 * y / 22 : y < 25 ? 0.98 : 1.06));
        }
    folder.Texture("stonewall", picture);
    Model wall = WallModel("stonewall", Width, 34, 25, 0.35, 1.3);
    folder.Write("stonewall", wall);
    wall.Meshes = {Upright("stonewall", {0, 0, Width, 25}, -6, -0.35, 6, -0.35, 0, 1.3), wall.Meshes[2]};
    folder.Write("stonewall_rim", wall); // seen from afar, and its back looks out of the world
}

void WritePitWall(const ModelFolder& folder)
{
    Canvas picture(192, 20);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 192; ++x)
        {
            Rgb c = (x / 24) % 2 == 0 ? Hex(0xEDE8DC) : Hex(0xC63A2B);
            if (y < 9)
                c = Hex(0xC4BEB0);
            c = c *
                (0.93 + 0.09 * HashUnit(x, y, 1111) - 0.12 * SmoothStep(0.1, 0.5, Fbm(x / 12.0, y / 8.0, 1112, 3, 16)));
            picture.Set(x, y, x % 48 == 0 ? c * 0.7 : c);
        }
    folder.Texture("pitwall", picture);
    folder.Write("pitwall", WallModel("pitwall", 192, 20, 18, 0.25, 1.0));
}

void WriteFence(const ModelFolder& folder)
{
    Canvas picture(192, 48);
    for (int post = 0; post < 4; ++post)
        FillRect(picture, post * 48 + 1, 0, 4, 48, Hex(0xB8BCC0));
    for (const double wire : {3.0, 15.0, 27.0, 40.0})
        FillRect(picture, 0, wire, 192, 2, Hex(0xC4C8CC));
    for (int y = 0; y < 46; ++y)
        for (int x = 0; x < 192; ++x)
            if (((x + y) % 12 == 0) || ((x - y + 192) % 12 == 0))
                picture.Set(x, y, Hex(0xA4AAB0));
    folder.Texture("fence", picture, Black::Key);
    Model model;
    model.Mass = HeavyMass;
    model.Meshes.push_back(Upright("fence", {0, 0, 192, 48}, -6, 0, 6, 0, 0, 2.6, 6, 1));
    folder.Write("fence", model);
}

void WriteTyres(const ModelFolder& folder)
{
    Canvas picture(64, 48);
    for (int y = 0; y < 36; ++y)
        for (int x = 0; x < 64; ++x)
        {
            const int tyre = y / 12;
            const double bulge = std::sin(Pi * (y % 12 + 0.5) / 12), around = 2 * Pi * (x + 0.5) / 64;
            const Rgb base = tyre == 1 ? Hex(0xE8E2D6) : tyre == 2 ? Hex(0xC63A2B) : Hex(0x4A4846);
            const double light = 0.45 + 0.55 * Clamp01(0.5 + 0.5 * std::cos(around - 2.5));
            picture.Set(x, y, base * light * (0.55 + 0.5 * bulge) * (0.92 + 0.12 * HashUnit(x, y, 1121)));
        }
    for (int y = 36; y < 48; ++y)
        for (int x = 0; x < 64; ++x)
            picture.Set(x, y, Mix(Hex(0x1C1B1C), Hex(0x6A6562), (y - 36) / 11.0) * (0.9 + 0.2 * HashUnit(x, y, 1122)));
    folder.Texture("tyres", picture);
    Model model;
    model.Mass = LightMass;
    constexpr double R = 0.8, High = 1.15;
    constexpr int Sides = 6;
    constexpr Region Around{0, 0, 64, 36}, Top{0, 36, 64, 12};
    model.Meshes.push_back(Turned("tyres", Around, {{0, R}, {High, R}}, Sides));
    model.Meshes.push_back(Turned("tyres", Top, {{High, R}, {High - 0.5, R * 0.4}}, Sides));
    SetRows(model.Meshes.back(), Top, {11, 0});
    model.Spheres.push_back(SphereAt(0, 0.55, 0, 0.8));
    folder.Write("tyres", model);
}

// Round things are lit from the west; the rows of their pictures are colours from the foot up.
Canvas RoundPicture(int width, int height, const std::function<Rgb(int)>& colour)
{
    Canvas picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
        {
            const double around = 2 * Pi * (x + 0.5) / width;
            const double sun = std::cos(around) * SunX + std::sin(around) * SunZ;
            picture.Set(x, y, colour(y) * Mix(ShadeLight, SunLight, SmoothStep(-0.7, 0.6, sun)));
        }
    return picture;
}

// Thin plastic: light shines through the side away from the sun.
void WriteCone(const ModelFolder& folder)
{
    const auto colour = [](int y) {
        return (y > 9 && y < 15) || (y > 20 && y < 24) ? Hex(0xFBF7EC) : y < 2 ? Hex(0xC8501C) : Hex(0xFF7A30);
    };
    folder.Texture("cone", RoundPicture(24, 32, colour));
    Model model;
    model.Mass = LightMass;
    model.Meshes.push_back(Turned("cone", {0, 0, 24, 32}, {{0.04, 0.25}, {0.82, 0.05}}, 5));
    model.Meshes.push_back(
        FlatFace(Hex(0xE0682C), {-0.3, 0.03, -0.3}, {0.3, 0.03, -0.3}, {0.3, 0.03, 0.3}, {-0.3, 0.03, 0.3}));
    folder.Write("cone", model);
}

// A bending post of plastic with a reflecting band.
void WriteBollard(const ModelFolder& folder)
{
    const auto colour = [](int y) {
        return y > 24 && y < 33   ? Hex(0xE0452F)
               : y > 33 && y < 36 ? Hex(0xF8D060)
               : y < 2            ? Hex(0x9A958A)
                                  : Hex(0xFBF8F0);
    };
    folder.Texture("bollard", RoundPicture(12, 40, colour));
    Model model;
    model.Mass = LightMass;
    model.Meshes.push_back(Turned("bollard", {0, 0, 12, 40}, {{0, 0.1}, {1.06, 0.08}}, 4));
    folder.Write("bollard", model);
}

void WriteBale(const ModelFolder& folder)
{
    Canvas picture(64, 64);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
        {
            const double straw = Fbm(x / 2.0, y / 14.0, 1131, 3);
            const double light = y < 32 ? 0.55 + 0.5 * std::sin(Pi * (y + 6) / 44.0) : 0.9;
            picture.Set(x, y, Mix(Hex(0xD8BE74), Hex(0xA98B4C), Clamp01(0.5 + straw)) * light);
        }
    for (double r = 3; r < 16; r += 3) // the end: a spiral
        for (int i = 0; i < 90; ++i)
        {
            const double angle = 2 * Pi * i / 90;
            picture.Blend(base::RoundEven(16 + r * std::cos(angle)),
                          base::RoundEven(48 + (r + i / 30.0) * std::sin(angle) * 0.95), Hex(0x8A6F3A), 0.6);
        }
    folder.Texture("bale", picture);
    Model model;
    model.Mass = HeavyMass;
    constexpr int Sides = 8;
    constexpr double R = 0.95, Half = 0.85;
    ModelMesh round(Sides + 1, 2);
    round.Texture = ModelFolder::PathOf("bale");
    for (int i = 0; i <= Sides; ++i)
    {
        const double angle = 2 * Pi * i / Sides - Pi / 2;
        const double y = R + R * std::sin(angle), z = R * std::cos(angle);
        const int v = base::RoundEven(15.5 + 15.5 * std::sin(angle));
        round.At(i, 0) = {-Half, y, z, 0, v};
        round.At(i, 1) = {Half, y, z, 63, v};
    }
    model.Meshes.push_back(round);
    for (const double side : {-1.0, 1.0})
    {
        ModelMesh end(2, Sides + 1);
        end.Texture = ModelFolder::PathOf("bale");
        for (int j = 0; j <= Sides; ++j)
        {
            const double angle = 2 * Pi * j / Sides;
            end.At(0, j) = {side * Half, R + R * std::sin(angle), R * std::cos(angle),
                            base::RoundEven(16 + 15 * std::cos(angle)), base::RoundEven(48 + 15 * std::sin(angle))};
            end.At(1, j) = {side * Half, R, 0, 16, 48};
        }
        model.Meshes.push_back(end);
    }
    folder.Write("bale", model);
}

void WriteMarshal(const ModelFolder& folder)
{
    Canvas picture(128, 64, Hex(0xE8DCC0));
    for (int side = 0; side < 4; ++side)
    {
        constexpr Point Normals[] = {{0, -1}, {1, 0}, {0, 1}, {-1, 0}};
        for (int y = 0; y < 64; ++y)
            for (int x = 0; x < 32; ++x)
                picture.Set(side * 32 + x, y,
                            (x % 6 == 0 ? Hex(0xC9863C) : Hex(0xE8A850)) * WallLight(Normals[side].X, Normals[side].Y));
        FillRect(picture, side * 32 + 4, 28, 24, 24, Hex(0x3A3A40));
        FillRect(picture, side * 32 + 4, 26, 24, 2, Hex(0xF2E8D0));
    }
    FillDisc(picture, {16, 40}, 4, Hex(0xE2B088)); // the marshal looks out
    FillRect(picture, 10, 28, 12, 9, Hex(0xF07A2A));
    folder.Texture("marshal", picture);
    Model model;
    model.Mass = HeavyMass;
    const Point corners[] = {{-1.1, -1.1}, {1.1, -1.1}, {1.1, 1.1}, {-1.1, 1.1}};
    for (int side = 0; side < 4; ++side)
    {
        const Point a = corners[side], b = corners[(side + 1) % 4];
        model.Meshes.push_back(Upright("marshal", {side * 32, 0, 32, 64}, a.X, a.Y, b.X, b.Y, 0, 2.6, 2, 3));
    }
    model.Meshes.push_back(
        FlatFace(Hex(0xB5573A), {-1.5, 2.6, -1.5}, {1.5, 2.6, -1.5}, {1.5, 3.0, 1.5}, {-1.5, 3.0, 1.5}));
    folder.Write("marshal", model);
}
}

void WriteRoadside(const ModelFolder& folder)
{
    WriteStoneWall(folder);
    WritePitWall(folder);
    WriteFence(folder);
    WriteTyres(folder);
    WriteCone(folder);
    WriteBollard(folder);
    WriteBale(folder);
    WriteMarshal(folder);
}
}
