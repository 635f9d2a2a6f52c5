// SPDX-License-Identifier: Zlib
#include "assets/hud/Dusk.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "base/Numbers.h"

#include <algorithm>
#include <cmath>

namespace assets::hud
{
namespace
{
constexpr double HalfRoad = 4.4, WallAt = -8.2, WallHeight = 0.72, FarEdge = 74;

struct RoadPlace
{
    double Along, Aside; // ahead along the road; right of its middle
};

RoadPlace OnRoad(const Dusk& dusk, double x, double z)
{
    const double c = std::cos(dusk.RoadHeading), s = std::sin(dusk.RoadHeading), dx = x - dusk.RoadX,
                 dz = z - dusk.RoadZ;
    return {dz * c - dx * s, dx * c + dz * s};
}

// White light before the car, red behind it.
Rgb LampLight(const CarPose& car, double x, double z)
{
    const double c = std::cos(car.Heading), s = std::sin(car.Heading), dx = x - car.X, dz = z - car.Z;
    const double ahead = dz * c - dx * s, aside = dx * c + dz * s;
    Rgb light;
    if (ahead > 2.0)
    {
        const double reach = ahead - 2.0, spread = 0.75 + reach * 0.20;
        const double beam =
            std::exp(-(aside * aside) / (spread * spread)) * SmoothStep(0.2, 3.5, reach) / (1 + reach * reach * 0.006);
        light = light + Rgb{1.0, 0.90, 0.66} * (0.85 * beam);
    }
    if (ahead < -1.9)
    {
        const double reach = -1.9 - ahead, spread = 0.95 + reach * 0.35;
        light = light + Rgb{1.0, 0.10, 0.08} *
                            (0.60 * std::exp(-(aside * aside) / (spread * spread)) * std::exp(-reach * 0.55));
    }
    return light;
}

double CarShadow(const CarPose& car, double x, double z)
{
    const double c = std::cos(car.Heading), s = std::sin(car.Heading), dx = x - car.X, dz = z - car.Z;
    const double ahead = (dz * c - dx * s) / 2.35, aside = (dx * c + dz * s) / 1.05;
    return SmoothStep(1.12, 0.78, std::pow(std::pow(std::abs(ahead), 4) + std::pow(std::abs(aside), 3), 0.3));
}

Rgb GroundColour(const Dusk& dusk, const SceneView& view, const CarPose& car, double x, double z)
{
    const RoadPlace place = OnRoad(dusk, x, z);
    const double t = place.Aside;
    const double grain = 1 + 0.10 * Fbm(x * 7, z * 7, 51, 3) + 0.08 * Fbm(x * 0.6, z * 0.6, 52, 3);
    Rgb paint;
    double sheen = 0;
    if (std::abs(t) < HalfRoad)
    {
        // Two darker lanes where tyres run, polished by them.
        const double track = SmoothStep(0.75, 0.2, std::abs(std::abs(t - 0.9) - 0.8));
        paint = Hex(0x6A6672) * (grain * Lerp(1.0, 0.82, track));
        sheen = 0.35 + 0.25 * track;
        if (std::abs(std::abs(t) - 4.05) < 0.075 || (std::abs(t) < 0.07 && std::fmod(place.Along + 300, 5.0) < 2.4))
            paint = Hex(0xD8D2C8) * grain;
    }
    else if (std::abs(t) < HalfRoad + 0.55)
        paint = (std::fmod(place.Along + 300, 2.4) < 1.2 ? Hex(0xC02A2E) : Hex(0xDAD4CC)) * grain;
    else
    {
        const double tuft = 0.8 + 0.5 * Fbm(x * 9, z * 4, 53, 3);
        paint = Mix(Hex(0x4C5630), Hex(0x6E6A3C), Clamp01(0.5 + Fbm(x * 0.9, z * 0.9, 54, 3))) * tuft;
    }
    const double far = std::hypot(x, z);
    const Rgb ambient = Mix({0.52, 0.43, 0.55}, {0.24, 0.26, 0.42}, dusk.Night);
    Rgb colour = paint * (ambient + LampLight(car, x, z)) * Lerp(1.0, 0.20, CarShadow(car, x, z));
    // At a flat angle asphalt mirrors the sky above the place.
    const double flat = SmoothStep(4, 45, far) * sheen * Lerp(1.0, 0.5, CarShadow(car, x, z));
    colour = Mix(colour, SkyColour(dusk, {x - view.Eye.X, 0.05 * far, z - view.Eye.Z}) * 0.9, flat);
    return Mix(colour, Hex(0x8A5A6C) * Lerp(1.0, 0.5, dusk.Night), 0.35 * SmoothStep(20, FarEdge, far));
}

// The stone wall along the lake, where the line of sight meets it; false: it passes above.
bool WallColour(const Dusk& dusk, Vec3 eye, Vec3 ray, Rgb& colour)
{
    const double c = std::cos(dusk.RoadHeading), s = std::sin(dusk.RoadHeading);
    const double speed = ray.X * c + ray.Z * s;
    const double distance = (WallAt - OnRoad(dusk, eye.X, eye.Z).Aside) / speed;
    if (!(distance > 0))
        return false;
    const Vec3 at = eye + ray * distance;
    if (at.Y > WallHeight || at.Y < 0 || at.Z - eye.Z > FarEdge)
        return false;
    const double along = OnRoad(dusk, at.X, at.Z).Along;
    const int course = base::Floor(at.Y / 0.2);
    const double stone = along / 0.62 + course * 0.43;
    const bool joint = std::abs(stone - std::round(stone)) < 0.035 || std::fmod(at.Y, 0.2) < 0.02;
    const double shade =
        0.75 + 0.35 * HashUnit(base::Floor(stone + 0.5), course, 57) + 0.15 * Fbm(along * 5, at.Y * 5, 58, 3);
    colour = Mix(Hex(0x4A3C46), Hex(0x7A5A58), SmoothStep(0.1, WallHeight, at.Y)) * (shade * (joint ? 0.55 : 0.9)) *
             Lerp(1.0, 0.55, dusk.Night);
    if (at.Y > WallHeight - 0.05)
        colour = Mix(colour, Hex(0xE08A6A), 0.55 * (1 - dusk.Night));
    return true;
}

// A tree as a dark shape: columns (cypress) or umbrellas (pine), ragged at the rim.
void PaintTree(Canvas& canvas, Point foot, double height, bool pine, std::uint32_t seed, Rgb colour)
{
    if (pine)
        // An umbrella of overlapping tufts, flat below.
        for (int i = 0; i < 26; ++i)
        {
            const double across = 2 * HashUnit(i, 1, seed) - 1, lift = 1 - across * across;
            const double size = height * (0.055 + 0.035 * HashUnit(i, 2, seed) + 0.04 * lift);
            const Point tuft{foot.X + across * height * 0.36,
                             foot.Y + height * (0.80 + 0.13 * lift * HashUnit(i, 3, seed))};
            FillEllipse(canvas, tuft, size * 1.35, size * 0.72, colour);
        }
    else
    {
        // A flame: widest low down, pointed above, with a ragged rim.
        std::vector<Point> outline;
        constexpr int Steps = 48;
        for (int i = 0; i <= 2 * Steps; ++i)
        {
            const bool right = i <= Steps;
            const double up = static_cast<double>(right ? i : 2 * Steps - i) / Steps;
            const double ragged =
                1 + 0.16 * Noise(up * 14, right ? 2.5 : 7.5, seed) + 0.10 * Noise(up * 37, right ? 1.5 : 5.5, seed);
            const double half =
                0.105 * height * std::pow(std::sin(Pi * std::pow(0.03 + 0.97 * up, 0.62)), 0.85) * ragged;
            outline.push_back({foot.X + (right ? half : -half), foot.Y + height * (0.05 + 0.95 * up)});
        }
        FillPolygon(canvas, outline, colour);
    }
    const double trunk = height * 0.016;
    const Point wood[] = {{foot.X - trunk * 1.4, foot.Y},
                          {foot.X + trunk * 1.4, foot.Y},
                          {foot.X + trunk, foot.Y + height * 0.8},
                          {foot.X - trunk, foot.Y + height * 0.8}};
    FillPolygon(canvas, wood, colour);
}

// Wall or ground on a line of sight that points down; false: neither of them.
bool RoadColour(const Dusk& dusk, const SceneView& view, const CarPose& car, Vec3 ray, Rgb& colour)
{
    if (WallColour(dusk, view.Eye, ray, colour))
        return true;
    const double distance = -view.Eye.Y / ray.Y;
    const Vec3 at = view.Eye + ray * distance;
    const bool land = at.Z - view.Eye.Z < FarEdge && OnRoad(dusk, at.X, at.Z).Aside > WallAt;
    if (!land || ray.Y >= 0)
        return false;
    colour = GroundColour(dusk, view, car, at.X, at.Z);
    return true;
}

// A tree at a place of the road, `height` world units high, paler the farther away.
void PlaceTree(Canvas& canvas, const Dusk& dusk, const SceneView& view, Point alongAside, double height, bool pine,
               std::uint32_t seed)
{
    const double along = alongAside.X, aside = alongAside.Y;
    const double c = std::cos(dusk.RoadHeading), s = std::sin(dusk.RoadHeading);
    const Vec3 at{dusk.RoadX - along * s + aside * c, 0, dusk.RoadZ + along * c + aside * s};
    const Vec3 camera = view.ToCamera(at);
    if (camera.Z < 2)
        return;
    const Rgb colour = Mix(Hex(0x15121F), Hex(0x5A3650), SmoothStep(15, 95, camera.Z)) * Lerp(1.0, 0.6, dusk.Night);
    PaintTree(canvas, view.Project(camera), height * view.Focal / camera.Z, pine, seed, colour);
}

// Where the road bends away, and some nearer ones that frame the picture.
void PaintTrees(Canvas& canvas, const Dusk& dusk, const SceneView& view)
{
    for (const auto& [along, aside, height, pine] : {std::tuple{66.0, -3.0, 7.0, true},
                                                     {68.0, 4.0, 8.5, true},
                                                     {64.0, 9.0, 9.5, false},
                                                     {66.0, 11.0, 11.0, false},
                                                     {63.0, 13.5, 8.5, false},
                                                     {60.0, 18.0, 10.0, true},
                                                     {58.0, 26.0, 9.0, true},
                                                     {55.0, 33.0, 11.0, false},
                                                     {56.0, 35.5, 12.5, false},
                                                     {66.0, 0.5, 5.5, true},
                                                     {69.0, -7.0, 8.0, false},
                                                     {36.0, 17.0, 8.5, false},
                                                     {34.0, 19.5, 10.0, false}})
        PlaceTree(canvas, dusk, view, {along, aside}, height, pine,
                  static_cast<std::uint32_t>(300 + along + 7 * std::abs(aside)));
    PlaceTree(canvas, dusk, view, {16, 15.5}, 10.5, false, 511);
    PlaceTree(canvas, dusk, view, {13.5, 17.0}, 9.0, false, 512);
}
}

void PaintRoad(Canvas& canvas, const Dusk& dusk, const SceneView& view, const CarPose& car)
{
    constexpr int Fine = 2; // samples a pixel and axis
    for (int y = 0; y < canvas.Height && y < view.HorizonY; ++y)
        for (int x = 0; x < canvas.Width; ++x)
        {
            Rgb sum;
            int hits = 0;
            for (int k = 0; k < Fine * Fine; ++k)
            {
                const Vec3 ray = view.Ray(x + (k % Fine + 0.5) / Fine, y + (k / Fine + 0.5) / Fine);
                Rgb colour;
                if (!RoadColour(dusk, view, car, ray, colour))
                    continue;
                sum = sum + colour;
                ++hits;
            }
            if (hits > 0)
                canvas.Blend(x, y, sum * (1.0 / hits), static_cast<double>(hits) / (Fine * Fine));
        }
    PaintTrees(canvas, dusk, view);
}

void Develop(Canvas& canvas, double glow)
{
    Canvas light(canvas.Width, canvas.Height);
    for (int y = 0; y < canvas.Height; ++y)
        for (int x = 0; x < canvas.Width; ++x)
        {
            const Rgb c = canvas.Colour(x, y);
            light.Set(x, y, {std::max(0.0, c.R - 0.72), std::max(0.0, c.G - 0.70), std::max(0.0, c.B - 0.70)});
        }
    Blur(light, canvas.Width / 90.0);
    for (int y = 0; y < canvas.Height; ++y)
        for (int x = 0; x < canvas.Width; ++x)
        {
            const double u = 2.0 * x / canvas.Width - 1, v = 2.0 * y / canvas.Height - 1;
            const double corner = 1 - 0.26 * SmoothStep(0.5, 1.7, u * u + v * v);
            const double grain = 1 + 0.018 * (HashUnit(x, y, 95) - 0.5);
            const Rgb c = (canvas.Colour(x, y) + light.Colour(x, y) * glow) * (corner * grain);
            canvas.Set(x, y, {std::min(c.R, 1.0), std::min(c.G, 1.0), std::min(c.B, 1.0)});
        }
}
}
