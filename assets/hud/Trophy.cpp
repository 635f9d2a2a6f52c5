// SPDX-License-Identifier: Zlib
// The game hangs the trophy five units before the camera, well to the left, before the car has moved on: the faster
// the car, the nearer the picture's edge it stands. So the trophy is slender, and hangs below the point that it turns
// about.
#include "assets/hud/Trophy.h"

#include "assets/common/Bitmap.h"
#include "assets/common/Model3dm.h"
#include "assets/common/Shapes.h"
#include "assets/hud/Dots.h"
#include "base/Numbers.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace assets::hud
{
namespace
{
struct Profile
{
    double R, Y;
};

// Foot, stem, knob and bowl, from below to the rim.
constexpr Profile Outside[] = {{0.200, -1.36}, {0.195, -1.33}, {0.120, -1.29}, {0.060, -1.21}, {0.046, -1.09},
                               {0.090, -1.05}, {0.090, -1.02}, {0.046, -0.98}, {0.065, -0.92}, {0.135, -0.86},
                               {0.190, -0.76}, {0.212, -0.63}, {0.212, -0.50}, {0.218, -0.40}, {0.238, -0.31},
                               {0.262, -0.27}, {0.262, -0.25}};
constexpr Profile Inside[] = {{0.255, -0.25}, {0.215, -0.34}, {0.180, -0.60}, {0.0, -0.76}};
// The trophy is built this much smaller than the measures here, the rim staying where it is: the largest that shows
// whole up to 160 km/h.
constexpr double Size = 0.78, RimBelow = 0.25;
constexpr double StoneTop = -1.36, StoneFloor = -1.74, StoneHalf = 0.19;
constexpr int Around = 20;
constexpr int Rows = static_cast<int>(std::size(Outside));

// The texture: reflections of the cup, of the handles beside them, the stone above.
constexpr int CupWidth = 176, CupHeight = 160, HandleWidth = 16, StoneWidth = 48, StoneHeight = 48;
constexpr Rgb Dark = Hex(0x35281A), Warm = Hex(0x94703C), Bright = Hex(0xFFFBEA);

// A surface of revolution; `swell` moves it outward.
template <std::size_t Count> ModelMesh Turned(const Profile (&profile)[Count], double swell, int colour)
{
    ModelMesh mesh(static_cast<int>(Count), Around + 1);
    mesh.Colour = colour;
    for (int i = 0; i < mesh.Rows; ++i)
        for (int j = 0; j <= Around; ++j)
        {
            const double angle = 2 * Pi * (j % Around) / Around;
            const Profile& p = profile[static_cast<std::size_t>(i)];
            const double r = p.R + swell;
            mesh.At(i, j) = {r * std::sin(angle), p.Y, r * std::cos(angle),
                             base::RoundEven(j * (CupWidth - 1.0) / Around),
                             base::RoundEven(i * (CupHeight - 1.0) / (mesh.Rows - 1))};
        }
    return mesh;
}

// Both handles as one strip; what joins them runs unseen through the bowl.
ModelMesh Handles(double thick, int colour)
{
    constexpr Profile path[] = {{0.21, -0.40},  {0.275, -0.365}, {0.315, -0.40}, {0.32, -0.48},
                                {0.295, -0.58}, {0.245, -0.67},  {0.19, -0.70},  {0.15, -0.70}};
    constexpr int Steps = static_cast<int>(std::size(path));
    ModelMesh mesh(2 * Steps, 5);
    mesh.Colour = colour;
    for (int side = 0; side < 2; ++side)
        for (int i = 0; i < Steps; ++i)
        {
            const int at = side == 0 ? i : Steps - 1 - i;
            const Profile& p = path[at];
            const Profile& before = path[std::max(at - 1, 0)];
            const Profile& after = path[std::min(at + 1, Steps - 1)];
            const double dx = after.R - before.R, dy = after.Y - before.Y, length = std::hypot(dx, dy);
            for (int j = 0; j < 5; ++j)
            {
                const double angle = Pi / 2 * (j % 4), out = std::cos(angle) * thick, wide = std::sin(angle) * thick;
                const double x = p.R - dy / length * out;
                mesh.At(side * Steps + i, j) = {side == 0 ? x : -x, p.Y + dx / length * out, wide,
                                                CupWidth + j * (HandleWidth - 1) / 4,
                                                base::RoundEven(at * (CupHeight - 1.0) / (Steps - 1))};
            }
        }
    return mesh;
}

// How much the cup's skin looks up (1) or down (-1), `row` rows of the profile above its foot.
double FacesUp(double row)
{
    const int below = std::clamp(base::Floor(row), 0, Rows - 2);
    const auto slope = [](int i)
    {
        const Profile &a = Outside[std::clamp(i, 0, Rows - 2)], &b = Outside[std::clamp(i + 1, 1, Rows - 1)];
        return -(b.R - a.R) / std::hypot(b.R - a.R, b.Y - a.Y);
    };
    return Lerp(slope(below - 1) + slope(below), slope(below) + slope(below + 1), row - below) / 2;
}

// Short strokes along the turning, as a lathe leaves them: 0 to 1, evenly spread.
double Brushed(int x, int y)
{
    const int stroke = (x + static_cast<int>(Hash(0, y, 3) % 7u)) / 5;
    return 0.45 * HashUnit(stroke, y, 11) + 0.55 * DotThreshold(x, y);
}

// The metal shows where nothing is painted. Around it stand four windows: bright bars, each with a dark edge, and the
// evening's warm shade between them. The sky whitens what looks up, the ground darkens what looks down.
void PaintReflections(Canvas& picture)
{
    for (int y = 0; y < CupHeight; ++y)
        for (int x = 0; x < CupWidth; ++x)
        {
            const double row = y * (Rows - 1.0) / (CupHeight - 1), up = FacesUp(row);
            const double turn = x * 4.0 / (CupWidth - 1), t = turn - std::floor(turn);
            const double window =
                SmoothStep(0.13, 0.06, std::abs(t - 0.22)) + 0.8 * SmoothStep(0.05, 0.02, std::abs(t - 0.43));
            const double shade = SmoothStep(0.30, 0.06, std::abs(t - 0.72));
            const bool seam = std::abs(row - 14.05) < 0.16 || std::abs(row - 9.05) < 0.14;
            const double light = std::max(Clamp01(window), 0.85 * SmoothStep(0.35, 0.9, up)) * (row > 14.6 ? 1 : 0.9);
            const double dark = std::max({0.66 * shade, 0.75 * SmoothStep(-0.15, -0.75, up), seam ? 0.8 : 0.0}) + 0.18;
            const double grain = Brushed(x, y);
            if (light * 0.95 > grain)
                picture.Set(x, y, Bright);
            else if (1.5 * dark * (1 - light) > 1 - grain)
                picture.Set(x, y, Mix(Warm, Dark, SmoothStep(0.35, 0.9, dark)));
        }
}

// Bright along the outer edge, dark along the inner one.
void PaintHandle(Canvas& picture)
{
    for (int y = 0; y < CupHeight; ++y)
        for (int x = 0; x < HandleWidth; ++x)
        {
            const double side = std::cos(2 * Pi * x / (HandleWidth - 1.0)), grain = Brushed(x + 400, y);
            if (0.9 * SmoothStep(0.35, 1.0, side) > grain)
                picture.Set(CupWidth + x, y, Bright);
            else if (0.15 + 0.75 * SmoothStep(0.2, -0.9, side) > 1 - grain)
                picture.Set(CupWidth + x, y, Mix(Warm, Dark, SmoothStep(0.0, -1.0, side)));
        }
}

// Dark stone with a letter of brass.
void PaintStone(Canvas& picture)
{
    for (int y = 0; y < StoneHeight; ++y)
        for (int x = 0; x < StoneWidth; ++x)
        {
            const double vein = std::abs(std::sin(x * 0.21 + y * 0.34 + 2 * std::sin(y * 0.19 + x * 0.05)));
            const bool edge = y > StoneHeight - 4 || y < 3;
            const Rgb colour = Mix(Hex(0x1C2226), Hex(0x36464A), SmoothStep(0.25, 0.0, vein));
            picture.Set(x, CupHeight + y, colour * ((edge ? 1.5 : 0.8) + 0.4 * y / StoneHeight));
        }
    const auto letter = [&](double thickness, double dx, double dy, Rgb colour)
    {
        const std::vector<Point> line = {
            {11 + dx, CupHeight + 37 + dy}, {24 + dx, CupHeight + 11 + dy}, {37 + dx, CupHeight + 37 + dy}};
        Stroke(picture, line, thickness, colour);
    };
    letter(8, 1, -1, Hex(0x0A0C0E));
    letter(7, 0, 0, Hex(0xB88A38));
    letter(3, -0.8, 0.8, Hex(0xF6E2A4));
}

// One side of the stone; the four follow each other to the right.
ModelMesh StoneSide(int side)
{
    ModelMesh mesh(2, 2);
    constexpr double corners[4][2] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
    for (int i = 0; i < 2; ++i)
        for (int j = 0; j < 2; ++j)
        {
            const auto& corner = corners[(side + j) % 4];
            mesh.At(i, j) = {corner[0] * StoneHalf, i == 0 ? StoneFloor : StoneTop, corner[1] * StoneHalf,
                             j * (StoneWidth - 1), CupHeight + i * (StoneHeight - 1)};
        }
    return mesh;
}

ModelMesh FlatQuad(int colour, double half, double y)
{
    ModelMesh mesh(2, 2);
    mesh.Colour = colour;
    for (int i = 0; i < 2; ++i)
        for (int j = 0; j < 2; ++j)
            mesh.At(i, j) = {(j * 2 - 1) * half, y, (i * 2 - 1) * half};
    return mesh;
}
}

void WriteCup(const std::string& folder)
{
    Canvas picture(CupWidth + HandleWidth, CupHeight + StoneHeight);
    PaintReflections(picture);
    PaintHandle(picture);
    PaintStone(picture);
    WriteBmp(folder + "/cup.bmp", picture, Black::Key);

    constexpr int gold = FlatColour(255, 255, 0);
    constexpr double skin = 0.004; // of the reflections over the metal
    Model cup;
    cup.Visible = false;
    for (int side = 0; side < 4; ++side) // 0 to 3
        cup.Meshes.push_back(StoneSide(side));
    cup.Meshes.push_back(Turned(Outside, skin, -1));                 // 4
    cup.Meshes.push_back(Turned(Inside, 0, FlatColour(70, 54, 38))); // 5 the bowl's inside
    cup.Meshes.push_back(Turned(Outside, 0, gold));                  // 6 cup
    cup.Meshes.push_back(Handles(0.022, gold));                      // 7 handles
    cup.Meshes.push_back(Handles(0.022 + skin, -1));                 // 8
    cup.Meshes.push_back(FlatQuad(FlatColour(52, 60, 62), StoneHalf, StoneTop));
    cup.Meshes.push_back(FlatQuad(FlatColour(24, 28, 30), StoneHalf, StoneFloor));
    for (ModelMesh& mesh : cup.Meshes)
    {
        for (ModelPoint& p : mesh.Points)
            p = {p.X * Size, (p.Y + RimBelow) * Size - RimBelow, p.Z * Size, p.U, p.V};
        if (mesh.Colour < 0)
            mesh.Texture = "<path>cup.bmp";
    }
    WriteModel(cup, folder + "/cup.3dm");
}
}
