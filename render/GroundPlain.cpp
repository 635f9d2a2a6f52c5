// SPDX-License-Identifier: Zlib
#include "render/GroundPlain.h"

#include "base/Math.h"
#include "base/Numbers.h"

namespace render
{
namespace
{
struct GroundTexel
{
    std::int32_t U = 0, V = 0; // base::OutOfRange where it is no texel of any picture
};

double SlopeOf(const GroundView& view, std::int32_t x)
{
    return (x - view.CenterX) / view.Zoom;
}

GroundTexel TexelPlain(const GroundView& view, std::int32_t x, std::int32_t y)
{
    const float lateral = static_cast<float>(SlopeOf(view, x) * view.RowSlant[y]);
    const double worldX = view.CamX - view.SinYaw * view.RowDist[y] + view.CosYaw * lateral;
    const double worldZ = view.CosYaw * view.RowDist[y] + view.CamZ + view.SinYaw * lateral;
    return {base::RoundEven(worldX * view.GroundScale), base::RoundEven(worldZ * view.GroundScale)};
}

void BlendPlain(const GroundView& view, const GroundTexel& at, float weight, std::uint8_t* pixel)
{
    const double w = weight;
    const std::uint8_t* sharp = view.Sharp.At(at.U, at.V);
    const std::uint8_t* blurred = view.Blurred.At(at.U, at.V);
    for (int c = 0; c < 3; ++c)
        pixel[c] = static_cast<std::uint8_t>(base::Floor(blurred[c] * w + sharp[c] * (1.0 - w)));
}

// The texel k sampling steps from the middle.
const std::uint8_t* Tap(const GroundView& view, const GroundTexel& at, double k, float du, float dv)
{
    return view.Sharp.At(base::RoundEven(at.U + k * du), base::RoundEven(at.V + k * dv));
}

void AnisoPlain(const GroundView& view, const GroundTexel& at, std::int32_t x, float taps, std::uint8_t* pixel)
{
    const double a = base::Atan(SlopeOf(view, x)) + view.Yaw;
    const float du = static_cast<float>(view.SinYaw * base::Sin(a));
    const float dv = static_cast<float>(view.CosYaw * base::Cos(a));
    const std::uint8_t* centre = view.Sharp.At(at.U, at.V);
    const std::int32_t n = base::Floor(taps);
    // A yaw that is no number gives no steps.
    const bool steps = du >= -1.0f && du <= 1.0f && dv >= -1.0f && dv <= 1.0f;
    if ((n == 0 && taps < FewestTaps) || !steps)
        base::CopyPixel(pixel, centre);
    else if (n == 0)
    {
        const std::int32_t w = base::RoundEven(taps / SideWeightStep);
        const std::uint8_t* left = Tap(view, at, -1.0, du, dv);
        const std::uint8_t* right = Tap(view, at, 1.0, du, dv);
        for (int c = 0; c < 3; ++c)
            pixel[c] = static_cast<std::uint8_t>((centre[c] * (50 - w) * 2 + (left[c] + right[c]) * w) / 100);
    }
    else
        for (int c = 0; c < 3; ++c)
        {
            std::int32_t sum = centre[c] * (n + 1);
            for (std::int32_t k = 1; k <= n; ++k)
                sum += (Tap(view, at, -k, du, dv)[c] + Tap(view, at, k, du, dv)[c]) * (n + 1 - k);
            pixel[c] = static_cast<std::uint8_t>(sum / ((n + 2) * n + 1));
        }
}
}

void GroundPixelPlain(const GroundView& view, std::int32_t x, std::int32_t y, std::uint8_t* pixel)
{
    const GroundTexel at = TexelPlain(view, x, y);
    const std::int32_t margin = view.TxtFilter == Filter::Anisotropic ? TapMargin : 0;
    const bool ground =
        at.U >= margin && at.U < view.Sharp.Width - margin && at.V >= margin && at.V < view.Sharp.Height - margin;
    if (!ground)
        base::CopyPixel(pixel, SkyPixel(view, x, SkyRow(view, y)));
    else if (view.TxtFilter == Filter::Linear)
        BlendPlain(view, at, view.BlurWeight[y], pixel);
    else if (view.TxtFilter == Filter::Anisotropic)
        AnisoPlain(view, at, x, view.TapCount[y], pixel);
    else
        base::CopyPixel(pixel, view.Sharp.At(at.U, at.V));
}

void GroundPlain(const GroundView& view, const Band& band)
{
    for (std::int32_t x = band.First; x <= band.Last; ++x)
        for (std::int32_t y = 0; y < view.Frame.Height; ++y)
        {
            std::uint8_t* pixel = view.Frame.At(x, y);
            view.Depth->At(x, y) = FarDepth;
            if (IsSkyRow(view, y))
                base::CopyPixel(pixel, SkyPixel(view, x, SkyRow(view, y)));
            else
                GroundPixelPlain(view, x, y, pixel);
        }
}
}
