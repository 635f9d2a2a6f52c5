// SPDX-License-Identifier: Zlib
#include "assets/hud/Sprites.h"

#include "assets/common/Bitmap.h"
#include "assets/common/Noise.h"
#include "assets/hud/Dots.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace assets::hud
{
namespace
{
constexpr int Size = 44;

// x and y run from -1 to 1, y upward; `from` is the distance from the middle.
struct Spot
{
    double X, Y, From;
};
// How much of a place the sprite covers, 0 to 1.
using Density = std::function<double(const Spot&)>;
using Paint = std::function<Rgb(const Spot&)>;

// Whatever the density, the sprite leaves its square's border free.
void WriteSprite(const std::string& path, const Density& density, const Paint& paint)
{
    Canvas picture(Size, Size);
    for (int y = 0; y < Size; ++y)
        for (int x = 0; x < Size; ++x)
        {
            Spot spot{(x + 0.5) / Size * 2 - 1, (y + 0.5) / Size * 2 - 1, 0};
            spot.From = std::hypot(spot.X, spot.Y);
            if (density(spot) * SmoothStep(1.0, 0.93, spot.From) > DotThreshold(x, y))
                picture.Set(x, y, paint(spot));
        }
    WriteBmp(path, picture, Black::Key);
}

// A puff that thins out over most of its radius: `lumps` is how much it billows.
Density Puff(double lumps, double thin, std::uint32_t seed)
{
    return [=](const Spot& s)
    { return SmoothStep(0.98, thin, s.From + lumps * Fbm(s.X * 1.7 + 9, s.Y * 1.7 + 9, seed, 3)); };
}

// Light from above on something round and lumpy: 0 below, 1 on top.
double Billow(const Spot& s, double scale, std::uint32_t seed)
{
    const auto height = [&](double x, double y)
    { return std::sqrt(std::max(0.0, 1 - s.From * s.From)) + 0.5 * Fbm(x * scale + 5, y * scale + 5, seed, 3); };
    const double slope = height(s.X, s.Y - 0.05) - height(s.X, s.Y + 0.05);
    return Clamp01(0.5 + slope * 1.6 + 0.25 * s.Y);
}

// One tongue of a flame: rises from a bulge to a point that sways aside.
struct Tongue
{
    double FootX, Foot, TipX, Tip, Half;
};

// 1 on the tongue's middle line, 0 on its edge and outside.
double Inside(const Tongue& tongue, const Spot& s)
{
    const double up = (s.Y - tongue.Foot) / (tongue.Tip - tongue.Foot);
    if (up <= 0 || up >= 1)
        return 0;
    const double sway = 0.10 * std::sin(up * 7 + tongue.Tip * 5) * up;
    const double middle = Lerp(tongue.FootX, tongue.TipX, up * up) + sway;
    // Widest a quarter of the way up, hollow toward the point.
    const double half = tongue.Half * std::sqrt(std::min(1.0, up * 5)) * std::pow(1 - up, 0.75) * 1.25;
    return Clamp01(1 - std::abs(s.X - middle) / half);
}

constexpr Tongue Tongues[] = {
    {0.00, -0.92, 0.06, 0.92, 0.56}, {-0.24, -0.86, -0.56, 0.44, 0.36}, {0.26, -0.88, 0.58, 0.22, 0.34}};

double Flame(const Spot& s)
{
    double inside = 0;
    for (const Tongue& tongue : Tongues)
        inside = std::max(inside, Inside(tongue, s));
    return inside;
}

// Hot low in the middle, cool at the edge and the tips.
double Heat(const Spot& s)
{
    return Clamp01(Flame(s) * 1.25 - 0.38 * (s.Y + 0.55) + 0.10 * Fbm(s.X * 3 + 3, s.Y * 2 + 3, 33, 2));
}

void WriteFlame(const std::string& path, Rgb edge, Rgb middle, Rgb core)
{
    WriteSprite(
        path, [](const Spot& s) { return SmoothStep(0.0, 0.22, Flame(s)); },
        [=](const Spot& s)
        {
            const double heat = Heat(s);
            return heat < 0.45 ? Mix(edge, middle, heat / 0.45) : Mix(middle, core, (heat - 0.45) / 0.55);
        });
}

// Foam in the middle, drops flung out around it.
double Spray(const Spot& s)
{
    const double drop = Cells(s.X * 4.5 + 20, s.Y * 4.5 + 20, 41).First;
    const double flung = SmoothStep(0.30, 0.20, drop) * SmoothStep(1.0, 0.9, s.From);
    return std::max(Puff(0.30, 0.30, 22)(s), flung);
}
}

void WriteSprites(const std::string& folder)
{
    WriteSprite(folder + "/smoke.bmp", Puff(0.34, 0.32, 21),
                [](const Spot& s) { return Mix(Hex(0xA09FA2), Hex(0xF2F0EC), Billow(s, 1.8, 31)); });
    WriteSprite(folder + "/water.bmp", Spray,
                [](const Spot& s) { return Mix(Hex(0x8FBDD2), Hex(0xF4FAFC), Billow(s, 2.4, 32)); });
    WriteFlame(folder + "/fireR.bmp", Hex(0xA81C08), Hex(0xE8460E), Hex(0xFFA02C));
    WriteFlame(folder + "/fireY.bmp", Hex(0xF0780E), Hex(0xFFC42C), Hex(0xFFF8D0));
}
}
