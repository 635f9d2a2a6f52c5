#include "base/Math.h"
#include "base/Numbers.h"
#include "render/RenderFrame.h"

#include <cmath>

namespace render
{
namespace
{
// 0 … most; 0 for what is no number.
float Limited(double value, double most)
{
    if (!(value > 0.0))
        return 0.0f;
    return static_cast<float>(value > most ? most : value);
}
}

void UpdateSkyOffset(const Camera& camera, Screen& screen)
{
    const std::int32_t turned = base::Floor(static_cast<double>(camera.CamYaw) * 131.0);
    const std::int32_t offset = turned == base::OutOfRange ? 0 : -turned % SkyWidth;
    screen.SkyOffset = offset < 0 ? offset + SkyWidth : offset;
}

void UpdateRowTables(const Camera& camera, Screen& screen)
{
    for (std::int32_t row = 0; row < screen.ScreenH; ++row)
    {
        const auto r = static_cast<std::size_t>(row);
        const double height = (row - static_cast<double>(screen.CenterY)) / camera.Zoom;
        screen.RowAngle[r] = static_cast<float>(base::Atan(height) + camera.CamPitch);
        const double angle = screen.RowAngle[r];
        if (!(angle < -0.01))
            continue; // sky: the old entries stay
        screen.RowSlant[r] = static_cast<float>(std::fabs(camera.CamY / base::Sin(angle)));
        screen.RowDist[r] = static_cast<float>(base::Cos(angle) * screen.RowSlant[r]);
        if (screen.TxtFilter == 1)
            screen.RowAux[r] = Limited(std::fabs(angle + HalfPi) * screen.RowSlant[r] / camera.Zoom, 0.875);
        else if (screen.TxtFilter == 2)
            screen.RowAux[r] =
                row == 0 ? 0.0f
                         : Limited(2.0 * std::fabs(static_cast<double>(screen.RowDist[r]) - screen.RowDist[r - 1]),
                                   MostTaps);
    }
}
}
