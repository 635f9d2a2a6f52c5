// Walls, fences, tyre stacks, boards, signs and what can be knocked over. Fronts look along local -z.
#include "assets/track/Models.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "assets/track/Lettering.h"
#include "assets/track/Light.h"
#include "base/Numbers.h"

namespace assets::track
{
namespace
{
void WriteStoneWall(const ModelFolder& folder)
{
    Canvas picture(192, 32);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 192; ++x)
        {
            const CellDistance stone = Cells(x / 7.0, y / 5.2, 1101, 0, 0);
            const double tone = (stone.Id & 255u) / 255.0;
            Rgb c = Mix(Hex(0xC9B894), Hex(0x968A74), tone) * (0.92 + 0.16 * HashUnit(x, y, 1102));
            c = Mix(c, Hex(0x6A5F4C), 0.7 * SmoothStep(0.14, 0.03, stone.Second - stone.First));
            if (y >= 24) // coping
                c = Hex(0xD9CCAE) * (0.95 + 0.08 * HashUnit(x, y, 1103)) * (x % 24 == 0 ? 0.75 : 1);
            c = Mix(c, Hex(0x7E8A4E), 0.5 * SmoothStep(7, 1, y + 5 * Noise(x / 9.0, 0, 1104)));
            picture.Set(x, y, c * (y < 24 ? 0.92 : 1.05));
        }
    folder.Texture("stonewall", picture);
    Model model;
    model.Mass = HeavyMass;
    constexpr double X = 6, Z = 0.35, High = 1.3;
    model.Meshes.push_back(Upright("stonewall", {0, 0, 192, 24}, -X, -Z, X, -Z, 0, High, 2, 1));
    model.Meshes.push_back(Upright("stonewall", {0, 0, 192, 24}, X, Z, -X, Z, 0, High, 2, 1));
    model.Meshes.push_back(
        Face("stonewall", {0, 24, 192, 8}, {-X, High, -Z}, {X, High, -Z}, {X, High, Z}, {-X, High, Z}, 2, 1));
    folder.Write("stonewall", model);
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
            c = c * (0.93 + 0.09 * HashUnit(x, y, 1111) - 0.12 * SmoothStep(0.1, 0.5, Fbm(x / 12.0, y / 8.0, 1112, 3)));
            picture.Set(x, y, x % 48 == 0 ? c * 0.7 : c);
        }
    folder.Texture("pitwall", picture);
    Model model;
    model.Mass = HeavyMass;
    constexpr double X = 6, Z = 0.25, High = 1.0;
    model.Meshes.push_back(Upright("pitwall", {0, 0, 192, 18}, -X, -Z, X, -Z, 0, High, 3, 1));
    model.Meshes.push_back(Upright("pitwall", {0, 0, 192, 18}, X, Z, -X, Z, 0, High, 3, 1));
    model.Meshes.push_back(
        Face("pitwall", {0, 18, 192, 2}, {-X, High, -Z}, {X, High, -Z}, {X, High, Z}, {-X, High, Z}));
    folder.Write("pitwall", model);
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
    model.Meshes.push_back(Upright("fence", {0, 0, 192, 48}, -6, 0, 6, 0, 0, 2.6, 3, 1));
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
            picture.Set(x, y, Hex(0x5A5654) * (0.9 + 0.2 * HashUnit(x, y, 1122)));
    folder.Texture("tyres", picture);
    Model model;
    model.Mass = LightMass;
    constexpr int Sides = 6;
    constexpr double R = 0.8, High = 1.15;
    ModelMesh wall(2, Sides + 1), top(2, Sides + 1);
    wall.Texture = top.Texture = ModelFolder::PathOf("tyres");
    for (int j = 0; j <= Sides; ++j)
    {
        const double angle = 2 * Pi * j / Sides, x = R * std::cos(angle), z = R * std::sin(angle);
        const int u = base::RoundEven(63.0 * j / Sides);
        wall.At(0, j) = {x, 0, z, u, 0};
        wall.At(1, j) = {x, High, z, u, 35};
        top.At(0, j) = {x, High, z, u, 36};
        top.At(1, j) = {x * 0.45, High - 0.12, z * 0.45, u, 47};
    }
    model.Meshes = {wall, top};
    model.Spheres.push_back(SphereAt(0, 0.55, 0, 0.8));
    folder.Write("tyres", model);
}

