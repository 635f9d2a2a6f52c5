#include "render/Camera.h"

#include "base/Math.h"
#include "base/Numbers.h"

#include <limits>

namespace Mod3D
{
void UpdateCameraTrig(Camera& camera)
{
    camera.CamCosYaw = static_cast<float>(base::Cos(camera.CamYaw));
    camera.CamSinYaw = static_cast<float>(base::Sin(camera.CamYaw));
    camera.CamCosPitch = static_cast<float>(base::Cos(camera.CamPitch));
    camera.CamSinPitch = static_cast<float>(base::Sin(camera.CamPitch));
}

Point3 WorldToCamera(const Camera& camera, float x, float y, float z)
{
    const double cosYaw = camera.CamCosYaw, sinYaw = camera.CamSinYaw;
    const double cosPitch = camera.CamCosPitch, sinPitch = camera.CamSinPitch;
    const double dx = static_cast<double>(x) - camera.CamX;
    const double dy = static_cast<double>(y) - camera.CamY;
    const double dz = static_cast<double>(z) - camera.CamZ;
    const double t = dx * sinYaw - cosYaw * dz;
    return {static_cast<float>(sinYaw * dz + cosYaw * dx), static_cast<float>(t * sinPitch + cosPitch * dy),
            static_cast<float>(sinPitch * dy - t * cosPitch)};
}

Rotation MakeRotation(float angleA, float angleB)
{
    return {static_cast<float>(base::Cos(angleA)), static_cast<float>(base::Sin(angleA)),
            static_cast<float>(base::Cos(angleB)), static_cast<float>(base::Sin(angleB))};
}

Point3 RotatePoint(const Rotation& rotation, float ox, float oy, float oz, float px, float py, float pz)
{
    const double cosA = rotation.CosA, sinA = rotation.SinA, cosB = rotation.CosB, sinB = rotation.SinB;
    const double t = sinA * px + cosA * pz;
    return {static_cast<float>(cosA * px - sinA * pz + ox), static_cast<float>(cosB * py - t * sinB + oy),
            static_cast<float>(t * cosB + sinB * py + oz)};
}

ScreenPoint Project(double x, double y, double depth, float zoom, float centerX, float centerY)
{
    return {base::RoundEven(x / depth * zoom + centerX), base::RoundEven(y / depth * zoom + centerY)};
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

Rgb SplitRGB(std::int32_t colour)
{
    const auto bits = static_cast<std::uint32_t>(colour);
    return {static_cast<std::uint8_t>(bits), static_cast<std::uint8_t>(bits >> 8),
            static_cast<std::uint8_t>(bits >> 16)};
}
}
