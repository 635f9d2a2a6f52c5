// SPDX-License-Identifier: Zlib
// Trees: a trunk, a low round crown that is closed all about, and upright cuts through it whose ragged rims stand
// out of it. They are lit for AngleA = 0.
#include "assets/track/Leaves.h"
#include "assets/track/Light.h"
#include "base/Numbers.h"

#include <algorithm>

namespace assets::track
{
namespace
{
struct Tree
{
    const char* Name;
    std::vector<Ring> Crown;
    double TrunkRadius, TrunkTop; // up to where it is hidden
    int TrunkSides;               // 0: no trunk is seen
    double TuftRadius;            // world units
    double Scale;                 // texels a unit
    int Sides;                    // of the round crown
    int Cuts;
    int Cells;       // of a cut, one above the other
    bool BesideRoad; // comes in a second form, with a trunk that is hit
    Leafage Leaves;
};

const std::vector<Tree>& Trees()
{
    static const std::vector<Tree> trees{
        {.Name = "cypress",
         .Crown = {{0.4, 0.55}, {2.2, 1.25}, {5.0, 1.3}, {8.5, 0.85}, {11.5, 0.12}},
         .TrunkRadius = 0.2,
         .TrunkTop = 0.8,
         .TrunkSides = 0,
         .TuftRadius = 0.42,
         .Scale = 12,
         .Sides = 4,
         .Cuts = 2,
         .Cells = 1,
         .BesideRoad = true,
         .Leaves = {Hex(0x96A64C), Hex(0x557637), Hex(0x34512F), 21}},
        {.Name = "pine",
         .Crown = {{8.0, 1.2}, {8.7, 4.6}, {9.5, 5.2}, {10.7, 3.7}, {11.6, 1.2}},
         .TrunkRadius = 0.3,
         .TrunkTop = 9.0,
         .TrunkSides = 3,
         .TuftRadius = 0.85,
         .Scale = 11,
         .Sides = 5,
         .Cuts = 3,
         .Cells = 1,
         .BesideRoad = true,
         .Leaves = {Hex(0xA9BA52), Hex(0x66883C), Hex(0x3B5930), 31}},
        {.Name = "oak",
         .Crown = {{1.7, 1.3}, {2.6, 3.0}, {4.6, 3.7}, {6.5, 2.9}, {7.8, 1.0}},
         .TrunkRadius = 0.3,
         .TrunkTop = 2.6,
         .TrunkSides = 3,
         .TuftRadius = 0.8,
         .Scale = 12,
         .Sides = 5,
         .Cuts = 3,
         .Cells = 1,
         .BesideRoad = false,
         .Leaves = {Hex(0xBCBC58), Hex(0x708A40), Hex(0x435E33), 41}},
        {.Name = "olive",
         .Crown = {{1.2, 0.9}, {1.9, 2.0}, {3.1, 2.3}, {4.6, 0.9}},
         .TrunkRadius = 0.26,
         .TrunkTop = 1.8,
         .TrunkSides = 3,
         .TuftRadius = 0.6,
         .Scale = 13,
         .Sides = 4,
         .Cuts = 3,
         .Cells = 1,
         .BesideRoad = false,
         .Leaves = {Hex(0xC8CCA2), Hex(0x8A9A6E), Hex(0x5A6A4E), 51}},
        {.Name = "bush",
         .Crown = {{0.0, 1.1}, {0.6, 1.7}, {1.3, 1.5}, {2.0, 0.6}},
         .TrunkRadius = 0.2,
         .TrunkTop = 0.4,
         .TrunkSides = 0,
         .TuftRadius = 0.45,
         .Scale = 14,
         .Sides = 4,
         .Cuts = 3,
         .Cells = 1,
         .BesideRoad = false,
         .Leaves = {Hex(0xB2B85A), Hex(0x68843E), Hex(0x43603A), 61}},
        {.Name = "plane",
         .Crown = {{8.6, 2.4}, {9.8, 5.2}, {11.6, 6.2}, {13.8, 4.9}, {16.0, 1.5}}, // above the eye that chases a car
         .TrunkRadius = 0.45,
         .TrunkTop = 9.8,
         .TrunkSides = 6,
         .TuftRadius = 1.15,
         .Scale = 10,
         .Sides = 7,
         .Cuts = 3,
         .Cells = 2,
         .BesideRoad = false,
         .Leaves = {Hex(0xCCC968), Hex(0x83994A), Hex(0x4C683C), 71}},
    };
    return trees;
}

std::vector<Ring>::const_iterator Widest(const std::vector<Ring>& crown)
{
    return std::max_element(crown.begin(), crown.end(), [](const Ring& a, const Ring& b) { return a.R < b.R; });
}

// Where the parts of a tree's sheet lie: the cut that runs toward the sun, the one for the others, skin and bark.
struct Sheet
{
    Region ToSun, Askew, Skin, Bark;
    int Width = 0, Height = 0;
};

Sheet SheetOf(const Tree& tree)
{
    const double high = tree.Crown.back().Y - tree.Crown.front().Y;
    const int wide = base::RoundEven(2 * Widest(tree.Crown)->R * tree.Scale), tall = base::RoundEven(high * tree.Scale);
    const int skin = wide * 3 / 2, bark = tree.TrunkSides > 0 ? 30 : 0;
    Sheet sheet;
    sheet.ToSun = {0, 0, wide, tall};
    sheet.Askew = {wide, 0, wide, tall};
    sheet.Skin = {2 * wide, 0, skin, tall};
    sheet.Bark = {2 * wide + skin, 0, bark, tall};
    sheet.Width = 2 * wide + skin + bark;
    sheet.Height = tall;
    return sheet;
}

Canvas TreePicture(const Tree& tree, const Sheet& sheet)
{
    Canvas picture(sheet.Width, sheet.Height);
    PaintCrownCut(picture, sheet.ToSun, tree.Crown, tree.TuftRadius, 1.0, tree.Leaves);
    Leafage other = tree.Leaves;
    other.Seed += 500;
    PaintCrownCut(picture, sheet.Askew, tree.Crown, tree.TuftRadius, 0.5, other);
    PaintCrownSkin(picture, sheet.Skin, tree.TuftRadius * tree.Scale * 0.9, tree.Leaves);
    if (sheet.Bark.Width > 0)
        PaintBark(picture, sheet.Bark, tree.TrunkRadius > 0.4);
    return picture;
}

// The round crown stays inside the rims of the cuts, and is all but closed below and above. It does without the middle
// level of the outline.
std::vector<Ring> Core(const std::vector<Ring>& crown)
{
    const double middle = (crown.front().Y + crown.back().Y) / 2;
    std::vector<Ring> core;
    for (std::size_t i = 0; i < crown.size(); ++i)
        if (i != crown.size() / 2)
            core.push_back({middle + (crown[i].Y - middle) * 0.95, crown[i].R * 0.93});
    core.front().R *= 0.4;
    core.back().R *= 0.4;
    return core;
}

void AddTrunk(Model& model, const Tree& tree, const Sheet& sheet)
{
    if (tree.TrunkSides > 0)
        model.Meshes.push_back(Turned(tree.Name, sheet.Bark,
                                      {{0, tree.TrunkRadius * 1.2}, {tree.TrunkTop, tree.TrunkRadius * 0.75}},
                                      tree.TrunkSides));
}

void AddCuts(Model& model, const Tree& tree, const Sheet& sheet)
{
    const double half = Widest(tree.Crown)->R, low = tree.Crown.front().Y, high = tree.Crown.back().Y;
    for (int cut = 0; cut < tree.Cuts; ++cut)
    {
        const double turn = (cut - 1) * Pi / tree.Cuts, c = std::cos(turn) * half, s = std::sin(turn) * half;
        const double x = SunX * c - SunZ * s, z = SunX * s + SunZ * c;
        model.Meshes.push_back(
            Upright(tree.Name, cut == 1 ? sheet.ToSun : sheet.Askew, x, z, -x, -z, low, high, 1, tree.Cells));
    }
}

// `far` is the tree without its round crown, for where nobody comes near: a quarter of the triangles.
Model TreeModel(const Tree& tree, const Sheet& sheet, bool far)
{
    Model model;
    model.Mass = HeavyMass;
    AddTrunk(model, tree, sheet);
    if (!far)
        model.Meshes.push_back(Turned(tree.Name, sheet.Skin, Core(tree.Crown), tree.Sides, 0, 0, 0.14));
    AddCuts(model, tree, sheet);
    return model;
}
}

void WriteTrees(const ModelFolder& folder)
{
    for (const Tree& tree : Trees())
    {
        const Sheet sheet = SheetOf(tree);
        const std::string name = tree.Name;
        folder.Texture(name, TreePicture(tree, sheet), Black::Key);
        folder.Write(name + "_far", TreeModel(tree, sheet, true));
        Model model = TreeModel(tree, sheet, false);
        folder.Write(name, model);
        if (!tree.BesideRoad)
            continue;
        model.Spheres.push_back(SphereAt(0, 0.6, 0, 0.7));
        folder.Write(name + "_r", model);
    }
}
}
