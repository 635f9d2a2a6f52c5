// The inside of a car, as Fittings.h promises it.
#include "assets/cars/Fittings.h"

#include "assets/cars/Pieces.h"
#include "base/Numbers.h"

#include <cmath>

namespace assets::cars
{
namespace
{
constexpr int GlassWidth = 128, GlassHeight = 64;

// The wall between cabin or wheel housing and the outer skin.
ModelMesh InnerWall(const Design& design, double side)
{
    const Curve half{{-2.0, .68}, {-0.95, .68}, {-0.80, .79}, {0.56, .79}, {0.80, .68}, {1.70, .68}, {2.0, .62}};
    std::vector<Vec3> low, high;
    for (const double z : {-2.0, -1.05, -0.80, -0.2, 0.27, 0.50, 0.78, 1.85})
    {
        const double x = half(z);
        low.push_back({side * x, 0.16, z});
        // Along the doors it ends above the sill, so that no outer paint is seen from the seats.
        const double above = z > -0.9 && z < 0.55 ? 0.055 : -0.03;
        high.push_back({side * (x + above * 0.2), design.Shape.ShoulderY(z) + above, z});
    }
    return FlatMesh(Hex(0x18181B), {low, high});
}

// The inside of the roof.
ModelMesh Lining(const Design& design)
{
    std::vector<std::vector<Vec3>> rows;
    for (const double back : {0.01, 0.35, 0.99})
    {
        std::vector<Vec3> row;
        for (const double across : {-0.98, -0.5, 0.0, 0.5, 0.98})
            row.push_back(RoofPoint(design.Shape, across, back) - Vec3{0, 0.028, 0});
        rows.push_back(row);
    }
    return FlatMesh(Hex(0x3A3733), rows);
}

// The trim behind a front pillar: close to its inner side, so that the driver does not see the outer paint.
ModelMesh PillarTrim(const Design& design, double side)
{
    std::vector<std::vector<Vec3>> rows;
    for (const double up : {0.0, 0.45, 1.0})
    {
        std::vector<Vec3> row;
        for (const double back : {0.002, 0.040})
            row.push_back(CabinSidePoint(design.Shape, side, back, up) - Vec3{side * 0.014, 0, 0.004});
        rows.push_back(row);
    }
    return FlatMesh(Hex(0x232225), rows);
}

ModelMesh Seat(double x, Rgb colour)
{
    const auto row = [&](double half, double y, double z) {
        return std::vector<Vec3>{{x - half, y, z}, {x + half, y, z}};
    };
    return FlatMesh(colour,
                    {row(0.20, 0.22, -0.32), row(0.22, 0.60, -0.42), row(0.17, 0.86, -0.50), row(0.10, 0.98, -0.54)});
}

Ink DialInk(const Sample& s)
{
    const double x = (s.A - 0.5) * 2.6, y = (s.B - 0.5) * 1.3;
    for (const double centre : {-0.55, 0.55})
    {
        const double dx = x - centre, dy = y + 0.02, from = std::hypot(dx, dy);
        if (from > 0.50)
            continue;
        if (from > 0.46)
            return {Hex(0x9A9DA2)};
        const double angle = std::atan2(dy, dx);
        const bool tick = from > 0.35 && std::fmod(angle + 7 * Pi, Pi / 6) < 0.16 && !(dy < -0.22);
        const double needle = centre < 0 ? 0.9 : 2.2;
        if (from < 0.36 && std::abs(std::sin(angle - needle)) * from < 0.035 && std::cos(angle - needle) > -0.1)
            return {Hex(0xF0561E)};
        if (tick)
            return {centre < 0 && dx > 0.2 && dy < 0.25 ? Hex(0xD82A20) : Hex(0xE8E6DC)};
        return {Hex(0x101114)};
    }
    if (std::abs(x) < 0.06 && std::abs(y - 0.25) < 0.06)
        return {Hex(0x30C050)};
    return {Mix(Hex(0x232326), Hex(0x38383B), s.B)};
}

// The dashboard: b 0 to 0.4 is its face, above that its top up to the windscreen.
Ink DashInk(const Sample& s)
{
    const double x = Lerp(-0.80, 0.80, s.A), b = s.B;
    if (b > 0.40)
    {
        const double edge = SmoothStep(0.52, 0.42, b);
        Rgb colour = Mix(Hex(0x242325), Hex(0x5A564F), edge * edge);
        if (b > 0.80 && b < 0.88 && std::fmod(std::abs(x) + 0.02, 0.30) < 0.20) // warm air for the windscreen
            colour = Hex(0x121214);
        return {colour};
    }
    Rgb colour = Mix(Hex(0x151416), Hex(0x29272A), b / 0.4);
    if (x > 0.28 && x < 0.70 && b > 0.06 && b < 0.30) // glove box
        colour = x < 0.29 || x > 0.69 || b < 0.07 || b > 0.29 ? Hex(0x0C0C0D) : colour * 1.25;
    for (const double centre : {-0.02, 0.10, 0.22}) // small clocks
    {
        const double from = std::hypot(x - centre, (b - 0.27) * 0.95) / 0.052;
        if (from < 1)
            colour = from > 0.82                                                   ? Hex(0x8C8F94)
                     : std::abs(x - centre - (b - 0.25) * 0.5) < 0.006 && b > 0.25 ? Hex(0xF0561E)
                                                                                   : Hex(0x0E0F11);
    }
    return {colour};
}

Ink SteeringInk(const Sample& s)
{
    const double x = (s.A - 0.5) * 2, y = (s.B - 0.5) * 2, from = std::hypot(x, y);
    if (from <= 0.98 && from >= 0.82)
        return {Mix(Hex(0x1A1A1C), Hex(0x4A4845), SmoothStep(0.10, 0.0, std::abs(from - 0.92)))};
    const bool spoke = (std::abs(y + 0.02) < 0.10 || (std::abs(x) < 0.10 && y < 0)) && from < 0.84;
    if (from < 0.22)
        return {from < 0.15 ? Hex(0xC9A23A) : Hex(0x202022)};
    if (spoke)
        return {Hex(0xA4A7AC)};
    return {{}, true};
}
}

void AddCabin(Model& model, const Design& design, Atlas& atlas, const std::string& texture)
{
    model.Meshes.push_back(InnerWall(design, -1));
    model.Meshes.push_back(InnerWall(design, 1));
    model.Meshes.push_back(
        FlatMesh(Hex(0x0E0E10), {{{-0.84, 0.17, -2.0}, {0.84, 0.17, -2.0}}, {{-0.80, 0.17, 2.0}, {0.80, 0.17, 2.0}}}));
    Panel dash;
    dash.Shape = [&design](double across, double up)
    {
        const Vec3 low{Lerp(-0.80, 0.80, across), 0.42, 0.385}, edge{Lerp(-0.80, 0.80, across), 0.765, 0.42};
        const Vec3 top = WindscreenPoint(design.Shape, Lerp(-0.94, 0.94, across), 0.03) - Vec3{0, 0.02, 0.02};
        return up < 0.4 ? low + (edge - low) * (up / 0.4) : edge + (top - edge) * ((up - 0.4) / 0.6);
    };
    dash.KnotsA = Evenly(2);
    dash.KnotsB = {0, 0.4, 1};
    dash.Width = 128;
    dash.Height = 64;
    model.Meshes.push_back(Build(dash, DashInk, atlas, texture));
    model.Meshes.push_back(PillarTrim(design, -1));
    model.Meshes.push_back(PillarTrim(design, 1));
    // Dials under a small hood, the wheel before them.
    model.Meshes.push_back(Face({SeatX - 0.21, 0.69, 0.39}, {SeatX + 0.21, 0.69, 0.39}, {SeatX - 0.21, 0.86, 0.45},
                                {SeatX + 0.21, 0.86, 0.45}, 1, 64, 32, DialInk, atlas, texture));
    model.Meshes.push_back(FlatMesh(Hex(0x242325), {{{SeatX - 0.23, 0.875, 0.43}, {SeatX + 0.23, 0.875, 0.43}},
                                                    {{SeatX - 0.26, 0.765, 0.62}, {SeatX + 0.26, 0.765, 0.62}}}));
    const Vec3 up{0, 0.165, 0.075}, middle{SeatX, 0.775, 0.30}, across{0.18, 0, 0};
    model.Meshes.push_back(Face(middle - across - up, middle + across - up, middle - across + up, middle + across + up,
                                1, 48, 48, SteeringInk, atlas, texture));
    model.Meshes.push_back(Lining(design));
    const double shelf = design.Shape.WindowRear + 0.03;
    const double shelfY = BonnetPoint(design.Shape, 0, shelf).Y - 0.012;
    model.Meshes.push_back(FlatMesh(Hex(0x1B1A1C), {{{-0.79, 0.20, -0.60}, {0.79, 0.20, -0.60}},
                                                    {{-0.79, 0.72, -0.66}, {0.79, 0.72, -0.66}},
                                                    {{-0.68, shelfY, shelf}, {0.68, shelfY, shelf}}}));
    model.Meshes.push_back(Seat(SeatX, design.Second * 0.10 + Hex(0x242326) * 0.8));
    model.Meshes.push_back(Seat(-SeatX, design.Second * 0.10 + Hex(0x242326) * 0.8));
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
