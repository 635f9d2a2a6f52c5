// SPDX-License-Identifier: Zlib
#include "render/GroundView.h"

#include "base/Numbers.h"

namespace render
{
namespace
{
constexpr std::uint8_t Black[base::PixelBytes] = {};
}

GroundView MakeGroundView(const Scene& scene, const Camera& camera, Screen& screen)
{
    GroundView view;
    view.CamX = camera.CamX;
    view.CamZ = camera.CamZ;
    view.SinYaw = camera.CamSinYaw;
    view.CosYaw = camera.CamCosYaw;
    view.Yaw = camera.CamYaw;
    view.Zoom = camera.Zoom;
    view.CenterX = screen.CenterX;

    view.TxtFilter = screen.TxtFilter;
    view.GroundScale = scene.Ground.GroundScale;
    const PicArray2D &sharp = scene.Ground.Sharp.Pixels, &blur = scene.Ground.GroundBlur;
    const bool hasBlur = blur.Rows == sharp.Rows && blur.RowBytes == sharp.RowBytes;
    view.Sharp = MakeSurface(sharp, scene.Ground.Width, scene.Ground.Height);
    view.Blurred = hasBlur ? MakeSurface(blur, scene.Ground.Width, scene.Ground.Height) : view.Sharp;
    view.Sky = MakeSurface(scene.Sky);
    view.SkyOffset = (screen.SkyOffset % SkyWidth + SkyWidth) % SkyWidth;

    view.RowAngle = screen.RowAngle.data();
    view.RowSlant = screen.RowSlant.data();
    view.RowDist = screen.RowDist.data();
    view.BlurWeight = screen.BlurWeight.data();
    view.TapCount = screen.TapCount.data();
    view.ColumnSlope = screen.ColumnSlope.data();

    view.Taps = screen.Taps.data();
    view.Frame = FrameSurface(screen);
    view.Depth = &screen.Depth;
    return view;
}

std::int32_t SkyRow(const GroundView& view, std::int32_t y)
{
    return base::RoundEven(static_cast<double>(y) / view.Frame.Height * (view.Sky.Height - 1));
}

const std::uint8_t* SkyPixel(const GroundView& view, std::int32_t x, std::int32_t skyRow)
{
    const std::int32_t column = (view.SkyOffset + x) % SkyWidth;
    return view.Sky.Has(column, skyRow) ? view.Sky.At(column, skyRow) : Black;
}
}