void WriteCone(const ModelFolder& folder)
{
    Canvas picture(24, 32);
    const Point outline[] = {{4.5, 3}, {19.5, 3}, {13.5, 31}, {10.5, 31}};
    FillPolygon(picture, outline, Hex(0xF0702A));
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 24; ++x)
        {
            if (picture.At(x, y).A < 0.5f)
                continue;
            const Rgb c = (y > 11 && y < 17) || (y > 22 && y < 26) ? Hex(0xF8F4EA) : Hex(0xF0702A);
            picture.Set(x, y, c * (1.1 - 0.04 * std::abs(x - 8.0)));
        }
    FillRect(picture, 1, 0, 22, 3.2, Hex(0x3A3A3C));
    folder.Texture("cone", picture, Black::Key);
    Model model;
    model.Mass = LightMass;
    model.Meshes.push_back(Upright("cone", {0, 0, 24, 32}, -0.33, 0, 0.33, 0, 0, 0.85));
    model.Meshes.push_back(Upright("cone", {0, 0, 24, 32}, 0, 0.33, 0, -0.33, 0, 0.85));
    model.Spheres.push_back(SphereAt(0, 0.4, 0, 0.35));
    folder.Write("cone", model);
}

void WriteBollard(const ModelFolder& folder)
{
    Canvas picture(12, 40, Hex(0xF4F0E6));
    FillRect(picture, 0, 10, 12, 8, Hex(0xC63A2B));
    FillRect(picture, 0, 27, 12, 8, Hex(0xC63A2B));
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 12; ++x)
            picture.Shade(x, y, {0.55, 0.57, 0.62}, Clamp01((x - 4) / 8.0));
    folder.Texture("bollard", picture);
    Model model;
    model.Mass = LightMass;
    model.Meshes.push_back(Upright("bollard", {0, 0, 12, 40}, -0.16, 0, 0.16, 0, 0, 1.05));
    model.Meshes.push_back(Upright("bollard", {0, 0, 12, 40}, 0, 0.16, 0, -0.16, 0, 1.05));
    model.Spheres.push_back(SphereAt(0, 0.5, 0, 0.3));
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

struct Advert
{
    const char* Text;
    Rgb Ground, Ink, Band;
};
const Advert Adverts[] = {
    {"MOTORI BRENNA", Hex(0xC63A2B), Hex(0xFBF6E8), Hex(0xF2C744)},
    {"CAFFE SERENA", Hex(0x4A2C1C), Hex(0xF6E2B8), Hex(0xC98A3C)},
    {"GOMME TORRE", Hex(0xF2C744), Hex(0x22242A), Hex(0x22242A)},
    {"ACQUA LARIA", Hex(0x2C7FB8), Hex(0xF6FBFF), Hex(0x8FD0EA)},
    {"OLIO RONDINE", Hex(0x2E7D4F), Hex(0xFBF6E8), Hex(0xF2C744)},
    {"CICLI VALMARA", Hex(0xF4F0E4), Hex(0x1F3D66), Hex(0xC63A2B)},
};

