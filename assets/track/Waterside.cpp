// SPDX-License-Identifier: Zlib
// Pier, boats and parasols.
#include "assets/track/Models.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "assets/track/Light.h"

namespace assets::track
{
namespace
{
void WritePier(const ModelFolder& folder)
{
    Canvas picture(32, 192);
    for (int y = 0; y < 192; ++y)
        for (int x = 0; x < 32; ++x)
        {
            const int plank = y / 4;
            const double tone = HashUnit(plank, 0, 1201);
            Rgb c = Mix(Hex(0xB89A74), Hex(0x8E7450), tone) * (0.9 + 0.15 * Fbm(x / 8.0, y / 1.5, 1202, 2));
            picture.Set(x, y, y % 4 == 0 ? c * 0.55 : c);
        }
    folder.Texture("pier", picture);
    Model model;
    model.Mass = HeavyMass;
    constexpr double X = 1.5, Z = 12, Y = 0.9;
    model.Meshes.push_back(Face("pier", {0, 0, 32, 192}, {-X, Y, -Z}, {X, Y, -Z}, {X, Y, Z}, {-X, Y, Z}, 1, 8));
    const Rgb wood = Hex(0x7A5F42);
    for (const double side : {-X, X})
    {
        model.Meshes.push_back(
            FlatFace(wood * 0.8, {side, Y - 0.35, -Z}, {side, Y - 0.35, Z}, {side, Y, Z}, {side, Y, -Z}));
        for (double z = -Z + 0.3; z <= Z; z += 4.7)
            model.Meshes.push_back(FlatFace(wood, {side - 0.15, 0, z}, {side + 0.15, 0, z}, {side + 0.15, Y + 0.7, z},
                                            {side - 0.15, Y + 0.7, z}));
    }
    folder.Write("pier", model);
}

// A hull as a grid: rows from keel line to gunwale, columns from stern to bow, both sides.
void AddHull(Model& model, double halfWidth, double halfLength, double high, Rgb side, Rgb inside)
{
    constexpr int Columns = 5;
    constexpr double Shape[Columns + 1] = {0.72, 0.95, 1.0, 0.88, 0.55, 0.0};
    for (const double flank : {-1.0, 1.0})
    {
        ModelMesh mesh(2, Columns + 1);
        const Rgb colour = flank < 0 ? side : side * 0.72;
        mesh.Colour = FlatColour(colour);
        for (int j = 0; j <= Columns; ++j)
        {
            const double z = Lerp(-halfLength, halfLength, 1.0 * j / Columns);
            mesh.At(0, j) = {flank * halfWidth * Shape[j] * 0.75, 0, z};
            mesh.At(1, j) = {flank * halfWidth * Shape[j], high, z};
        }
        model.Meshes.push_back(mesh);
    }
    ModelMesh deck(2, Columns + 1);
    deck.Colour = FlatColour(inside);
    for (int j = 0; j <= Columns; ++j)
    {
        const double z = Lerp(-halfLength, halfLength, 1.0 * j / Columns);
        deck.At(0, j) = {-halfWidth * Shape[j], high * 0.85, z};
        deck.At(1, j) = {halfWidth * Shape[j], high * 0.85, z};
    }
    model.Meshes.push_back(deck);
    model.Meshes.push_back(FlatFace(side * 0.8, {-halfWidth * 0.54, 0, -halfLength}, {halfWidth * 0.54, 0, -halfLength},
                                    {halfWidth * 0.72, high, -halfLength}, {-halfWidth * 0.72, high, -halfLength}));
}

void WriteBoats(const ModelFolder& folder)
{
    Canvas sail(64, 96);
    for (int y = 0; y < 96; ++y)
        for (int x = 0; x < 64; ++x)
        {
            const double light = 0.84 + 0.16 * std::sin(x / 20.0 + 0.6) - (y % 16 == 0 ? 0.06 : 0);
            sail.Set(x, y, Hex(0xFBF4E2) * light);
        }
    FillRect(sail, 0, 78, 64, 5, Hex(0x2C6FA8));
    folder.Texture("sail", sail);
    Model model;
    model.Mass = HeavyMass;
    AddHull(model, 1.2, 3.4, 0.9, Hex(0xF4F0E6), Hex(0xB98F5E));
    model.Meshes.push_back(FlatFace(Hex(0x8A6A48), {0, 0.7, 0.35}, {0, 0.7, 0.5}, {0, 9.6, 0.5}, {0, 9.6, 0.35}));
    ModelMesh mainSail =
        Face("sail", {0, 0, 64, 96}, {0, 1.5, 0.3}, {0.5, 1.5, -3.2}, {0.05, 9.3, 0.2}, {0, 9.3, 0.3}, 2, 3);
    mainSail.At(1, 1).X += 0.35;
    mainSail.At(2, 1).X += 0.25;
    model.Meshes.push_back(mainSail);
    model.Meshes.push_back(
        Face("sail", {0, 0, 40, 70}, {0, 1.2, 3.2}, {0.3, 1.4, 0.7}, {0.05, 8.0, 0.5}, {0.0, 8.0, 0.55}, 1, 2));
    folder.Write("sailboat", model);
    Model rowing;
    rowing.Mass = HeavyMass;
    AddHull(rowing, 0.75, 2.0, 0.6, Hex(0x3F7FA8), Hex(0xA87F50));
    for (const double z : {-0.8, 0.5})
        rowing.Meshes.push_back(
            FlatFace(Hex(0xC9A06A), {-0.7, 0.56, z}, {0.7, 0.56, z}, {0.7, 0.56, z + 0.35}, {-0.7, 0.56, z + 0.35}));
    folder.Write("rowboat", rowing);
}

void WriteParasol(const ModelFolder& folder)
{
    constexpr int Sides = 8;
    Canvas picture(64, 16);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 64; ++x)
        {
            const double around = 2 * Pi * (x + 0.5) / 64;
            const double light = 0.72 + 0.34 * Clamp01(0.5 + 0.5 * std::cos(around - 2.5));
            picture.Set(x, y, ((x / 8) % 2 == 0 ? Hex(0xF6F0E2) : Hex(0xD8503A)) * light);
        }
    folder.Texture("parasol", picture);
    Model model;
    model.Mass = HeavyMass;
    ModelMesh cloth(2, Sides + 1);
    cloth.Texture = ModelFolder::PathOf("parasol");
    for (int j = 0; j <= Sides; ++j)
    {
        const double angle = 2 * Pi * j / Sides;
        const int u = std::min(63, 8 * j);
        cloth.At(0, j) = {1.6 * std::cos(angle), 2.0, 1.6 * std::sin(angle), u, 0};
        cloth.At(1, j) = {0, 2.6, 0, u, 15};
    }
    model.Meshes.push_back(cloth);
    model.Meshes.push_back(FlatFace(Hex(0xE8E4DA), {-0.05, 0, 0}, {0.05, 0, 0}, {0.05, 2.5, 0}, {-0.05, 2.5, 0}));
    folder.Write("parasol", model);
}
}

void WriteWaterside(const ModelFolder& folder)
{
    WritePier(folder);
    WriteBoats(folder);
    WriteParasol(folder);
}
}
