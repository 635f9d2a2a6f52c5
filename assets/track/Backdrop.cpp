// SPDX-License-Identifier: Zlib
// The ring of country around the ground, and the hills behind it.
#include "assets/track/Backdrop.h"

#include "assets/common/Noise.h"
#include "assets/track/FarCountry.h"
#include "assets/track/Light.h"
#include "assets/track/Sky.h"
#include "assets/track/Terrain.h"
#include "base/Numbers.h"

#include <algorithm>

namespace assets::track
{
namespace
{
constexpr double WorldMiddle = WorldSize / 2;
constexpr int RingColumns = 64; // a multiple of 8, so that the ground's corners are points of the ring
constexpr int RingWidth = 4096, RingHeight = 192;
constexpr int HillsWidth = 4096, HillsHeight = 64;
constexpr double HillsTall = 34; // units that the hills' picture is high

// The ring's rows of points: the way out to the hills, and the share of the picture up to there. The nearest country
// has most of the texels.
struct Band
{
    double Out, Share;
};
constexpr Band Bands[] = {{0, 0}, {0.1, 0.3}, {0.26, 0.55}, {0.52, 0.78}, {1, 1}};

double OutOfShare(double share)
{
    std::size_t i = 1;
    while (i + 1 < std::size(Bands) && share > Bands[i].Share)
        ++i;
    const Band &a = Bands[i - 1], &b = Bands[i];
    return Lerp(a.Out, b.Out, (share - a.Share) / (b.Share - a.Share));
}

Point OnCircle(double column, double radius)
{
    const double angle = 2 * Pi * column / RingColumns;
    return {WorldMiddle + radius * std::cos(angle), WorldMiddle + radius * std::sin(angle)};
}

// The ring's inner side follows the ground's border, its outer side the hills.
Point RingCorner(int column, double out)
{
    const Point direction = OnCircle(column, 1);
    const double x = direction.X - WorldMiddle, z = direction.Y - WorldMiddle;
    const double toBorder = (WorldMiddle - BackdropOverlap) / std::max(std::abs(x), std::abs(z));
    return OnCircle(column, Lerp(toBorder, HillsRadius + 3, out));
}

Point RingPlace(double column, double out)
{
    const int left = base::Floor(column);
    const Point a = RingCorner(left, out), b = RingCorner(left + 1, out);
    return {Lerp(a.X, b.X, column - left), Lerp(a.Y, b.Y, column - left)};
}

double ToShore(const std::vector<Point>& shore, Point p)
{
    double least = 60; // as far as the ground's own survey goes
    for (std::size_t i = 0; i < shore.size(); ++i)
        least = std::min(least, SegmentDistance(shore[i], shore[(i + 1) % shore.size()], p));
    return InsideOutline(shore, p.X, p.Y) ? -least : least;
}

Canvas PaintRing(const Plan& plan)
{
    const std::vector<Point> shore = ShoreLine(plan);
    Canvas picture(RingWidth, RingHeight, {});
    for (int y = 0; y < RingHeight; ++y)
        for (int x = 0; x < RingWidth; ++x)
        {
            const Point p = RingPlace(1.0 * x / (RingWidth - 1) * RingColumns, OutOfShare(1.0 * y / (RingHeight - 1)));
            picture.Set(x, y, FarCountry(p, ToShore(shore, p)));
        }
    return picture;
}

double HillTop(double turn, int cells, std::uint32_t seed)
{
    double sum = 0, strength = 1;
    for (int octave = 0; octave < 6; ++octave, cells *= 2, strength *= 0.46)
        sum += strength * Noise(turn * cells, 0.5 + octave, seed + static_cast<std::uint32_t>(octave), cells);
    return sum;
}

struct Ridges
{
    double Front, Back; // units
};

Ridges RidgesAt(double turn)
{
    return {11 + 9 * HillTop(turn, 30, 667), 21 + 11 * HillTop(turn, 22, 661)};
}

Rgb HillColour(double turn, double height, double top, bool front)
{
    // Woods, clearings and terraces; warm where the sun looks at them, blue where it stands behind.
    const double sunny = 0.5 - 0.5 * (std::cos(2 * Pi * turn) * SunX + std::sin(2 * Pi * turn) * SunZ);
    const double woods = Fbm(turn * 512, height / 4, 671, 3, 512),
                 crowns = Fbm(turn * 2048, height / 1.1, 672, 2, 2048);
    Rgb colour = Mix(Hex(0x8E9A58), Hex(0x4F6B3C), SmoothStep(-0.3, 0.25, woods + 0.02 * (top - height)));
    colour = colour * (1 + 0.08 * crowns + 0.1 * Noise(turn * 60, height / 9, 673, 60));
    colour = colour * Mix(Rgb{0.80, 0.88, 1.04}, Rgb{1.10, 1.03, 0.86}, SmoothStep(0.1, 0.9, sunny));
    const double mist = (front ? 0.34 : 0.58) + 0.22 * SmoothStep(9, 0, height) - 0.08 * sunny;
    return Mix(colour, Haze, mist);
}

Canvas PaintHills()
{
    Canvas picture(HillsWidth, HillsHeight);
    for (int x = 0; x < HillsWidth; ++x)
    {
        const double turn = 1.0 * x / (HillsWidth - 1);
        const auto [front, back] = RidgesAt(turn);
        for (int y = 0; y < HillsHeight; ++y)
        {
            const double height = (y + 0.5) * HillsTall / HillsHeight;
            if (height < std::max(back, front))
                picture.Set(x, y, HillColour(turn, height, height < front ? front : back, height < front));
        }
    }
    return picture;
}

int TexelOf(double share, int size)
{
    return base::RoundEven(share * (size - 1));
}

ModelMesh RingMesh()
{
    ModelMesh mesh(static_cast<int>(std::size(Bands)), RingColumns + 1);
    mesh.Texture = ModelFolder::PathOf("farcountry");
    for (int i = 0; i < mesh.Rows; ++i)
        for (int j = 0; j <= RingColumns; ++j)
        {
            const Point p = RingCorner(j, Bands[i].Out);
            mesh.At(i, j) = {p.X - WorldMiddle, 0, p.Y - WorldMiddle, TexelOf(1.0 * j / RingColumns, RingWidth),
                             TexelOf(Bands[i].Share, RingHeight)};
        }
    return mesh;
}

// How much of the hills' picture a column of the ring's needs up to here: what is above the ridges is not drawn.
double HillsShare(int column)
{
    constexpr int Steps = 64;
    double highest = 0;
    for (int i = -Steps; i <= Steps; ++i)
    {
        const auto [front, back] = RidgesAt(std::fmod((column + 1.0 * i / Steps) / RingColumns + 1, 1));
        highest = std::max({highest, front, back});
    }
    return std::min(highest / HillsTall + 2.0 / HillsHeight, 1.0);
}

ModelMesh HillsMesh()
{
    ModelMesh mesh(2, RingColumns + 1);
    mesh.Texture = ModelFolder::PathOf("hills");
    for (int i = 0; i < 2; ++i)
        for (int j = 0; j <= RingColumns; ++j)
        {
            const Point p = OnCircle(j, HillsRadius);
            const int texel = i * TexelOf(HillsShare(j), HillsHeight);
            mesh.At(i, j) = {p.X - WorldMiddle, texel * HillsTall / (HillsHeight - 1), p.Y - WorldMiddle,
                             TexelOf(1.0 * j / RingColumns, HillsWidth), texel};
        }
    return mesh;
}
}

void WriteBackdrop(const ModelFolder& folder, const Plan& plan)
{
    folder.Texture("farcountry", PaintRing(plan));
    folder.Texture("hills", PaintHills(), Black::Key);
    Model model;
    model.Mass = HeavyMass;
    model.Meshes = {RingMesh(), HillsMesh()};
    folder.Write("backdrop", model);
}
}
