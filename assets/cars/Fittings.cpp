// SPDX-License-Identifier: Zlib
#include "assets/cars/Fittings.h"

#include "assets/cars/Paint.h"
#include "assets/cars/Pieces.h"

#include <cmath>

namespace assets::cars
{
namespace
{
Ink HelmetInk(const Design& design, const Sample& s)
{
    const double front = std::abs(s.A - 0.5); // 0.5 looks ahead
    const double light = Lerp(0.62, 1.08, s.B);
    if (front < 0.23 && s.B > 0.36 && s.B < 0.68)
        return {Mix(Hex(0x0C0E12), Hex(0x5A6A78), SmoothStep(0.50, 0.66, s.B))};
    const bool band = s.B > 0.74 && s.B < 0.84;
    return {(band ? design.Base : design.Helmet) * light};
}

double RimPattern(Rim rim, double angle, double from)
{
    const double turn = angle / (2 * Pi);
    const auto wave = [&](double count, double twist)
    {
        const double t = turn * count + from * twist + 20;
        return std::abs(t - std::floor(t) - 0.5) * 2;
    };
    switch (rim)
    {
    case Rim::Star:
        return SmoothStep(0.55, 0.75, wave(5, 0));
    case Rim::Mesh:
        return std::max(SmoothStep(0.55, 0.8, wave(9, 1.6)), SmoothStep(0.55, 0.8, wave(9, -1.6)));
    case Rim::Turbine:
        return SmoothStep(0.35, 0.6, wave(11, 1.1));
    case Rim::Dish:
        return from > 0.55 ? 1 : SmoothStep(0.45, 0.65, wave(8, 0));
    }
    return 0;
}

Painter WheelPainter(const Design& design)
{
    return [&design](const Sample& s) -> Ink
    {
        const double x = (s.A - 0.5) * 2, y = (s.B - 0.5) * 2, from = std::hypot(x, y);
        if (from > 1)
            return {{}, true};
        const double light = 0.86 + 0.22 * y; // the sky above
        if (from > 0.68)
            return {Hex(0x242427) * (from > 0.94 ? 0.8 : from > 0.80 && from < 0.84 ? 1.5 : 1.1) * light};
        if (from > 0.62)
            return {Mix(design.RimColour, {1, 1, 1}, 0.35) * light};
        if (from < 0.12)
            return {from < 0.08 ? design.RimColour * 0.7 : design.RimColour * light};
        return {Mix(Hex(0x141416), design.RimColour * light, RimPattern(design.Rim, std::atan2(y, x), from / 0.62))};
    };
}

// The tread of one tyre; the others are copies of it. Ten flat faces, one of them on the ground.
ModelMesh Tyre(double outerX, double z, Atlas& atlas, const std::string& texture)
{
    constexpr int Corners = 10;
    Panel panel;
    panel.Shape = [=](double a, double b)
    {
        const double angle = 2 * Pi * (a * Corners + 0.5) / Corners - Pi / 2;
        return Vec3{outerX - std::copysign(0.24, outerX) * (1 - b), AxleY + AxleY * std::sin(angle) * 1.01,
                    z + AxleY * std::cos(angle) * 1.01};
    };
    panel.KnotsA = Evenly(Corners);
    panel.KnotsB = Evenly(1);
    panel.Width = 120;
    panel.Height = 14;
    panel.Inside = {outerX, AxleY, 0};
    const Painter tread = [](const Sample& s) -> Ink
    {
        const double block = std::fmod(s.A * 40 + (s.B > 0.5 ? 0.5 : 0.0), 1.0);
        const bool groove = std::abs(s.B - 0.5) < 0.06 || block < 0.22;
        const double light = Lerp(0.75, 1.25, 0.5 - 0.5 * std::cos(2 * Pi * s.A));
        return {(groove ? Hex(0x111113) : Hex(0x2B2B2E)) * light};
    };
    return Build(panel, tread, atlas, texture);
}

void AddDoorMirror(Model& model, const Design& design, double side)
{
    const double y = design.Shape.ShoulderY(DoorFront);
    const Vec3 inner{side * 0.83, y + 0.04, 0.76}, outer{side * 1.00, y + 0.04, 0.73};
    const Vec3 along = outer - inner, up{0, 0.08, 0};
    model.Meshes.push_back(FlatMesh(design.Base * 0.85, {{inner, outer}, {inner + up, outer + up}}));
    const auto glass = [&](double at, double high) { return inner + along * at + up * high - Vec3{0, 0, 0.012}; };
    model.Meshes.push_back(
        FlatMesh(Hex(0x8C9EAC), {{glass(0.14, 0.12), glass(0.94, 0.12)}, {glass(0.14, 0.88), glass(0.94, 0.88)}}));
}

// A panel from a front edge to a rear one, with two end plates.
void AddBlade(Model& model, const Design& design, double half, Vec3 front, Vec3 rear, Atlas& atlas,
              const std::string& texture)
{
    Panel panel;
    panel.Shape = [=](double a, double b)
    {
        const Vec3 at = front + (rear - front) * b;
        return Vec3{Lerp(-half, half, a), at.Y - 0.08 * b * (1 - b), at.Z};
    };
    panel.KnotsA = panel.KnotsB = Evenly(2);
    panel.Width = 128;
    panel.Height = 32;
    panel.Inside = {0, -1, 0};
    model.Meshes.push_back(Build(panel, WingPainter(design), atlas, texture));
    for (const double side : {-1.0, 1.0})
        model.Meshes.push_back(
            FlatMesh(design.Second * 0.75,
                     {{{side * half, rear.Y - 0.14, rear.Z - 0.03}, {side * half, front.Y - 0.08, front.Z + 0.03}},
                      {{side * half, rear.Y + 0.05, rear.Z - 0.03}, {side * half, front.Y + 0.05, front.Z + 0.03}}}));
}

void AddWing(Model& model, const Design& design, Atlas& atlas, const std::string& texture)
{
    AddBlade(model, design, 0.80, {0, 1.02, -1.80}, {0, 1.08, -2.14}, atlas, texture);
    for (const double side : {-1.0, 1.0})
    {
        const double deck = BonnetPoint(design.Shape, 0.55, -1.9).Y - 0.02;
        model.Meshes.push_back(FlatMesh(Hex(0x1A1A1C), {{{side * 0.50, deck, -2.04}, {side * 0.50, deck, -1.86}},
                                                        {{side * 0.50, 1.03, -2.04}, {side * 0.50, 1.03, -1.86}}}));
    }
}

void AddTyres(Model& model, const Design& design, Atlas& atlas, const std::string& texture)
{
    ModelMesh tyre;
    for (const double side : {-1.0, 1.0})
        for (const double z : {FrontAxle, RearAxle})
        {
            // The four wheels share their texels.
            const double x = side * (design.Shape.HalfWidth(z) - 0.012);
            if (tyre.Points.empty())
                tyre = Tyre(x, 0, atlas, texture);
            ModelMesh tread = tyre;
            for (ModelPoint& p : tread.Points)
            {
                p.X = x - std::copysign(p.V == tyre.Points[0].V ? 0.24 : 0.0, x);
                p.Z += z;
            }
            model.Meshes.push_back(tread);
        }
}

void AddWheelFaces(Model& model, const Design& design, Atlas& atlas, const std::string& texture)
{
    ModelMesh face;
    for (const double side : {-1.0, 1.0})
        for (const double z : {FrontAxle, RearAxle})
        {
            const double x = side * (design.Shape.HalfWidth(z) - 0.010);
            const Vec3 low{x, 0, z - AxleY}, high{x, 2 * AxleY, z - AxleY}, along{0, 0, 2 * AxleY};
            if (face.Points.empty())
                face = Face(low, low + along, high, high + along, 2, 64, 64, WheelPainter(design), atlas, texture);
            for (int i = 0; i < 3; ++i)
                for (int j = 0; j < 3; ++j)
                {
                    face.At(i, j).X = x;
                    face.At(i, j).Z = z + (j - 1) * AxleY;
                }
            model.Meshes.push_back(face);
        }
}

// Beside the eye of the view from the seat, and beyond the edge of the one back over the shoulder.
constexpr Vec3 Head{-0.37, 0.93, -0.13};

ModelMesh Helmet(const Design& design, Atlas& atlas, const std::string& texture)
{
    Panel panel;
    panel.Shape = [](double a, double b)
    {
        const Curve radius{{0, 0.070}, {0.45, 0.105}, {0.75, 0.092}, {1, 0.030}};
        const double angle = 2 * Pi * (a - 0.5), r = radius(b);
        return Head + Vec3{r * std::sin(angle), 0.225 * (b - 0.5), r * std::cos(angle)};
    };
    panel.KnotsA = Evenly(6);
    panel.KnotsB = {0, 0.5, 1};
    panel.Width = 48;
    panel.Height = 24;
    panel.Inside = {Head.X, Head.Y, Head.Z * 0.2};
    return Build(
        panel, [&design](const Sample& s) { return HelmetInk(design, s); }, atlas, texture);
}

ModelMesh Shoulders(const Design& design)
{
    const auto row = [](double half, double y, double z) {
        return std::vector<Vec3>{{Head.X + 0.03 - half, y, z}, {Head.X + 0.03 + half, y, z}};
    };
    return FlatMesh(design.Helmet * 0.55 + Hex(0x202020),
                    {row(0.16, 0.45, -0.14), row(0.18, 0.70, -0.15), row(0.08, 0.81, -0.17)});
}

// An outline of the ground below the car, `out` wider than the car on every side.
ModelMesh GroundShape(const Design& design, Rgb colour, double out, double y)
{
    // The sun is low on the left, behind: the shadow leans the other way.
    constexpr double LeanX = 0.07, LeanZ = 0.05;
    std::vector<std::vector<Vec3>> rows;
    for (const double z : {-1.0, -0.93, -0.75, 0.0, 0.78, 0.94, 1.0})
    {
        const double end = z < 0 ? -TailZ + design.Shape.TailBulge : NoseZ + 0.6 * design.Shape.NoseBulge;
        const double round = std::pow(1 - std::pow(std::abs(z), 6.0), 0.4);
        const double half = (0.60 + 0.34 * round) + out * (0.4 + 0.6 * round);
        const double at = z * (end + out);
        rows.push_back({{LeanX - half, y, at + LeanZ}, {LeanX + half, y, at + LeanZ}});
    }
    return FlatMesh(colour, rows);
}
}

void AddOutside(Model& model, const Design& design, Atlas& atlas, const std::string& texture)
{
    AddTyres(model, design, atlas, texture);
    AddWheelFaces(model, design, atlas, texture);
    for (const double side : {-1.0, 1.0})
        AddDoorMirror(model, design, side);
    if (design.Spoiler == Spoiler::Wing)
        AddWing(model, design, atlas, texture);
    if (design.Spoiler == Spoiler::Roof)
    {
        const double y = design.Shape.RoofY + 0.015, z = design.Shape.RoofRear;
        AddBlade(model, design, RoofHalf, {0, y, z + 0.02}, {0, y + 0.035, z - 0.28}, atlas, texture);
    }
}

void AddDriver(Model& model, const Design& design, Atlas& atlas, const std::string& texture)
{
    model.Meshes.push_back(Helmet(design, atlas, texture));
    model.Meshes.push_back(Shoulders(design));
}

void AddShadow(Model& model, const Design& design)
{
    model.Meshes.push_back(GroundShape(design, Hex(0x2C2B2E), 0.07, 0.007));
    model.Meshes.push_back(GroundShape(design, Hex(0x151517), 0.0, 0.015));
}
}
