// render/Camera.h: the camera, the way from world to screen, and the angles that renderer and simulation share.
// World: single-precision, y up, left-handed, ground at y = 0. Angles: radians. Screen: row 0 = bottom.
#pragma once
#include "base/Fields.h"
#include "base/Numbers.h"
#include "base/Pixels.h"

#include <cstdint>

namespace render
{
inline constexpr double HalfPi = 1.570796, Pi = 3.141592, TwoPi = 6.283184; // the constants of every formula

struct Camera
{
    float CamX = 0, CamY = 1, CamZ = 0; // world units
    float CamYaw = 0, CamPitch = 0;     // positive yaw turns from +z toward -x, positive pitch upward
    float CamCosYaw = 1, CamSinYaw = 0; // derived; only UpdateCameraTrig writes them
    float CamCosPitch = 1, CamSinPitch = 0;
    float Zoom = 0, MinZoom = 0; // focal length in pixels and its lower bound
    float Radius = 0;            // chase distance, world units
    float CamSway = 0;           // sideways lean of the driver's head, radians
    std::int16_t View = 0;       // camera view, 0 to 7
    std::int16_t ViewPlayer = 0; // the car that the camera follows and the display describes
};

// Refreshes the four derived fields. Call after every change of an angle.
void UpdateCameraTrig(Camera& camera);

struct Point3
{
    float X = 0, Y = 0, Z = 0;
};

// Every point of a frame passes through WorldToCamera, RotatePoint and Project: they are inline.

// Camera space: Z is the depth, growing away from the eye. Sums in double, stores floats.
inline Point3 WorldToCamera(const Camera& camera, float x, float y, float z)
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

// Sine and cosine of an object's two rotations, computed once per object.
struct Rotation
{
    float CosA = 1, SinA = 0, CosB = 1, SinB = 0;
};
Rotation MakeRotation(float angleA, float angleB);
// Object-local point to world.
inline Point3 RotatePoint(const Rotation& rotation, float ox, float oy, float oz, float px, float py, float pz)
{
    const double cosA = rotation.CosA, sinA = rotation.SinA, cosB = rotation.CosB, sinB = rotation.SinB;
    const double t = sinA * px + cosA * pz;
    return {static_cast<float>(cosA * px - sinA * pz + ox), static_cast<float>(cosB * py - t * sinB + oy),
            static_cast<float>(t * cosB + sinB * py + oz)};
}

// Projected position: pixels, rounded. base::OutOfRange where the point is not finite or off every scale.
struct ScreenPoint
{
    std::int32_t X = 0, Y = 0;
};
inline ScreenPoint Project(double x, double y, double depth, float zoom, float centerX, float centerY)
{
    return {base::RoundEven(x / depth * zoom + centerX), base::RoundEven(y / depth * zoom + centerY)};
}

double Dist2D(double x1, double y1, double x2, double y2);
double Dist3D(double x1, double y1, double z1, double x2, double y2, double z2);
double VecLen(double x, double y, double z);
// Quadrant-correct arctangent with the constants above; 0 for (0, 0); +Pi for y = 0 and x < 0.
double AngleOf(double y, double x);
// -Pi … Pi in whole milliradians. Deliberate: the wrap rounds to a thousandth.
// NaN where the angle is no number or its thousandths need more than 32 bits.
double WrapAngle(double angle);

using base::Rgb;
// Red in the low byte. Meaningful for colours of 0 and above.
Rgb SplitRGB(std::int32_t colour);
}

template <> struct base::FieldsOf<render::Camera>
{
    using C = render::Camera;
    static constexpr auto Table =
        std::make_tuple(Field{"CamX", &C::CamX}, Field{"CamY", &C::CamY}, Field{"CamZ", &C::CamZ},
                        Field{"CamYaw", &C::CamYaw}, Field{"CamPitch", &C::CamPitch}, Field{"Zoom", &C::Zoom},
                        Field{"MinZoom", &C::MinZoom}, Field{"Radius", &C::Radius}, Field{"CamSway", &C::CamSway},
                        Field{"View", &C::View}, Field{"ViewPlayer", &C::ViewPlayer});
};
