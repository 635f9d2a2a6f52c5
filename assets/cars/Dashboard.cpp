// SPDX-License-Identifier: Zlib
// What stands before the driver, as Fittings.h promises it: all in flat colours, because a texel would be as large as a
// finger here.
#include "assets/cars/Fittings.h"

#include "assets/cars/Pieces.h"

#include <cmath>
#include <utility>

namespace assets::cars
{
namespace
{
constexpr Rgb Leather = Hex(0x28272B), Edge = Hex(0x47454A), Panelling = Hex(0x18181B), Alloy = Hex(0x8E9196),
              Needle = Hex(0xF0561E), Figure = Hex(0xE6E4DA);
constexpr double EdgeZ = 0.44, EdgeY = 0.715; // of the top, toward the seats
constexpr double HoodHalf = 0.225;

// From the bonnet's edge over the windscreen's foot to the edge toward the seats. It shares the bonnet's corners, so
// that not a pixel of road shows between them.
ModelMesh Top(const Shape& shape)
{
    std::vector<std::vector<Vec3>> rows(4);
    for (const double across : {-1.0, -0.5, 0.0, 0.5, 1.0})
    {
        const Vec3 foot = BonnetPoint(shape, across, CowlZ(across) - 0.01) - Vec3{0, 0.008, 0};
        const Vec3 edge{across * 0.80, EdgeY, EdgeZ};
        rows[0].push_back(BonnetEdge(shape, across));
        rows[1].push_back(foot);
        rows[2].push_back(foot + (edge - foot) * 0.5);
        rows[3].push_back(edge);
    }
    return FlatMesh(Leather, rows);
}

// The edge and the face below it, left and right of the hood.
void AddFace(Model& model)
{
    const double hood[] = {SeatX - HoodHalf, SeatX + HoodHalf};
    for (const auto& [from, to] : {std::pair{-0.80, hood[0]}, {hood[1], 0.80}})
    {
        const std::vector<Vec3> edge{{from, EdgeY, EdgeZ}, {to, EdgeY, EdgeZ}};
        const std::vector<Vec3> lip{{from, 0.685, 0.405}, {to, 0.685, 0.405}};
        const std::vector<Vec3> foot{{from, 0.40, 0.36}, {to, 0.40, 0.36}};
        model.Meshes.push_back(FlatMesh(Edge, {edge, lip}));
        model.Meshes.push_back(FlatMesh(Panelling, {lip, foot}));
    }
}

// An alloy panel with switches before the other seat.
void AddSwitches(Model& model)
{
    const Vec3 up = Unit({0, 0.285, 0.045});
    const Plane panel{{0.30, 0.615, 0.385}, {1, 0, 0}, up};
    model.Meshes.push_back(Plate(Alloy * 0.55, panel, 0.20, 0.042));
    for (const int i : {-1, 0, 1})
    {
        Plane key = panel;
        key.Middle = panel.At(0.115 * i, 0) - Vec3{0, 0, 0.008};
        model.Meshes.push_back(Plate(i == 1 ? Hex(0xB02018) : Hex(0x101012), key, 0.030, 0.018));
    }
}

// A hood over the clocks, and the panel that they sit in.
void AddHood(Model& model)
{
    std::vector<std::vector<Vec3>> rows(2);
    const double aside[] = {-HoodHalf, -0.205, 0, 0.205, HoodHalf};
    const double front[] = {0.44, 0.770, 0.788, 0.770, 0.44}, rear[] = {0.44, 0.738, 0.752, 0.738, 0.44};
    for (std::size_t i = 0; i < std::size(aside); ++i)
    {
        rows[0].push_back({SeatX + aside[i], front[i], 0.382});
        rows[1].push_back({SeatX + aside[i], rear[i], 0.62});
    }
    model.Meshes.push_back(FlatMesh(Leather * 1.25, rows));
}

// A dark face with a bright rim, ticks around it and a needle; each layer a little nearer to the eye.
void AddClock(Model& model, Plane plane, double radius, double needle)
{
    const Vec3 nearer{0, 0.0013, -0.0050};
    const auto layer = [&]
    {
        plane.Middle = plane.Middle + nearer;
        return plane;
    };
    model.Meshes.push_back(Disc(Alloy, layer(), radius, 12));
    model.Meshes.push_back(Disc(Hex(0x0C0C0E), layer(), radius * 0.91, 12));
    layer();
    for (const double degrees : {210.0, 150.0, 90.0, 30.0, -30.0})
        model.Meshes.push_back(Hand(degrees < 0 ? Hex(0xD82A20) : Figure, plane, degrees * Pi / 180, radius * 0.66,
                                    radius * 0.86, radius * 0.045));
    model.Meshes.push_back(Hand(Needle, layer(), needle, -radius * 0.15, radius * 0.78, radius * 0.045));
}

void AddClocks(Model& model)
{
    const Plane panel{{SeatX, 0.688, 0.424}, {1, 0, 0}, Unit({0, 0.175, 0.045})};
    const Plane back{panel.At(0, -0.075), panel.Right, panel.Up};
    model.Meshes.push_back(Plate(Hex(0x161618), back, HoodHalf - 0.008, 0.148));
    for (const double side : {-1.0, 1.0})
        AddClock(model, {panel.At(side * 0.099, 0.0), panel.Right, panel.Up}, 0.083, side < 0 ? 1.9 : 2.6);
    for (const double at : {0.012, -0.012})
        model.Meshes.push_back(Plate(at > 0 ? Hex(0x30C050) : Hex(0xE0A020),
                                     {panel.At(0, at * 3) - Vec3{0, 0, 0.006}, panel.Right, panel.Up}, 0.007, 0.007));
}

void AddWheel(Model& model)
{
    const Plane plane{{SeatX, 0.55, 0.27}, {1, 0, 0}, Unit({0, 0.165, 0.075})};
    Plane above = plane;
    above.Middle = plane.Middle + Vec3{0, 0.002, -0.005};
    for (const double angle : {Pi / 10, Pi * 9 / 10})
        model.Meshes.push_back(Hand(Alloy, plane, angle, 0.02, 0.165, 0.017));
    model.Meshes.push_back(Plate(Hex(0x202022), above, 0.045, 0.04));
    model.Meshes.push_back(Arc(Hex(0x1C1C1F), plane, 0.153, 0.180, 0, 2 * Pi, 14));
    model.Meshes.push_back(Arc(Hex(0x4C4A4E), above, 0.165, 0.172, Pi * 0.15, Pi * 0.85, 6));
}
}

void AddDashboard(Model& model, const Design& design)
{
    model.Meshes.push_back(Top(design.Shape));
    AddFace(model);
    AddSwitches(model);
    AddHood(model);
    AddClocks(model);
    AddWheel(model);
}
}
