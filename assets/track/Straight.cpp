// SPDX-License-Identifier: Zlib
// Grandstand, pit building, start gantry and flags of the main straight. Fronts look along local -z.
#include "assets/track/Models.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "assets/track/Lettering.h"
#include "assets/track/Light.h"

namespace assets::track
{
namespace
{
constexpr Rgb Clothes[] = {Hex(0xD8402F), Hex(0xF2EFE6), Hex(0x2F62B0), Hex(0xF0C23A), Hex(0x3C9150),
                           Hex(0xE88A3A), Hex(0x6A4FA0), Hex(0x8FC4E6), Hex(0xE7A7B4), Hex(0x3A3F4A)};

// Rows of people, one above the other; the highest sit in the shadow of the roof.
Canvas CrowdPicture()
{
    Canvas picture(312, 104, Hex(0x9A968E));
    constexpr int Rows = 9;
    for (int row = 0; row < Rows; ++row)
    {
        const double y = row * 11.5;
        FillRect(picture, 0, y, 312, 5, Hex(0xB8B2A6));
        FillRect(picture, 0, y + 5, 312, 6.5, Hex(0x3E6E9E));
        for (int seat = 0; seat < 62; ++seat)
        {
            const double x = 2.5 + seat * 5, luck = HashUnit(seat, row, 1001);
            if (seat % 21 == 20)
            {
                FillRect(picture, x - 2.5, y, 5, 11.5, Hex(0xC9C4B8)); // stairs
                FillRect(picture, x - 2.5, y + 4, 5, 1.5, Hex(0x8E887C));
                continue;
            }
            if (luck > 0.84)
                continue; // a free seat
            const Rgb shirt = Clothes[Hash(seat, row, 1002) % std::size(Clothes)];
            const double lift = HashUnit(seat, row, 1003) * 1.6;
            FillEllipse(picture, {x, y + 6.4 + lift}, 2.3, 3.6, shirt);
            FillRect(picture, x + 0.6, y + 3.6, 1.6, 5, shirt * 0.7, 0.6);
            FillDisc(picture, {x - 0.1, y + 11 + lift}, 1.7,
                     Mix(Hex(0xE6B48C), Hex(0xB07A50), HashUnit(seat, row, 1004)));
            FillRect(picture, x - 1.7, y + 11.6 + lift, 3.4, 1.4,
                     HashUnit(seat, row, 1005) > 0.5 ? Hex(0x3A2A20)
                                                     : Clothes[Hash(row, seat, 1006) % std::size(Clothes)]);
            if (luck < 0.05) // a flag held up
                FillRect(picture, x + 1, y + 12, 5, 3.4, Clothes[Hash(seat, row, 1007) % 5]);
        }
    }
    for (int y = 0; y < picture.Height; ++y)
        for (int x = 0; x < picture.Width; ++x)
        {
            const double roof = SmoothStep(46, 64, y + 6 * Noise(x / 40.0, 0, 1008));
            picture.Set(x, y, picture.Colour(x, y) * Mix(SunLight, ShadeLight, 0.25 + 0.75 * roof));
        }
    return picture;
}

Canvas StandPicture()
{
    // Below: the front wall with its letters; above: corrugated back and sides; on top: the roof.
    Canvas picture(256, 96, Hex(0xE9E2D2));
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 256; ++x)
            picture.Set(x, y, Hex(0xF2ECDC) * (0.95 + 0.05 * HashUnit(x, y, 1011)) * (y < 3 ? 0.7 : 1.0));
    FillRect(picture, 0, 20, 256, 4, Hex(0xC63A2B));
    PaintText(picture, "CIRCUITO DEL LARIANO", {128, 11.5}, 11, 1.8, Hex(0x1F4D78), 1, 1.05);
    for (int y = 24; y < 64; ++y)
        for (int x = 0; x < 256; ++x)
            picture.Set(x, y, Hex(0x7E8C96) * (0.88 + 0.12 * ((x / 3) % 2)) * ShadeLight * 1.15);
    for (int y = 64; y < 96; ++y)
        for (int x = 0; x < 256; ++x)
            picture.Set(x, y,
                        Hex(0xD9D3C4) * (0.93 + 0.07 * ((x / 4) % 2)) * (1 - 0.05 * Fbm(x / 30.0, y / 30.0, 1012, 3)));
    FillRect(picture, 0, 64, 256, 5, Hex(0xC63A2B)); // edge of the roof
    return picture;
}

void WriteStand(const ModelFolder& folder)
{
    folder.Texture("crowd", CrowdPicture());
    folder.Texture("stand", StandPicture());
    Model model;
    model.Mass = HeavyMass;
    constexpr double X = 13, Front = -5.5, Back = 5.5;
    model.Meshes.push_back(Upright("stand", {0, 0, 256, 24}, -X, Front, X, Front, 0, 1.9, 4, 1));
    model.Meshes.push_back(
        Face("crowd", {0, 0, 312, 104}, {-X, 1.5, Front}, {X, 1.5, Front}, {X, 7.2, Back}, {-X, 7.2, Back}, 6, 3));
    model.Meshes.push_back(Upright("stand", {0, 24, 256, 40}, X, Back, -X, Back, 0, 8.7, 3, 2));
    for (const double side : {-1.0, 1.0})
    {
        const double z0 = side < 0 ? Back : Front, z1 = side < 0 ? Front : Back;
        const double high0 = side < 0 ? 7.4 : 1.9, high1 = side < 0 ? 1.9 : 7.4;
        model.Meshes.push_back(Face("stand", {0, 24, 110, 40}, {side * X, 0, z0}, {side * X, 0, z1},
                                    {side * X, high1, z1}, {side * X, high0, z0}, 2, 1));
    }
    model.Meshes.push_back(Face("stand", {0, 64, 256, 32}, {-X - 0.4, 9.7, Front + 0.2}, {X + 0.4, 9.7, Front + 0.2},
                                {X + 0.4, 8.7, Back}, {-X - 0.4, 8.7, Back}, 4, 2));
    model.Meshes.push_back(
        Upright("stand", {0, 64, 256, 5}, -X - 0.4, Front + 0.19, X + 0.4, Front + 0.19, 9.3, 9.72, 2, 1));
    for (const double x : {-12.6, -4.2, 4.2, 12.6})
        model.Meshes.push_back(FlatFace(Hex(0xE8E4DA), {x - 0.12, 1.8, Front + 0.5}, {x + 0.12, 1.8, Front + 0.5},
                                        {x + 0.12, 9.6, Front + 0.5}, {x - 0.12, 9.6, Front + 0.5}));
    folder.Write("stand", model);
}

Canvas PitsPicture()
{
    // 0 … 63: front with eight garages; 64 … 127: back; 128 … 159: roof.
    Canvas picture(608, 160, Hex(0xD8D0C0));
    const Rgb shade = Mix(ShadeLight, SunLight, 0.25);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 608; ++x)
            picture.Set(x, y, Hex(0xF0EADC) * (0.97 + 0.04 * HashUnit(x, y, 1021)) * shade);
    for (int box = 0; box < 8; ++box)
    {
        const double x = 38 + box * 76 - 30;
        FillRect(picture, x - 2, 0, 64, 34, Hex(0xC9C2B2) * shade);
        FillRect(picture, x, 0, 60, 32, Hex(0x35383C));
        for (int y = 0; y < 14; ++y) // the lit floor inside
            FillRect(picture, x + y, y, 60 - 2.0 * y, 1, Mix(Hex(0xB9B2A2), Hex(0x4A4A4A), y / 14.0));
        FillRect(picture, x + 6, 24, 48, 1.6, Hex(0xF6F0D0)); // lamps
        const Rgb team = Clothes[static_cast<std::size_t>(box) % 6];
        FillRect(picture, x + 14, 10, 32, 10, team * 0.75); // a car under work, and tool racks
        FillRect(picture, x + 20, 18, 18, 4, team * 0.55);
        FillRect(picture, x + 2, 6, 7, 18, Hex(0x8A2F28) * 0.8);
        FillRect(picture, x + 51, 6, 7, 18, Hex(0x2F5488) * 0.8);
        FillRect(picture, x - 2, 34, 64, 8, team * shade);
        PaintText(picture, std::string(1, static_cast<char>('1' + box)), {x + 30, 38}, 6, 1.4, Hex(0xF6F2E6));
        for (int pane = 0; pane < 4; ++pane)
        {
            FillRect(picture, x + pane * 15.5, 46, 13.5, 11, Hex(0x4A6478));
            FillRect(picture, x + pane * 15.5, 52, 13.5, 5, Hex(0x88A4B4), 0.7);
        }
    }
    FillRect(picture, 0, 59, 608, 5, Hex(0xC63A2B) * shade);
    for (int y = 64; y < 128; ++y)
        for (int x = 0; x < 608; ++x)
            picture.Set(x, y,
                        Hex(0xE9DFC8) * WallLight(0, 1) * (1 + 0.06 * Fbm(x / 40.0, y / 20.0, 1022, 3)) *
                            (y < 70 ? 0.8 : 1.0));
    for (int window = 0; window < 24; ++window)
    {
        FillRect(picture, 8 + window * 25.2, 104, 14, 12, Hex(0x5C7488));
        FillRect(picture, 8 + window * 25.2, 103, 14, 1.5, Hex(0xF4EEDC));
        if (window % 3 == 1)
            FillRect(picture, 8 + window * 25.2, 64, 13, 26, Hex(0x54706A));
    }
    FillRect(picture, 0, 123, 608, 5, Hex(0xC63A2B));
    for (int y = 128; y < 160; ++y)
        for (int x = 0; x < 608; ++x)
            picture.Set(x, y,
                        Hex(0xBFB6A2) * SunLight *
                            (0.93 + 0.1 * HashUnit(x, y, 1023) + 0.08 * Fbm(x / 18.0, y / 9.0, 1024, 3)));
    for (int box = 0; box < 6; ++box)
        FillRect(picture, 40 + box * 96, 138, 22, 10, Hex(0xE6E2D8));
    FillRect(picture, 0, 128, 608, 2, Hex(0xF2ECDE));
    FillRect(picture, 0, 158, 608, 2, Hex(0xF2ECDE));
    return picture;
}

