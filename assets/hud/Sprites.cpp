#include "assets/hud/Sprites.h"

#include "assets/common/Bitmap.h"
#include "assets/common/Noise.h"

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
using Paint = std::function<Rgb(const Spot&)>;

// `lumps` is how much the outline billows. Pixels are set while the density beats a fixed noise, so the rim frays.
void WritePuff(const std::string& path, double lumps, std::uint32_t seed, const Paint& paint)
{
    Canvas picture(Size, Size);
    for (int y = 0; y < Size; ++y)
        for (int x = 0; x < Size; ++x)
        {
            Spot spot{(x + 0.5) / Size * 2 - 1, (y + 0.5) / Size * 2 - 1, 0};
            spot.From = std::hypot(spot.X, spot.Y);
            const double edge = spot.From + lumps * Fbm(spot.X * 2.2 + 9, spot.Y * 2.2 + 9, seed, 3);
            const double density = SmoothStep(0.96, 0.64, edge) * SmoothStep(1.0, 0.86, spot.From);
            if (density > 0.06 + 0.88 * HashUnit(x, y, seed + 7))
                picture.Set(x, y, paint(spot));
        }
    WriteBmp(path, picture, Black::Key);
}

// Light from above on something round and lumpy: 0 below, 1 on top.
double Billow(const Spot& s, double scale, std::uint32_t seed)
{
    const auto height = [&](double x, double y)
    { return std::sqrt(std::max(0.0, 1 - s.From * s.From)) + 0.5 * Fbm(x * scale + 5, y * scale + 5, seed, 4); };
    const double slope = height(s.X, s.Y - 0.04) - height(s.X, s.Y + 0.04);
    return Clamp01(0.55 + slope * 2.6 + 0.12 * Fbm(s.X * 6, s.Y * 6, seed + 3, 2));
}
}

void WriteSprites(const std::string& folder)
{
    WritePuff(folder + "/smoke.bmp", 0.30, 21,
              [](const Spot& s) { return Mix(Hex(0x777679), Hex(0xE4E1DC), Billow(s, 2.4, 31)); });
    WritePuff(
        folder + "/water.bmp", 0.36, 22,
        [](const Spot& s)
        {
            const double drop = Cells(s.X * 6 + 20, s.Y * 6 + 20, 41).First;
            return Mix(Mix(Hex(0x7FB4CE), Hex(0xEAF6FA), Billow(s, 3.0, 32)), {1, 1, 1}, SmoothStep(0.34, 0.12, drop));
        });
    // Flames lick upward: the hot middle sits low.
    const auto heat = [](const Spot& s, std::uint32_t seed)
    {
        const double from = std::hypot(s.X * 1.15, (s.Y + 0.18) * 0.9);
        return Clamp01(1.05 - from + 0.35 * Fbm(s.X * 2.6 + 3, s.Y * 1.7 + 3, seed, 4));
    };
    WritePuff(folder + "/fireR.bmp", 0.34, 23,
              [&](const Spot& s)
              {
                  const double h = heat(s, 33);
                  return h < 0.5 ? Mix(Hex(0x5A1208), Hex(0xD8320E), h * 2)
                                 : Mix(Hex(0xD8320E), Hex(0xFF9A2A), h * 2 - 1);
              });
    WritePuff(folder + "/fireY.bmp", 0.34, 24,
              [&](const Spot& s)
              {
                  const double h = heat(s, 34);
                  return h < 0.5 ? Mix(Hex(0xE0660E), Hex(0xFFC02C), h * 2)
                                 : Mix(Hex(0xFFC02C), Hex(0xFFF8D0), h * 2 - 1);
              });
}
}
