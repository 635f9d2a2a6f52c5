// SPDX-License-Identifier: Zlib
#include "tools/preview/Stage.h"

#include "base/Numbers.h"
#include "render/GroundTexture.h"

#include <algorithm>
#include <cmath>

namespace preview
{
namespace
{
constexpr std::int32_t TexelsAStep = 16, Steps = 64, Side = TexelsAStep * Steps;
constexpr std::int32_t SkyRows = 256;
constexpr double Horizon = 0.6; // share of the sky's rows that shows the ground's own colour
constexpr base::Rgb Floor = {152, 152, 148}, Stripe = {122, 122, 120}, Zenith = {188, 204, 222};

base::Rgb Blended(base::Rgb from, base::Rgb to, double share)
{
    const auto mix = [share](std::uint8_t a, std::uint8_t b) { return base::RoundByte(a + (b - a) * share); };
    return {mix(from.R, to.R), mix(from.G, to.G), mix(from.B, to.B)};
}

void MakePicture(render::Picture& picture, std::int32_t width, std::int32_t height)
{
    picture.Info = {width, height, base::PaddedRow(width), 1, 24};
    picture.Pixels.Allocate(height, picture.Info.RowBytes);
}

// The lines fade toward the border, where the sky goes on in the ground's colour.
base::Rgb GroundTexelColour(std::int32_t u, std::int32_t v)
{
    if (u % TexelsAStep != 0 && v % TexelsAStep != 0)
        return Floor;
    const double middle = Side / 2.0;
    const double away = std::hypot(u - middle, v - middle) / middle;
    return Blended(Stripe, Floor, std::clamp(away * 1.4 - 0.2, 0.0, 1.0));
}
}

double StageMiddle(double step)
{
    return step * Steps / 2;
}

void BuildStage(render::Scene& scene, double step)
{
    render::Ground& ground = scene.Ground;
    MakePicture(ground.Sharp, Side, Side);
    ground.Width = ground.Height = Side;
    ground.GroundScale = static_cast<float>(TexelsAStep / step);
    for (std::int32_t v = 0; v < Side; ++v)
        for (std::int32_t u = 0; u < Side; ++u)
            base::Put(ground.Sharp.Pixels.Row(v) + u * base::PixelBytes, GroundTexelColour(u, v));
    render::BlurGround(ground);
    MakePicture(scene.Sky, render::SkyWidth, SkyRows);
    for (std::int32_t row = 0; row < SkyRows; ++row)
    {
        const double share = (static_cast<double>(row) / SkyRows - Horizon) / (1 - Horizon);
        const base::Rgb colour = Blended(Floor, Zenith, std::clamp(share, 0.0, 1.0));
        for (std::int32_t x = 0; x < render::SkyWidth; ++x)
            base::Put(scene.Sky.Pixels.Row(row) + x * base::PixelBytes, colour);
    }
}
}
