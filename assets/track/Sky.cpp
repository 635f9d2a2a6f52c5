// SPDX-License-Identifier: Zlib
#include "assets/track/Sky.h"

#include "assets/common/Bitmap.h"
#include "assets/common/Noise.h"

#include <algorithm>

namespace assets::track
{
namespace
{
constexpr int SkyWidth = 820, SkyHeight = 512;
constexpr double Horizon = 0.588 * SkyHeight;

// Noise over the panorama that closes after one turn; `cells` lattice cells go round it.
double Turning(double column, double y, int cells, std::uint32_t seed, int octaves, double gain = 0.5)
{
    return Fbm(column * cells / SkyWidth, y, seed, octaves, cells, 0, gain);
}

Rgb ClearSky(double row)
{
    const double height = Clamp01((row - Horizon) / (SkyHeight - Horizon));
    Rgb sky = Mix(Hex(0xF6DFB8), Hex(0xDCE2E0), SmoothStep(0.05, 0.42, height));
    sky = Mix(sky, Hex(0x86B6E2), SmoothStep(0.2, 0.85, height));
    return Mix(sky, Hex(0x4A86C6), SmoothStep(0.5, 1.3, height));
}

// The picture is pressed to three fifths of its height on a wide screen and stretched to nearly twice on a 4:3 one, so
// every cloud is about four times as wide as high here.
struct CloudLayer
{
    int Cells;           // round the turn
    double RowsPerCell;  //
    double Low, High;    // rows above the horizon between which it is full
    double Edge;         // rows over which it thins out at both ends
    double Clear, Solid; // noise where it begins and where it is densest
    double Opacity;
    std::uint32_t Seed;
};

const CloudLayer Veil{7, 18, 120, 215, 60, -0.16, 0.6, 0.34, 51};
const CloudLayer Heaps{13, 16, 104, 170, 32, 0.06, 0.42, 0.9, 41};
const CloudLayer Streets{22, 8, 66, 90, 24, 0.04, 0.44, 0.75, 31};

double Density(const CloudLayer& layer, double column, double row)
{
    const double height = row - Horizon;
    const double there =
        SmoothStep(layer.Low - layer.Edge, layer.Low, height) * SmoothStep(layer.High + layer.Edge, layer.High, height);
    if (there <= 0)
        return 0;
    const double y = height / layer.RowsPerCell;
    const double drift = Turning(column, y, layer.Cells, layer.Seed + 7, 2) * 0.18 * SkyWidth / layer.Cells;
    const double heap = Turning(column + drift, y + 0.2 * drift / layer.RowsPerCell, layer.Cells, layer.Seed, 4, 0.42);
    return there * SmoothStep(layer.Clear, layer.Solid, heap + 0.18 * (there - 1));
}

Rgb WithLayer(Rgb sky, const CloudLayer& layer, double column, double row)
{
    const double density = Density(layer, column, row);
    if (density <= 0)
        return sky;
    // Bright where it thins out upward, grey in its foot; warmer the lower it hangs.
    const double lit = density - Density(layer, column, row + 0.35 * layer.RowsPerCell);
    const double low = SmoothStep(150, 40, row - Horizon);
    const Rgb shade = Mix(Hex(0xB4BDCC), Hex(0xDCC8B6), low), light = Mix(Hex(0xFFF8EC), Hex(0xFFEFD2), low);
    return Mix(sky, Mix(shade, light, Clamp01(0.62 + 0.9 * lit)), layer.Opacity * density);
}

struct Ridge
{
    double Base, Swing; // rows above the horizon
    int Cells;
    std::uint32_t Seed;
    Rgb Colour;
};

const Ridge Ridges[] = {
    {53, 13, 17, 11, Hex(0xB4BDCE)},
    {38, 12, 23, 22, Hex(0x9DADBC)},
    {22, 9, 29, 33, Hex(0x92A5A6)},
};

double RidgeTop(const Ridge& ridge, double column)
{
    // Crests, a little worn: the ridged form of the noise, layer upon layer, about 0 .. 1.
    double crest = 0, strength = 0.5;
    for (int octave = 0, cells = ridge.Cells; octave < 5; ++octave, cells *= 2, strength *= 0.44)
    {
        const double n = Turning(column, 1.5 + octave, cells, ridge.Seed, 1);
        crest += strength * (1 - 2 * std::sqrt(n * n + 0.006));
    }
    return Horizon + ridge.Base + ridge.Swing * (2 * crest - 1) * 0.6;
}

Rgb RidgeColour(const Ridge& ridge, double column, double row)
{
    // Broken rock and woods, as wide as high once stretched; no gullies, which would run down the picture as streaks.
    const double folds = 1 - 2 * std::abs(Turning(column, row / 11, 64, ridge.Seed + 5, 3));
    const Rgb colour = ridge.Colour * (1 + 0.05 * folds);
    return Mix(colour, Haze, SmoothStep(0.8 * ridge.Base, 0, row - Horizon));
}

Rgb Panorama(double column, double row)
{
    if (row < Horizon)
        return Haze;
    Rgb colour = ClearSky(row);
    for (const CloudLayer& layer : {Veil, Streets, Heaps})
        colour = WithLayer(colour, layer, column, row);
    for (const Ridge& ridge : Ridges)
        if (const double top = RidgeTop(ridge, column); row < top + 1)
            colour = Mix(colour, RidgeColour(ridge, column, row), Clamp01(top + 0.5 - row));
    return colour;
}
}

void WriteSky(const std::string& path)
{
    Canvas sky(SkyWidth, SkyHeight, {});
    for (int y = 0; y < SkyHeight; ++y)
        for (int x = 0; x < SkyWidth; ++x)
            sky.Set(x, y, Panorama(x + 0.5, y + 0.5));
    WriteBmp(path, sky, Black::Avoid, true);
}
}
