// SPDX-License-Identifier: Zlib
#include "render/Camera.h"

#include "base/Math.h"
#include "base/Numbers.h"

#include <limits>

namespace render
{
void UpdateCameraTrig(Camera& camera)
{
    camera.CamCosYaw = static_cast<float>(base::Cos(camera.CamYaw));
    camera.CamSinYaw = static_cast<float>(base::Sin(camera.CamYaw));
    camera.CamCosPitch = static_cast<float>(base::Cos(camera.CamPitch));
    camera.CamSinPitch = static_cast<float>(base::Sin(camera.CamPitch));
}

Rotation MakeRotation(float angleA, float angleB)
{
    return {static_cast<float>(base::Cos(angleA)), static_cast<float>(base::Sin(angleA)),
            static_cast<float>(base::Cos(angleB)), static_cast<float>(base::Sin(angleB))};
}

double Dist2D(double x1, double y1, double x2, double y2)
{
    return base::Sqrt((x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1));
}

double Dist3D(double x1, double y1, double z1, double x2, double y2, double z2)
{
    return VecLen(x2 - x1, y2 - y1, z2 - z1);
}

double VecLen(double x, double y, double z)
{
    return base::Sqrt(x * x + y * y + z * z);
}

double AngleOf(double y, double x)
{
    if (x == 0.0)
        return HalfPi * base::Sign(y);
    const double angle = base::Atan(y / x);
    if (x > 0.0)
        return angle;
    return y < 0.0 ? angle - Pi : angle + Pi;
}

double WrapAngle(double angle)
{
    const std::int32_t thousandths = base::RoundEven(angle * 1000.0);
    if (thousandths == base::OutOfRange)
        return std::numeric_limits<double>::quiet_NaN();
    const double wrapped = (thousandths % 6283) / 1000.0;
    if (wrapped > Pi)
        return wrapped - TwoPi;
    return wrapped < -Pi ? wrapped + TwoPi : wrapped;
}

base::Rgb SplitRGB(std::int32_t colour)
{
    const auto bits = static_cast<std::uint32_t>(colour);
    return {static_cast<std::uint8_t>(bits), static_cast<std::uint8_t>(bits >> 8),
            static_cast<std::uint8_t>(bits >> 16)};
}
}
