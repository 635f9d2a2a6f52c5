// The picture of the repair indicator: an open-ended spanner from lower left to upper right on a dark tile.
#include "base/Math.h"
#include "base/Numbers.h"
#include "shell/HudElements.h"

#include <algorithm>
#include <cmath>

namespace shell
{
namespace
{
struct Place
{
    double X, Y;
};

double Length(double x, double y)
{
    return base::Sqrt(x * x + y * y);
}

// Negative inside. Along the spanner's own axis: x from end to end, 0 in the middle; y across.
double JawDistance(double x, double y)
{
    const double ring = Length(x, y) - 6.0;
    // The mouth: a slot that opens to the outside.
    const double slot = std::max(std::abs(y) - 2.4, -1.0 - x);
    return std::max(ring, -slot);
}

double SpannerDistance(double x, double y)
{
    const double shaft = std::max(std::abs(x) - 9.0, std::abs(y) - 2.1);
    return std::min({shaft, JawDistance(x - 9.5, y), JawDistance(-x - 9.5, y)});
}

double TileDistance(double x, double y)
{
    const double dx = std::max(std::abs(x) - 10.0, 0.0), dy = std::max(std::abs(y) - 10.0, 0.0);
    return Length(dx, dy) - 5.5;
}

double CoverageOf(double distance)
{
    return std::clamp(0.5 - distance, 0.0, 1.0);
}

double Mix(double below, double above, double part)
{
    return below + (above - below) * part;
}
}

void PaintSpanner(render::Picture& picture)
{
    const std::int32_t width = picture.Info.Width, height = picture.Info.Height;
    constexpr double Half = 0.70710678118654752;
    for (std::int32_t row = 0; row < height; ++row)
    {
        std::uint8_t* pixel = picture.Pixels.Row(row);
        for (std::int32_t column = 0; column < width; ++column, pixel += 3)
        {
            const double x = column + 0.5 - width / 2.0, y = row + 0.5 - height / 2.0;
            const double along = (x + y) * Half, across = (y - x) * Half;
            const double steel = CoverageOf(SpannerDistance(along, across));
            const double rim = CoverageOf(TileDistance(x, y)) - CoverageOf(TileDistance(x, y) + 1.3);
            // Lighter on the upper edge, so that the steel looks round.
            const double light = std::clamp(0.82 + 0.06 * across, 0.6, 1.0);
            const double dark = 26 + 0.4 * y;
            const double red = Mix(Mix(dark, 255, rim), 236 * light, steel);
            const double green = Mix(Mix(dark + 3, 158, rim), 240 * light, steel);
            const double blue = Mix(Mix(dark + 10, 54, rim), 248 * light, steel);
            pixel[0] = base::RoundByte(blue);
            pixel[1] = base::RoundByte(green);
            pixel[2] = base::RoundByte(red);
        }
    }
}
}
