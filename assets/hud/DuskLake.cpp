// SPDX-License-Identifier: Zlib
#include "assets/hud/Dusk.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "base/Numbers.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace assets::hud
{
namespace
{
struct Stop
{
    double At;
    Rgb Colour;
};

template <std::size_t Count> Rgb Gradient(const std::array<Stop, Count>& stops, double at)
{
    for (std::size_t i = 1; i < Count; ++i)
        if (at < stops[i].At)
            return Mix(stops[i - 1].Colour, stops[i].Colour,
                       SmoothStep(0, 1, (at - stops[i - 1].At) / (stops[i].At - stops[i - 1].At)));
    return stops.back().Colour;
}

// Height over distance.
constexpr std::array<Stop, 6> NearSun{{{0.0, Hex(0xFFB76B)},
                                       {0.05, Hex(0xF58A55)},
                                       {0.12, Hex(0xD05A66)},
                                       {0.21, Hex(0x853F78)},
                                       {0.32, Hex(0x3F2C68)},
                                       {0.46, Hex(0x191B45)}}};
constexpr std::array<Stop, 6> FarFromSun{{{0.0, Hex(0xB9717C)},
                                          {0.05, Hex(0x98587C)},
                                          {0.12, Hex(0x6C437B)},
                                          {0.21, Hex(0x44356F)},
                                          {0.32, Hex(0x272459)},
                                          {0.46, Hex(0x14163A)}}};

// Mountain ridges: how high they stand at a place across the picture, in the same unit.
// Sharp crests: a noise folded at zero.
double Crest(double across, std::uint32_t seed)
{
    double sum = 0, weight = 0.5;
    for (int octave = 0; octave < 5; ++octave)
    {
        sum += weight * (1 - 2.2 * std::abs(Noise(across, octave * 3.7, seed + static_cast<std::uint32_t>(octave))));
        across *= 2.1;
        weight *= 0.48;
    }
    return Clamp01(sum);
}

double FarRidge(double across)
{
    return 0.020 + 0.075 * Crest(across * 1.9 + 5.3, 61) + 0.035 * SmoothStep(0.8, 0.0, std::abs(across + 0.85));
}

double NearRidge(double across)
{
    return 0.004 + 0.016 * Crest(across * 3.6 + 3, 162) + 0.085 * SmoothStep(0.05, 0.85, across) +
           0.03 * SmoothStep(-0.45, -0.9, across);
}

// What stands between sky and water, for one line of sight; `up` at least 0.
Rgb Backdrop(const Dusk& dusk, double across, double up)
{
    const double fromSun = std::abs(across - dusk.SunX);
    const double warm = SmoothStep(0.75, 0.0, fromSun);
    constexpr double Edge = 0.0016;
    Rgb colour = SkyColour(dusk, {across, up, 1});
    const double far = FarRidge(across), near = NearRidge(across);
    if (up < far + Edge)
    {
        const Rgb slope = Mix(Mix(Hex(0x4B3B70), Hex(0x9A5570), warm), Mix(Hex(0x7A557F), Hex(0xD8795F), warm),
                              SmoothStep(far, 0, up)) *
                          (0.93 + 0.16 * Fbm(across * 22, up * 60, 65, 3));
        colour = Mix(colour, slope * Lerp(1.0, 0.55, dusk.Night), SmoothStep(far + Edge, far, up));
    }
    if (up < near + Edge)
    {
        const double wood = 0.88 + 0.24 * Fbm(across * 60, up * 90, 64, 3);
        const Rgb slope = Mix(Hex(0x1F1B38), Hex(0x4A2C48), warm * SmoothStep(near, 0, up)) * wood;
        colour = Mix(colour, slope * Lerp(1.0, 0.6, dusk.Night), SmoothStep(near + Edge, near, up));
    }
    return colour;
}

// Thin clouds that the sun, already gone, lights from below.
double Cloud(double across, double up)
{
    const double stretched = Fbm(across * 2.6 + 40, up * 26 + 0.8 * Fbm(across * 1.2, up * 6, 72, 2), 71, 5);
    return SmoothStep(0.02, 0.42, stretched) * SmoothStep(0.03, 0.08, up) * SmoothStep(0.42, 0.22, up);
}

void PaintWindow(Canvas& canvas, Point at, double waterline, Rgb colour, double size)
{
    FillDisc(canvas, at, size * 3.2, colour, 0.16, size * 5);
    FillDisc(canvas, at, size, Mix(colour, {1, 1, 1}, 0.4), 0.95, 1.2);
    // Its broken image in the water.
    for (int i = 2; i < 26; ++i)
    {
        const double y = waterline - (at.Y - waterline) * 0.3 - i * 1.1;
        const double sway = 1.6 * Noise(at.X * 0.7 + i * 0.9, i * 0.5, 81);
        canvas.Blend(base::Floor(at.X + sway), base::Floor(y), colour,
                     0.55 * (1 - i / 26.0) * (0.5 + 0.5 * Noise(i * 0.8, at.X, 82)));
    }
}

// Sky and mountains at a pixel: `across` and `up` (at least 0) are its line of sight.
Rgb AboveWater(const Dusk& dusk, double across, double up, int x, int y)
{
    Rgb colour = Backdrop(dusk, across, up);
    if (up <= std::max(FarRidge(across), NearRidge(across)) + 0.001)
        return colour;
    const double lit = SmoothStep(0.9, 0.1, std::abs(across - dusk.SunX));
    const Rgb cloud =
        Mix(Mix(Hex(0x4A3568), Hex(0x8A4A72), lit), Mix(Hex(0xB05A72), Hex(0xFFB072), lit), SmoothStep(0.26, 0.06, up));
    colour = Mix(colour, cloud * Lerp(1.0, 0.5, dusk.Night), 0.62 * Cloud(across, up));
    const double sun = std::hypot(across - dusk.SunX, up - dusk.SunUp);
    if (dusk.Night < 0.5)
        colour = Mix(colour, Hex(0xFFF0C0), SmoothStep(0.0305, 0.0285, sun));
    if (HashUnit(x, y, 90) > 0.9988 && up > 0.24) // a star
        colour = Mix(colour, {1, 1, 1}, 0.75 * HashUnit(x, y, 91) * SmoothStep(0.24, 0.40, up));
    return colour;
}

// The picture upside down, torn by ripples that grow toward the viewer; `down` is above 0.
Rgb Water(const Dusk& dusk, double across, double down)
{
    const double reach = std::min(1.0, down * 9);
    const double ripple = Fbm(across * 16 / (down + 0.10), 5.0 / (down + 0.022), 66, 3);
    const double mirrored = std::max(0.0005, down * 1.05 + ripple * 0.055 * (0.15 + reach));
    const Rgb colour =
        Backdrop(dusk, across + ripple * 0.02, mirrored) * Mix({0.86, 0.80, 0.82}, {0.56, 0.52, 0.64}, reach);
    const double path = SmoothStep(0.05 + 0.30 * down, 0.0, std::abs(across - dusk.SunX + 0.02 * ripple));
    const double spark = SmoothStep(0.10, 0.42, Fbm(across * 42 / (down + 0.16), 9 / (down + 0.026), 67, 3));
    return colour + Rgb{1.0, 0.70, 0.38} * (path * (0.16 + 0.75 * spark) * Lerp(1.0, 0.25, dusk.Night));
}

// Windows and lamps under the hill on the right, thick by the water, sparse above.
void PaintVillage(Canvas& canvas, const SceneView& view)
{
    Sequence random(404);
    for (int i = 0; i < 130; ++i)
    {
        const double across = random.Between(0.12, 0.80), high = random.Next() * random.Next();
        const double height = 0.004 + 0.055 * high * SmoothStep(0.05, 0.5, across);
        const Rgb colour = Mix(Hex(0xFFB056), Hex(0xFFE9B0), random.Next());
        const double size = random.Between(0.55, 1.15) * view.Focal / 760;
        if (height < NearRidge(across) - 0.006)
            PaintWindow(canvas, {view.CentreX + across * view.Focal, view.HorizonY + height * view.Focal},
                        view.HorizonY, colour, size);
    }
}

// Its lantern is lit.
void PaintBellTower(Canvas& canvas, const SceneView& view)
{
    const double foot = view.CentreX + 0.335 * view.Focal, ground = view.HorizonY + 0.006 * view.Focal;
    const double unit = view.Focal * 0.001;
    const Point tower[] = {{foot - 4 * unit, ground},
                           {foot + 4 * unit, ground},
                           {foot + 4 * unit, ground + 46 * unit},
                           {foot, ground + 60 * unit},
                           {foot - 4 * unit, ground + 46 * unit}};
    FillPolygon(canvas, tower, Hex(0x2C2340));
    FillDisc(canvas, {foot, ground + 40 * unit}, 9 * unit, Hex(0xFFC36A), 0.25, 12 * unit);
    FillRect(canvas, foot - 1.6 * unit, ground + 37 * unit, 3.2 * unit, 6 * unit, Hex(0xFFE2A0));
}
}

Rgb SkyColour(const Dusk& dusk, Vec3 direction)
{
    const double ahead = std::hypot(direction.X, direction.Z);
    const double up = direction.Y / std::max(ahead, 1e-6);
    if (up < 0)
        return Mix(Hex(0x3A2A3C), Hex(0x14121C), SmoothStep(0.0, -0.25, up));
    // Behind the viewer the sky is as far from the sun as can be.
    const double across = direction.Z > 1e-6 ? direction.X / direction.Z : 9;
    const double fromSun = std::abs(std::clamp(across, -9.0, 9.0) - dusk.SunX);
    Rgb colour = Mix(Gradient(NearSun, up), Gradient(FarFromSun, up), SmoothStep(0.05, 0.95, fromSun));
    const double dx = across - dusk.SunX, dy = up - dusk.SunUp;
    const double halo = std::exp(-(dx * dx * 14 + dy * dy * 90)) * 0.55 + std::exp(-(dx * dx + dy * dy) * 420) * 0.7;
    colour = colour + Rgb{1.0, 0.72, 0.36} * (halo * Lerp(1.0, 0.35, dusk.Night));
    colour = colour * Mix({1, 1, 1}, {0.46, 0.50, 0.72}, dusk.Night);
    return {std::min(colour.R, 1.25), std::min(colour.G, 1.15), std::min(colour.B, 1.1)};
}

void PaintLake(Canvas& canvas, const Dusk& dusk, const SceneView& view)
{
    for (int y = 0; y < canvas.Height; ++y)
        for (int x = 0; x < canvas.Width; ++x)
        {
            const double across = (x + 0.5 - view.CentreX) / view.Focal, up = (y + 0.5 - view.HorizonY) / view.Focal;
            canvas.Set(x, y, up >= 0 ? AboveWater(dusk, across, up, x, y) : Water(dusk, across, -up));
        }
    PaintVillage(canvas, view);
    PaintBellTower(canvas, view);
}
}