void WritePits(const ModelFolder& folder)
{
    folder.Texture("pits", PitsPicture());
    Model model;
    model.Mass = HeavyMass;
    constexpr double X = 38, Z = 4.5, High = 6.5;
    model.Meshes.push_back(Upright("pits", {0, 0, 608, 64}, -X, -Z, X, -Z, 0, High, 16, 2));
    model.Meshes.push_back(Upright("pits", {0, 64, 608, 64}, X, Z, -X, Z, 0, High, 10, 2));
    model.Meshes.push_back(Upright("pits", {0, 64, 70, 64}, -X, Z, -X, -Z, 0, High, 2, 2));
    model.Meshes.push_back(Upright("pits", {200, 64, 70, 64}, X, -Z, X, Z, 0, High, 2, 2));
    model.Meshes.push_back(
        Face("pits", {0, 128, 608, 32}, {-X, High, -Z - 1.6}, {X, High, -Z - 1.6}, {X, High, Z}, {-X, High, Z}, 12, 2));
    model.Meshes.push_back(Upright("pits", {0, 58, 608, 6}, -X, -Z - 1.6, X, -Z - 1.6, High - 0.5, High + 0.15, 6, 1));
    folder.Write("pits", model);
}

void WriteGantry(const ModelFolder& folder)
{
    Canvas picture(320, 48, Hex(0x24313F));
    FillRect(picture, 0, 12, 320, 36, Hex(0xF4F0E4));
    for (int i = 0; i < 54; ++i)
        for (int row = 0; row < 2; ++row)
            FillRect(picture, i * 6, row * 6, 6, 6, (i + row) % 2 == 0 ? Hex(0xF4F0E4) : Hex(0x22242A));
    FillRect(picture, 0, 12, 76, 36, Hex(0x2E8B57));
    FillRect(picture, 244, 12, 76, 36, Hex(0xC63A2B));
    PaintText(picture, "VELKAR", {160, 30}, 24, 4.4, Hex(0x1F3D66), 1, 1.15);
    PaintText(picture, "LAGO", {38, 30}, 13, 2.4, Hex(0xF4F0E4), 1, 1.0);
    PaintText(picture, "CORSA", {282, 30}, 13, 2.4, Hex(0xF4F0E4), 1, 0.9);
    folder.Texture("gantry", picture);
    Model model;
    model.Mass = HeavyMass;
    constexpr double Low = 9.4, High = 12.0, Reach = 11.6, Deep = 0.7;
    const Region whole{0, 0, 320, 48};
    // Cars come from -x; the other face is read from ahead.
    model.Meshes.push_back(Upright("gantry", whole, -Deep, Reach, -Deep, -Reach, Low, High, 8, 1));
    model.Meshes.push_back(Upright("gantry", whole, Deep, -Reach, Deep, Reach, Low, High, 8, 1));
    model.Meshes.push_back(FlatFace(Hex(0xD8D2C4), {-Deep, High, -Reach}, {Deep, High, -Reach}, {Deep, High, Reach},
                                    {-Deep, High, Reach}));
    model.Meshes.push_back(
        FlatFace(Hex(0x4A4E56), {-Deep, Low, -Reach}, {Deep, Low, -Reach}, {Deep, Low, Reach}, {-Deep, Low, Reach}));
    for (const double side : {-1.0, 1.0})
    {
        const double inner = side * (Reach - 0.9), outer = side * Reach;
        const Rgb lit = Hex(0xE8E2D4), dim = Hex(0x9AA0AC);
        model.Meshes.push_back(
            FlatFace(dim, {-Deep, 0, inner}, {-Deep, 0, outer}, {-Deep, Low, outer}, {-Deep, Low, inner}));
        model.Meshes.push_back(
            FlatFace(dim, {Deep, 0, inner}, {Deep, 0, outer}, {Deep, Low, outer}, {Deep, Low, inner}));
        model.Meshes.push_back(FlatFace(side > 0 ? lit : dim, {-Deep, 0, outer}, {Deep, 0, outer}, {Deep, Low, outer},
                                        {-Deep, Low, outer}));
        model.Meshes.push_back(FlatFace(side < 0 ? lit : dim, {-Deep, 0, inner}, {Deep, 0, inner}, {Deep, Low, inner},
                                        {-Deep, Low, inner}));
    }
    folder.Write("gantry", model);
}

