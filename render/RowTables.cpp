// SPDX-License-Identifier: Zlib
#include "render/RowTables.h"

#include "base/Math.h"
#include "base/Numbers.h"
#include "render/Scene.h"

#include <cmath>

namespace render
{
namespace
{
constexpr double SkyColumnsPerRadian = 131.0; // a whole turn is a little more than the panorama
constexpr double MostBlur = 0.875;            // an eighth of the sharp texel always shows

// 0 … most; 0 for what is no number.
float Limited(double value, double most)
{
    if (!(value > 0.0))
        return 0.0f;
    return static_cast<float>(value > most ? most : value);
}

// The farther a row's ray goes and the less steeply it falls, the more of the blurred copy shows.
float BlurWeightOf(double rowAngle, float rowSlant, float zoom)
{
    return Limited(std::fabs(rowAngle + HalfPi) * rowSlant / zoom, MostBlur);
}

// Twice the ground between a row and the one below.
float TapCountOf(double rowDist, float rowDistBelow)
{
    return Limited(2.0 * std::fabs(rowDist - rowDistBelow), MostTaps);
}
}

void UpdateSkyOffset(const Camera& camera, Screen& screen)
{
    const std::int32_t turned = base::Floor(static_cast<double>(camera.CamYaw) * SkyColumnsPerRadian);
    const std::int32_t offset = turned == base::OutOfRange ? 0 : -turned % SkyWidth;
    screen.SkyOffset = offset < 0 ? offset + SkyWidth : offset;
}

void UpdateRowTables(const Camera& camera, Screen& screen)
{
    for (std::int32_t row = 0; row < screen.ScreenH; ++row)
    {
        const auto r = static_cast<std::size_t>(row);
        const double slope = (row - static_cast<double>(screen.CenterY)) / camera.Zoom;
        screen.RowAngle[r] = static_cast<float>(base::Atan(slope) + camera.CamPitch);
        const double angle = screen.RowAngle[r];
        if (IsSkyAngle(angle))
            continue;
        screen.RowSlant[r] = static_cast<float>(std::fabs(camera.CamY / base::Sin(angle)));
        screen.RowDist[r] = static_cast<float>(base::Cos(angle) * screen.RowSlant[r]);
        if (screen.TxtFilter == Filter::Linear)
            screen.BlurWeight[r] = BlurWeightOf(angle, screen.RowSlant[r], camera.Zoom);
        else if (screen.TxtFilter == Filter::Anisotropic)
            screen.TapCount[r] = row == 0 ? 0.0f : TapCountOf(screen.RowDist[r], screen.RowDist[r - 1]);
    }
}

void UpdateColumnSlopes(const Camera& camera, Screen& screen)
{
    const double zoom = camera.Zoom, center = screen.CenterX;
    for (std::int32_t x = 0; x < screen.ScreenW; ++x)
        screen.ColumnSlope[static_cast<std::size_t>(x)] = (x - center) / zoom;
}
}
