// SPDX-License-Identifier: Zlib
#include "assets/track/Leaves.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "assets/track/Light.h"

#include <algorithm>

namespace assets::track
{
namespace
{
constexpr double SunHigh = 0.42, SunAcross = 0.9075; // sine and cosine of the sun's height

// Half the width of the crown at this height.
double RadiusAt(const std::vector<Ring>& crown, double y)
{
    for (std::size_t i = 1; i < crown.size(); ++i)
        if (y <= crown[i].Y)
            return Lerp(crown[i - 1].R, crown[i].R, Clamp01((y - crown[i - 1].Y) / (crown[i].Y - crown[i - 1].Y)));
    return crown.back().R;
}

Rgb LeafColour(const Leafage& leaves, double light)
{
    return light < 0.5 ? Mix(leaves.Dark, leaves.Middle, light * 2) : Mix(leaves.Middle, leaves.Lit, light * 2 - 1);
}

// Which way a direction round the trunk (radians from east over north) faces, from the sun to away from it.
double SunwardOf(double around)
{
    return std::cos(around) * SunX + std::sin(around) * SunZ;
}
}

double CrownLight(Vec3 place)
{
    const double facing = (place.X * SunX + place.Z * SunZ) * SunAcross + place.Y * SunHigh;
    return Clamp01(0.47 + 0.36 * facing + 0.16 * place.Y);
}

void PaintTuft(Canvas& picture, const Region& region, const Tuft& tuft, const Leafage& leaves, bool wrap)
{
    const auto leaf = [&](int x, int y)
    {
        const double dx = (x + 0.5 - tuft.Centre.X) / tuft.Radius, dy = (y + 0.5 - tuft.Centre.Y) / tuft.Radius;
        const double ragged = Fbm(x / 2.6, y / 2.6, leaves.Seed, 3) * 0.5 + HashUnit(x, y, leaves.Seed + 1) * 0.28;
        const int column = wrap ? Wrap(x, region.Width) : x;
        if (dx * dx + dy * dy + ragged > 1.1 || column < 0 || column >= region.Width || y < 0 || y >= region.Height)
            return;
        const double grain = 0.3 * Fbm(x / 2.0, y / 2.0, leaves.Seed + 2, 2);
        const double light = Clamp01(tuft.Light + 0.2 * (dy - tuft.Lean * dx) + grain);
        picture.Set(region.Left + column, region.Low + y,
                    LeafColour(leaves, light) * (0.92 + 0.16 * HashUnit(x, y, leaves.Seed + 3)));
    };
    const int reach = static_cast<int>(tuft.Radius * 1.2) + 1;
    const int x0 = static_cast<int>(tuft.Centre.X), y0 = static_cast<int>(tuft.Centre.Y);
    for (int y = y0 - reach; y <= y0 + reach; ++y)
        for (int x = x0 - reach; x <= x0 + reach; ++x)
            leaf(x, y);
}

void PaintCrownCut(Canvas& sheet, const Region& region, const std::vector<Ring>& crown, double tuftRadius,
                   double sunward, const Leafage& leaves)
{
    const double low = crown.front().Y, high = crown.back().Y;
    const double scale = region.Height / (high - low), radius = tuftRadius * scale;
    const double area = region.Width * region.Height / (radius * radius);
    const int count = static_cast<int>(area * 0.9);
    for (int layer = 0; layer < 3; ++layer)
        for (int i = 0; i < count; ++i)
        {
            // From below, so that every tuft stands before the dark foot of the one above it.
            const double share = (i + HashUnit(i, layer, leaves.Seed + 6)) / count;
            const double y = low + tuftRadius * 0.8 + share * (high - low - tuftRadius * 1.6);
            const double side = HashUnit(i, layer, leaves.Seed + 5) * 2 - 1;
            const double wide = std::max(0.0, RadiusAt(crown, y) - tuftRadius * 0.8);
            const double up = 2 * share - 1, luck = 0.22 * (HashUnit(i, layer, leaves.Seed + 8) - 0.5);
            const double light = CrownLight({side * sunward * SunX, up, side * sunward * SunZ}) + luck;
            const Point centre{region.Width / 2.0 - side * wide * scale, (y - low) * scale};
            PaintTuft(sheet, region,
                      {centre, radius * (0.75 + 0.4 * HashUnit(i, layer, leaves.Seed + 7)), light * (0.8 + 0.1 * layer),
                       sunward},
                      leaves);
        }
}

void PaintCrownSkin(Canvas& sheet, const Region& region, double tuftRadius, const Leafage& leaves)
{
    const int count = static_cast<int>(region.Width * region.Height / (tuftRadius * tuftRadius) * 0.8);
    for (int layer = 0; layer < 3; ++layer)
        for (int i = 0; i < count; ++i)
        {
            const double share = (i + HashUnit(i, layer, leaves.Seed + 16)) / count;
            const double turn = HashUnit(i, layer, leaves.Seed + 15), around = 2 * Pi * turn, up = 2 * share - 1;
            const double out = std::sqrt(std::max(0.0, 1 - up * up));
            const double luck = 0.22 * (HashUnit(i, layer, leaves.Seed + 20) - 0.5);
            const double light = CrownLight({std::cos(around) * out, up, std::sin(around) * out}) + luck;
            PaintTuft(sheet, region,
                      {{turn * region.Width, share * region.Height},
                       tuftRadius * (0.75 + 0.4 * HashUnit(i, layer, leaves.Seed + 17)),
                       light * (0.8 + 0.1 * layer),
                       0},
                      leaves, true);
        }
    for (int y = 0; y < region.Height; ++y)
        for (int x = 0; x < region.Width; ++x)
            if (Fbm(x / 4.0, y / 4.0, leaves.Seed + 18, 2, region.Width / 4) + HashUnit(x, y, leaves.Seed + 19) * 0.2 >
                0.5)
                sheet.At(region.Left + x, region.Low + y) = {};
}

void PaintBark(Canvas& sheet, const Region& region, bool patches)
{
    for (int y = 0; y < region.Height; ++y)
        for (int x = 0; x < region.Width; ++x)
        {
            const double sun = SunwardOf(2 * Pi * (x + 0.5) / region.Width);
            Rgb c = Mix(Hex(0x8A6A4A), Hex(0x6E543C), HashUnit(x / 2, y / 4, 77));
            if (patches)
            {
                const CellDistance scale = Cells(x / 5.0, y / 7.0, 78, region.Width / 5);
                const double tone = (scale.Id & 255u) / 255.0;
                c = tone < 0.4 ? Hex(0xC9BC98) : tone < 0.75 ? Hex(0xA29A76) : Hex(0x7E7258);
                c = Mix(c, Hex(0x7A6E54), 0.5 * SmoothStep(0.12, 0.02, scale.Second - scale.First));
            }
            const Rgb light = Mix(ShadeLight, SunLight, SmoothStep(-0.5, 0.8, sun));
            const double crown = SmoothStep(region.Height * 0.7, region.Height, y); // its shadow
            sheet.Set(region.Left + x, region.Low + y,
                      c * light * (1 - 0.45 * crown) * (0.93 + 0.14 * HashUnit(x, y, 79)));
        }
}
}
