// SPDX-License-Identifier: Zlib
// The inside of a car, as Fittings.h promises it.
#include "assets/cars/Fittings.h"

#include "assets/cars/Pieces.h"
#include "base/Numbers.h"

#include <cmath>

namespace assets::cars
{
namespace
{
constexpr int GlassWidth = 512, GlassHeight = 256;
constexpr Rgb Trim = Hex(0x232225), Carpet = Hex(0x18181B), RoofCloth = Hex(0x3A3733);
constexpr double HeaderEnd = 0.07; // how far the windscreen's upper frame reaches along the roof

// The wall between cabin or wheel housing and the outer skin, cut where the flank is.
ModelMesh InnerWall(const Design& design, double side)
{
    const Curve half{{-2.0, .67}, {-0.88, .79}, {0.40, .79}, {0.86, .775}, {1.85, .66}};
    std::vector<Vec3> low, high;
    for (const double z : {-2.0, -0.88, -0.2, 0.40, 0.86, 1.85})
    {
        const double x = half(z);
        low.push_back({side * x, 0.16, z});
        const bool door = z > -0.9 && z < 0.9;
        if (door && design.Shape.Open)
            high.push_back(FlankPoint(design.Shape, side, z, 1));
        else // along the doors above the sill, so that no outer paint is seen from the seats
            high.push_back({side * (door ? x + 0.011 : x), design.Shape.ShoulderY(z) + (door ? 0.055 : -0.03), z});
    }
    return FlatMesh(Carpet, {low, high});
}

std::vector<Vec3> AcrossRoof(const Shape& shape, double back, Vec3 offset)
{
    std::vector<Vec3> row;
    for (const double across : {-0.99, -0.5, 0.0, 0.5, 0.99})
        row.push_back(RoofPoint(shape, across, back) + offset);
    return row;
}

// The inside of the roof, cut where the roof is.
void AddLining(Model& model, const Shape& shape)
{
    const Vec3 under{0, -0.034, 0};
    model.Meshes.push_back(
        FlatMesh(Hex(0x1E1D1F), {AcrossRoof(shape, 0, {0, -0.032, -0.004}), AcrossRoof(shape, HeaderEnd, under)}));
    std::vector<std::vector<Vec3>> rows;
    for (const double back : {HeaderEnd, 0.35, 0.99})
    {
        const std::vector<Vec3> row = AcrossRoof(shape, back, under);
        rows.push_back({row.front(), row[2], row.back()});
    }
    model.Meshes.push_back(FlatMesh(RoofCloth, rows));
}

// What hides the paint of the quarter panel behind the windows from within.
ModelMesh QuarterTrim(const Design& design, double side)
{
    const double first = QuarterEnd(design.Shape) - 0.03;
    std::vector<std::vector<Vec3>> rows(2);
    for (const double back : {first, (first + 1) / 2, 0.995})
        for (std::size_t i = 0; i < 2; ++i)
            rows[i].push_back(CabinSidePoint(design.Shape, side, back, i == 0 ? 0.0 : 1.0) -
                              Vec3{side * 0.05, i == 0 ? -0.01 : 0.02, 0});
    return FlatMesh(RoofCloth, rows);
}

// What hides the painted frame above the driver's window from within: its texels are as large as fingers there. Cut
// where the window is; it runs out into the pillar in front.
ModelMesh WindowTrim(const Design& design)
{
    constexpr double Left = -1;
    std::vector<std::vector<Vec3>> rows(2);
    for (const double back : {0.026, 0.15, DoorEnd(design.Shape) - 0.035})
    {
        const bool pillar = back < 0.1;
        const Vec3 inward{pillar ? 0.018 : 0.06, 0, 0};
        rows[0].push_back(CabinSidePoint(design.Shape, Left, back, pillar ? 0.82 : 0.78) + inward);
        rows[1].push_back(CabinSidePoint(design.Shape, Left, back, 1.0) + inward);
    }
    return FlatMesh(Hex(0x1C1C1D), rows); // as dark as the frame, of which corners show through
}

// The post behind the right door, which the view back looks at: straight edges before the painted ones.
ModelMesh DoorPost(const Design& design)
{
    const Shape& shape = design.Shape;
    const double doorEnd = DoorEnd(shape);
    std::vector<std::vector<Vec3>> rows;
    for (const double up : {0.05, 1.0})
    {
        const double middle = doorEnd - 0.02 * up + 0.009;
        rows.push_back({CabinSidePoint(shape, 1, middle - 0.036, up) - Vec3{0.03, 0, 0},
                        CabinSidePoint(shape, 1, middle + 0.036, up) - Vec3{0.03, 0, 0}});
    }
    return FlatMesh(Trim, rows);
}

Rgb FrameColour(const Design& design)
{
    return design.Base * 0.30 + Hex(0x1A1A1C);
}

// A pillar as the driver sees it: before the edges of glass and door, so that no outer paint shows.
ModelMesh Pillar(const Design& design, double side)
{
    const Shape& shape = design.Shape;
    std::vector<std::vector<Vec3>> rows;
    for (const double up : PillarKnots())
    {
        const Vec3 inward{-side * 0.016, 0, -0.024};
        rows.push_back({WindscreenPoint(shape, side * 0.966, up) + Vec3{0, 0, -0.024},
                        WindscreenPoint(shape, side, up) + inward, CabinSidePoint(shape, side, 0.026, up) + inward});
    }
    return FlatMesh(shape.Open ? FrameColour(design) * 0.85 : Trim, rows);
}

// The frame around an open car's windscreen, seen from outside and from the seat.
void AddFrame(Model& model, const Design& design)
{
    const Shape& shape = design.Shape;
    const Rgb colour = FrameColour(design);
    std::vector<std::vector<Vec3>> bar;
    for (const Vec3 offset : {Vec3{0, -0.03, 0.016}, Vec3{0, 0.012, -0.004}, Vec3{0, -0.026, -0.030}})
        bar.push_back(AcrossRoof(shape, 0, offset));
    model.Meshes.push_back(FlatMesh(colour, bar));
    for (const double side : {-1.0, 1.0})
    {
        std::vector<std::vector<Vec3>> rows;
        for (const double up : PillarKnots())
        {
            const Vec3 corner = WindscreenPoint(shape, side, up);
            rows.push_back({WindscreenPoint(shape, side * 0.955, up) + Vec3{0, 0, 0.008},
                            corner + Vec3{side * 0.012, 0, 0.008}, corner + Vec3{side * 0.012, 0, -0.045}});
        }
        model.Meshes.push_back(FlatMesh(colour, rows));
    }
}

// What closes the humps of an open car toward the seats.
ModelMesh FairingFront(const Design& design, double side)
{
    std::vector<Vec3> high, low;
    for (const double around : Evenly(4))
    {
        high.push_back(FairingPoint(design.Shape, side, around, 0));
        low.push_back({high.back().X, FairingPoint(design.Shape, side, 0, 0).Y - 0.04, high.back().Z});
    }
    return FlatMesh(Hex(0x1B1A1C), {low, high});
}

// Low, so that the view back passes over it.
ModelMesh Seat(double x, Rgb colour)
{
    const auto row = [&](double half, double y, double z) {
        return std::vector<Vec3>{{x - half, y, z}, {x + half, y, z}};
    };
    return FlatMesh(colour,
                    {row(0.20, 0.22, -0.16), row(0.22, 0.56, -0.30), row(0.18, 0.70, -0.37), row(0.13, 0.76, -0.39)});
}

// The wall behind the seats, and the shelf below the rear window.
ModelMesh RearWall(const Design& design)
{
    const double shelf = design.Shape.WindowRear + 0.03;
    const double shelfY = BonnetPoint(design.Shape, 0, shelf).Y - 0.012;
    const double wallY = design.Shape.Open ? shelfY : 0.72;
    return FlatMesh(Hex(0x1B1A1C), {{{-0.79, 0.20, -0.56}, {0.79, 0.20, -0.56}},
                                    {{-0.79, wallY, -0.62}, {0.79, wallY, -0.62}},
                                    {{-0.68, shelfY, shelf}, {0.68, shelfY, shelf}}});
}

// The mirror under the windscreen's frame: a strip of sky over a strip of road.
void AddMirror(Model& model)
{
    const Plane plane{{0.02, 1.126, 0.555}, {1, 0, 0}, {0, 0.98, -0.17}};
    Plane glass = plane;
    glass.Middle = plane.At(0, 0.011) - Vec3{0, 0, 0.008};
    model.Meshes.push_back(Plate(Hex(0x141416), plane, 0.108, 0.034));
    model.Meshes.push_back(Plate(Hex(0xA8BAC8), glass, 0.098, 0.014));
    glass.Middle = plane.At(0, -0.014) - Vec3{0, 0, 0.008};
    model.Meshes.push_back(Plate(Hex(0x4E4F54), glass, 0.098, 0.011));
}
}

void AddCabin(Model& model, const Design& design)
{
    for (const double side : {-1.0, 1.0})
        model.Meshes.push_back(InnerWall(design, side));
    model.Meshes.push_back(
        FlatMesh(Hex(0x0E0E10), {{{-0.84, 0.17, -2.0}, {0.84, 0.17, -2.0}}, {{-0.80, 0.17, 2.0}, {0.80, 0.17, 2.0}}}));
    for (const double side : {-1.0, 1.0})
        model.Meshes.push_back(Pillar(design, side));
    if (design.Shape.Open)
    {
        AddFrame(model, design);
        for (const double side : {-1.0, 1.0})
            model.Meshes.push_back(FairingFront(design, side));
    }
    else
    {
        AddLining(model, design.Shape);
        for (const double side : {-1.0, 1.0})
            model.Meshes.push_back(QuarterTrim(design, side));
        model.Meshes.push_back(WindowTrim(design));
        model.Meshes.push_back(DoorPost(design));
    }
    AddMirror(model);
    model.Meshes.push_back(RearWall(design));
    const Rgb cloth = design.Second * 0.10 + Hex(0x242326) * 0.8;
    model.Meshes.push_back(Seat(SeatX, cloth));
    model.Meshes.push_back(Seat(-SeatX, cloth));
}

void AddWindscreen(Model& model, const Design& design)
{
    ModelMesh glass(3, 5);
    glass.Texture = "<path>..\\..\\textures\\glass.bmp";
    for (int i = 0; i < glass.Rows; ++i)
        for (int j = 0; j < glass.Cols; ++j)
        {
            const Vec3 p = WindscreenPoint(design.Shape, j / 2.0 - 1, i / 2.0);
            glass.At(i, j) = {p.X, p.Y, p.Z, base::RoundEven(j / 4.0 * (GlassWidth - 1)),
                              base::RoundEven(i / 2.0 * (GlassHeight - 1))};
        }
    model.Meshes.insert(model.Meshes.begin() + GlassMesh, glass);
}
}
