// SPDX-License-Identifier: Zlib
#include "assets/track/WallEnds.h"

#include "assets/common/Noise.h"
#include "assets/track/Light.h"

#include <algorithm>

namespace assets::track
{
namespace
{
constexpr double PillarHalf = 0.55, PillarHeight = 1.62, CapHalf = 0.68, CapLow = 1.5;
constexpr int PillarWidth = 24, PillarRows = 32; // texels of a side; the cap's top is above the four sides

struct WallEnd
{
    Point At;
    double DirX, DirZ; // along the wall
    double Angle;      // of the piece
};

std::vector<WallEnd> EndsOfWalls(const Plan& plan)
{
    std::vector<WallEnd> ends;
    for (const Standing& item : plan.Items)
    {
        if (item.Name != "stonewall" && item.Name != "stonewall_rim")
            continue;
        const double c = std::cos(item.Angle), s = std::sin(item.Angle), half = KindOf(item.Name).HalfX;
        for (const double side : {-1.0, 1.0})
            ends.push_back({{item.X + side * half * c, item.Z + side * half * s}, c, s, item.Angle});
    }
    return ends;
}

double Apart(Point a, Point b)
{
    return std::hypot(a.X - b.X, a.Y - b.Y);
}

// Whether the two meet so well that nothing needs to be covered.
bool Joins(const WallEnd& a, const WallEnd& b)
{
    return Apart(a.At, b.At) < 0.12 && std::abs(a.DirX * b.DirZ - a.DirZ * b.DirX) < 0.06;
}

// The four sides in turn from the front, which looks at the road and has the sun behind it, and the top of the cap.
Canvas PaintPillar()
{
    constexpr double Lit[] = {0.4, 0.65, 0.9, 0.6};
    Canvas picture(4 * PillarWidth, PillarRows + 8);
    for (int x = 0; x < picture.Width; ++x)
    {
        const Rgb light = Mix(ShadeLight, SunLight, Lit[x / PillarWidth]);
        for (int y = 0; y < PillarRows; ++y)
        {
            const CellDistance stone = Cells(x / 7.0, y / 5.2, 1261, 0, 0);
            const double tone = (stone.Id & 255u) / 255.0;
            Rgb c = Mix(Hex(0xC4B492), Hex(0x9E927B), tone);
            c = Mix(c, Hex(0x6A5F4C), 0.5 * SmoothStep(0.14, 0.03, stone.Second - stone.First));
            picture.Set(x, y, c * light * Lerp(0.8, 1, Clamp01(y / 6.0)));
        }
        for (int y = PillarRows; y < picture.Height; ++y)
            picture.Set(x, y, Hex(0xDACEB2) * (1 + 0.05 * Noise(x / 4.0, y / 4.0, 1262)));
    }
    return picture;
}

void AddBox(Model& model, double half, double low, double high)
{
    const Point corners[] = {{-half, -half}, {half, -half}, {half, half}, {-half, half}};
    for (int side = 0; side < 4; ++side)
    {
        const Point a = corners[side], b = corners[(side + 1) % 4];
        const bool cap = low > 0;
        const Region part{side * PillarWidth, cap ? PillarRows : 0, PillarWidth, cap ? 4 : PillarRows};
        model.Meshes.push_back(Upright("wallend", part, a.X, a.Y, b.X, b.Y, low, high));
    }
    model.Meshes.push_back(Face("wallend", {0, PillarRows, PillarWidth, 8}, {-half, high, -half}, {half, high, -half},
                                {half, high, half}, {-half, high, half}));
}
}

void PutWallEnds(Plan& plan)
{
    constexpr double Meeting = 1.3; // ends nearer than this share a pillar
    const std::vector<WallEnd> ends = EndsOfWalls(plan);
    std::vector<Point> pillars;
    for (std::size_t i = 0; i < ends.size(); ++i)
    {
        bool joined = false;
        Point at = ends[i].At;
        for (std::size_t j = 0; j < ends.size(); ++j)
        {
            joined = joined || (j != i && Joins(ends[i], ends[j]));
            if (j != i && Apart(ends[i].At, ends[j].At) < Meeting)
                at = {(ends[i].At.X + ends[j].At.X) / 2, (ends[i].At.Y + ends[j].At.Y) / 2};
        }
        const bool stands =
            std::any_of(pillars.begin(), pillars.end(), [&](Point p) { return Apart(p, at) < Meeting / 2; });
        if (joined || stands)
            continue;
        pillars.push_back(at);
        plan.Items.push_back({"wallend", at.X, at.Y, ends[i].Angle});
    }
}

void WriteWallEnd(const ModelFolder& folder)
{
    folder.Texture("wallend", PaintPillar());
    Model model;
    model.Mass = HeavyMass;
    AddBox(model, PillarHalf, 0, CapLow);
    AddBox(model, CapHalf, CapLow, PillarHeight);
    folder.Write("wallend", model);
}
}
