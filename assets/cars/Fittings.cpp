#include "cars/Fittings.h"
#include "cars/Lettering.h"
#include "cars/Paint.h"
#include <cmath>

namespace Assets
{
namespace
{
// The eye of the player in the car is at (-0.30, 1.10, -0.05), looking ahead: nothing may stand close before it.
constexpr double SeatX = -0.31;
constexpr int GlassMesh = 20;
constexpr int GlassWidth = 128, GlassHeight = 64;

int Flat(Rgb colour)
{
    const auto channel = [](double v) { return std::max(1, RoundToInt(Clamp01(v) * 255)); };
    return FlatColour(channel(colour.R), channel(colour.G), channel(colour.B));
}

// A flat mesh from rows of points.
ModelMesh FlatMesh(Rgb colour, const std::vector<std::vector<Vec3>>& rows)
{
    ModelMesh mesh(static_cast<int>(rows.size()), static_cast<int>(rows[0].size()));
    mesh.Colour = Flat(colour);
    for (int i = 0; i < mesh.Rows; ++i)
        for (int j = 0; j < mesh.Cols; ++j)
        {
            const Vec3& p = rows[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)];
            mesh.At(i, j) = {p.X, p.Y, p.Z};
        }
    return mesh;
}

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

// A face of painted texels between four corners.
ModelMesh Face(Vec3 lowLeft, Vec3 lowRight, Vec3 highLeft, Vec3 highRight, int cells, int width, int height,
               const Painter& painter, Atlas& atlas, const std::string& texture)
{
    Panel panel;
    panel.Shape = [=](double a, double b)
    {
        const Vec3 low = lowLeft + (lowRight - lowLeft) * a, high = highLeft + (highRight - highLeft) * a;
        return low + (high - low) * b;
    };
    panel.KnotsA = panel.KnotsB = Evenly(cells);
    panel.Width = width;
    panel.Height = height;
    return Build(panel, painter, atlas, texture);
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

Ink HelmetInk(const Design& design, const Sample& s)
{
    const double front = std::abs(s.A - 0.5); // 0.5 looks ahead
    const double light = Lerp(0.62, 1.08, s.B);
    if (front < 0.23 && s.B > 0.36 && s.B < 0.68)
        return {Mix(Hex(0x0C0E12), Hex(0x5A6A78), SmoothStep(0.50, 0.66, s.B))};
    const bool band = s.B > 0.74 && s.B < 0.84;
    return {(band ? design.Base : design.Helmet) * light};
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
    const int column = RoundToInt(s.A * 55), row = RoundToInt(s.B * 111);
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
            glass.At(i, j) = {p.X, p.Y, p.Z, RoundToInt(j / 4.0 * (GlassWidth - 1)),
                              RoundToInt(i / 2.0 * (GlassHeight - 1))};
        }
    model.Meshes.insert(model.Meshes.begin() + GlassMesh, glass);
}

void AddOutside(Model& model, const Design& design, Atlas& atlas, const std::string& texture)
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
    model.Meshes.push_back(Face({-1.14, 0.02, -2.44}, {1.14, 0.02, -2.44}, {-1.14, 0.02, 2.44}, {1.14, 0.02, 2.44}, 2,
                                56, 112, ShadowInk, atlas, texture));
    model.Meshes.push_back(Helmet(design, atlas, texture));
    model.Meshes.push_back(DoorMirror(design, -1));
    model.Meshes.push_back(DoorMirror(design, 1));
    if (design.Spoiler == Spoiler::Wing)
        AddWing(model, design, atlas, texture);
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