void WriteFlag(const ModelFolder& folder)
{
    Canvas picture(48, 32, Hex(0xF4F0E4));
    FillRect(picture, 0, 0, 16, 32, Hex(0x2E8B57));
    FillRect(picture, 32, 0, 16, 32, Hex(0xC63A2B));
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 48; ++x)
            picture.Shade(x, y, {0.78, 0.8, 0.86}, 0.5 + 0.5 * std::sin(x / 5.0 + y / 16.0));
    folder.Texture("flag", picture);
    Model model;
    model.Mass = HeavyMass;
    model.Meshes.push_back(FlatFace(Hex(0xD8D8D4), {-0.06, 0, 0}, {0.06, 0, 0}, {0.06, 8.4, 0}, {-0.06, 8.4, 0}));
    ModelMesh cloth = Upright("flag", {0, 0, 48, 32}, 0.06, 0, 2.9, 0, 6.4, 8.3, 3, 1);
    for (int i = 0; i < 2; ++i)
        for (int j = 1; j <= 3; ++j)
        {
            cloth.At(i, j).Z = j % 2 == 1 ? 0.35 : -0.1;
            cloth.At(i, j).Y -= 0.12 * j;
        }
    model.Meshes.push_back(cloth);
    folder.Write("flag", model);
}
}

void WriteStraight(const ModelFolder& folder)
{
    WriteStand(folder);
    WritePits(folder);
    WriteGantry(folder);
    WriteFlag(folder);
}
}
