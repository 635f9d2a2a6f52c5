// SPDX-License-Identifier: Zlib
#include "render/Spanner.h"

#include "base/Math.h"
#include "base/Numbers.h"

#include <algorithm>
#include <cmath>

namespace render
{
namespace
{
// Pixels, from the middle of the picture.
constexpr double ShaftHalfLength = 9.0, ShaftHalfWidth = 2.1;
constexpr double JawPlace = 9.5, JawRadius = 6.0;       // along the shaft
constexpr double MouthHalfWidth = 2.4, MouthEnd = -1.0; // the slot begins a little before the jaw's middle
constexpr double TileHalfSide = 10.0, TileRounding = 5.5;
constexpr double RimWidth = 1.3;

constexpr double HalfRoot2 = 0.70710678118654752; // cosine of the 45 degrees that the spanner is turned

// Channels, 0 to 255. The tile is lighter towards its top.
struct Shade
{
    double R, G, B;
};
constexpr Shade Steel = {236, 240, 248}, Rim = {255, 158, 54}, Tile = {26, 29, 36};
constexpr double TileRise = 0.4; // a pixel

double Length(double x, double y)
{
    return base::Sqrt(x * x + y * y);
}

// The distances are negative inside. Those of the spanner are along its own axis: x from end to end, 0 in the middle; y
// across.
double JawDistance(double x, double y)
{
    const double ring = Length(x, y) - JawRadius;
    const double mouth = std::max(std::abs(y) - MouthHalfWidth, MouthEnd - x); // open to the outside
    return std::max(ring, -mouth);
}

double SpannerDistance(double x, double y)
{
    const double shaft = std::max(std::abs(x) - ShaftHalfLength, std::abs(y) - ShaftHalfWidth);
    return std::min({shaft, JawDistance(x - JawPlace, y), JawDistance(-x - JawPlace, y)});
}

double TileDistance(double x, double y)
{
    const double dx = std::max(std::abs(x) - TileHalfSide, 0.0), dy = std::max(std::abs(y) - TileHalfSide, 0.0);
    return Length(dx, dy) - TileRounding;
}

// How much of a pixel lies inside, 0 to 1.
double CoverageOf(double distance)
{
    return std::clamp(0.5 - distance, 0.0, 1.0);
}

double Mix(double below, double above, double part)
{
    return below + (above - below) * part;
}

base::Rgb PixelAt(double x, double y)
{
    const double along = (x + y) * HalfRoot2, across = (y - x) * HalfRoot2;
    const double steel = CoverageOf(SpannerDistance(along, across));
    const double rim = CoverageOf(TileDistance(x, y)) - CoverageOf(TileDistance(x, y) + RimWidth);
    // Lighter on the upper edge, so that the steel looks round.
    const double light = std::clamp(0.82 + 0.06 * across, 0.6, 1.0);
    const double dark = Tile.R + TileRise * y;
    const auto channel = [&](double tile, double rimShade, double steelShade)
    { return base::RoundByte(Mix(Mix(dark + (tile - Tile.R), rimShade, rim), steelShade * light, steel)); };
    return {channel(Tile.R, Rim.R, Steel.R), channel(Tile.G, Rim.G, Steel.G), channel(Tile.B, Rim.B, Steel.B)};
}
}

void PaintSpanner(Picture& picture)
{
    const std::int32_t width = picture.Info.Width, height = picture.Info.Height;
    for (std::int32_t row = 0; row < height; ++row)
    {
        std::uint8_t* pixel = picture.Pixels.Row(row);
        for (std::int32_t column = 0; column < width; ++column, pixel += base::PixelBytes)
            base::Put(pixel, PixelAt(column + 0.5 - width / 2.0, row + 0.5 - height / 2.0));
    }
}
}
