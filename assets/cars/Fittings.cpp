#include "assets/cars/Fittings.h"

#include "assets/cars/Paint.h"
#include "assets/cars/Pieces.h"
#include "base/Numbers.h"

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

// The driver's head, behind the eye of the view from the seat.
ModelMesh Helmet(const Design& design, Atlas& atlas, const std::string& texture)
{
    Panel panel;
    panel.Shape = [](double a, double b)
    {
        const Curve radius{{0, 0.080}, {0.45, 0.118}, {0.75, 0.102}, {1, 0.036}};
        const double angle = 2 * Pi * (a - 0.5), r = radius(b);
        return Vec3{SeatX - 0.04 + r * std::sin(angle), 0.80 + 0.235 * b, -0.47 + 1.1 * r * std::cos(angle)};
    };
    panel.KnotsA = Evenly(6);
    panel.KnotsB = {0, 0.5, 1};
    panel.Width = 48;
    panel.Height = 24;
    panel.Inside = {SeatX, 0.90, -0.10};
    return Build(
        panel, [&design](const Sample& s) { return HelmetInk(design, s); }, atlas, texture);
}

Ink ShadowInk(const Sample& s)
{
    // Darkest under the car, dissolving outward into single texels.
    const double x = (s.A - 0.5) * 2, z = (s.B - 0.5) * 2;
    const double out = std::pow(std::pow(std::abs(x), 3.0) + std::pow(std::abs(z), 4.0), 0.3);
    const double density = SmoothStep(1.02, 0.70, out);
    const int column = base::RoundEven(s.A * 55), row = base::RoundEven(s.B * 111);
    constexpr int Order[4][4] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};
    if (density <= (Order[row & 3][column & 3] + 0.5) / 16)
        return {{}, true};
    return {Mix(Hex(0x4A494A), Hex(0x0E0E10), density * density)};
}

// Two quads, one a side.
ModelMesh DoorMirror(const Design& design, double side)
{
    ModelMesh mesh = FlatMesh(design.Base * 0.85, {{{side * 0.84, 0.80, 0.44}, {side * 1.00, 0.81, 0.42}},
                                                   {{side * 0.86, 0.89, 0.44}, {side * 1.00, 0.89, 0.42}}});
    return mesh;
}

void AddWing(Model& model, const Design& design, Atlas& atlas, const std::string& texture)
{
    Panel panel;
    panel.Shape = [](double a, double b)
    {
        const double x = Lerp(-0.80, 0.80, a);
        return Vec3{x, 1.02 + 0.06 * b - 0.08 * b * (1 - b), Lerp(-1.80, -2.14, b)};
    };
    panel.KnotsA = panel.KnotsB = Evenly(2);
    panel.Width = 128;
    panel.Height = 24;
    panel.Inside = {0, -1, 0};
    model.Meshes.push_back(Build(panel, WingPainter(design), atlas, texture));
    for (const double side : {-1.0, 1.0})
    {
        model.Meshes.push_back(
            FlatMesh(design.Second * 0.75, {{{side * 0.80, 0.94, -2.17}, {side * 0.80, 0.94, -1.77}},
                                            {{side * 0.80, 1.13, -2.17}, {side * 0.80, 1.07, -1.77}}}));
        const double deck = BonnetPoint(design.Shape, 0.55, -1.9).Y - 0.02;
        model.Meshes.push_back(FlatMesh(Hex(0x1A1A1C), {{{side * 0.50, deck, -2.04}, {side * 0.50, deck, -1.86}},
                                                        {{side * 0.50, 1.03, -2.04}, {side * 0.50, 1.03, -1.86}}}));
    }
}
}

std::size_t AddOutside(Model& model, const Design& design, Atlas& atlas, const std::string& texture)
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
    ModelMesh face;
    for (const double side : {-1.0, 1.0})
        for (const double z : {FrontAxle, RearAxle})
        {
            const double x = side * (design.Shape.HalfWidth(z) - 0.010);
            const Vec3 low{x, 0, z - AxleY}, high{x, 2 * AxleY, z - AxleY}, along{0, 0, 2 * AxleY};
            if (face.Points.empty())
                face = Face(low, low + along, high, high + along, 2, 52, 52, WheelPainter(design), atlas, texture);
            for (int i = 0; i < 3; ++i)
                for (int j = 0; j < 3; ++j)
                {
                    face.At(i, j).X = x;
                    face.At(i, j).Z = z + (j - 1) * AxleY;
                }
            model.Meshes.push_back(face);
        }
    const std::size_t shadow = model.Meshes.size();
    model.Meshes.push_back(Face({-1.14, 0.02, -2.44}, {1.14, 0.02, -2.44}, {-1.14, 0.02, 2.44}, {1.14, 0.02, 2.44}, 2,
                                56, 112, ShadowInk, atlas, texture));
    model.Meshes.push_back(Helmet(design, atlas, texture));
    model.Meshes.push_back(DoorMirror(design, -1));
    model.Meshes.push_back(DoorMirror(design, 1));
    if (design.Spoiler == Spoiler::Wing)
        AddWing(model, design, atlas, texture);
    return shadow;
}

void AddSpheres(Model& model)
{
    for (const double z : {1.55, 0.05, -1.50})
        for (const double side : {-1.0, 1.0})
            model.Spheres.push_back({side * 0.48, 0.50, z, 0.56, {}});
    for (const double z : {0.05, -0.75})
        model.Spheres.push_back({0, 0.90, z, 0.40, {}});
    constexpr int LastBody = 9;
    for (std::size_t i = 0; i < model.Spheres.size(); ++i)
    {
        const bool cabin = i >= 6;
        model.LinkNear(model.Spheres[i], cabin ? 2 : 0, LastBody, cabin ? 0.34 : 0.20);
        if (cabin)
            model.LinkNear(model.Spheres[i], GlassMesh, GlassMesh, 0.34);
    }
}
}