void WriteBoards(const ModelFolder& folder)
{
    int number = 0;
    for (const Advert& advert : Adverts)
    {
        const std::string name = "board_" + std::to_string(++number);
        Canvas picture(240, 56, advert.Ground);
        FillRect(picture, 0, 0, 240, 5, advert.Band);
        FillRect(picture, 0, 51, 240, 5, advert.Band);
        PaintText(picture, advert.Text, {120, 28}, 27, 4.6, advert.Ink, 1, 226 / (LettersWidth(advert.Text) * 27));
        for (int y = 0; y < 56; ++y)
            for (int x = 0; x < 240; ++x)
                picture.Set(x, y,
                            picture.Colour(x, y) * (0.94 + 0.05 * HashUnit(x, y, 1141)) *
                                (1 - 0.12 * SmoothStep(12, 0, y)));
        folder.Texture(name, picture);
        Model model;
        model.Mass = HeavyMass;
        model.Meshes.push_back(Upright(name, {0, 0, 240, 56}, -4, -0.1, 4, -0.1, 0.15, 1.75, 5, 1));
        model.Meshes.push_back(
            FlatFace(Hex(0x8C8A86), {-4, 0.15, 0.1}, {4, 0.15, 0.1}, {4, 1.75, 0.1}, {-4, 1.75, 0.1}));
        model.Meshes.push_back(
            FlatFace(Hex(0xB4B2AC), {-4, 1.75, -0.1}, {4, 1.75, -0.1}, {4, 1.75, 0.1}, {-4, 1.75, 0.1}));
        folder.Write(name, model);
    }
}

void WriteSigns(const ModelFolder& folder)
{
    for (const char* text : {"100", "50"})
    {
        const std::string name = std::string("sign_") + text;
        Canvas picture(64, 80);
        FillRect(picture, 14, 0, 5, 40, Hex(0x8E9094));
        FillRect(picture, 45, 0, 5, 40, Hex(0x8E9094));
        FillRect(picture, 0, 34, 64, 46, Hex(0xF6F2E6));
        FillRect(picture, 3, 37, 58, 40, Hex(0xC63A2B));
        FillRect(picture, 6, 40, 52, 34, Hex(0xF6F2E6));
        PaintText(picture, text, {32, 57}, 24, 5, Hex(0x22242A), 1, 0.95);
        folder.Texture(name, picture, Black::Key);
        Model model;
        model.Mass = LightMass;
        model.Meshes.push_back(Upright(name, {0, 0, 64, 80}, -0.9, 0, 0.9, 0, 0, 2.3, 2, 1));
        model.Meshes.push_back(
            FlatFace(Hex(0x8C8A86), {-0.88, 1.0, 0.06}, {0.88, 1.0, 0.06}, {0.88, 2.28, 0.06}, {-0.88, 2.28, 0.06}));
        model.Spheres.push_back(SphereAt(0, 0.6, 0, 0.7));
        folder.Write(name, model);
    }
    Canvas picture(192, 56, Hex(0xF6F2E6));
    for (int i = 0; i < 4; ++i)
    {
        const double x = 8 + i * 46;
        const Point arrow[] = {{x + 34, 4}, {x + 16, 28}, {x + 34, 52}, {x + 18, 52}, {x, 28}, {x + 18, 4}};
        FillPolygon(picture, arrow, Hex(0xC63A2B));
    }
    folder.Texture("arrows", picture);
    folder.Texture("arrows_r", FlippedX(picture));
    for (const char* name : {"arrows", "arrows_r"})
    {
        Model model;
        model.Mass = HeavyMass;
        model.Meshes.push_back(Upright(name, {0, 0, 192, 56}, -3, -0.1, 3, -0.1, 0.3, 2.0, 3, 1));
        model.Meshes.push_back(FlatFace(Hex(0x8C8A86), {-3, 0.3, 0.1}, {3, 0.3, 0.1}, {3, 2, 0.1}, {-3, 2, 0.1}));
        folder.Write(name, model);
    }
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
        model.Meshes.push_back(Upright("marshal", {side * 32, 0, 32, 64}, a.X, a.Y, b.X, b.Y, 0, 2.6));
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
    WriteBoards(folder);
    WriteSigns(folder);
    WriteMarshal(folder);
}
}
