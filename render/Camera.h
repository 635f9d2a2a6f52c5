// SPDX-License-Identifier: Zlib
// render/Camera.h: the camera, the way from world to screen, and the angles that renderer and simulation share.
// World: single-precision, y up, left-handed, ground at y = 0. Angles: radians. Screen: row 0 = bottom.
#pragma once
#include "base/Fields.h"
#include "base/Numbers.h"
#include "base/Pixels.h"

#include <cstdint>

namespace render
{
// The constants of every formula. Deliberate: six decimals.
inline constexpr double HalfPi = 1.570796, Pi = 3.141592, TwoPi = 6.283184;

// From where the followed car is seen. The numbers are those of the key that goes through them.
enum View : std::int16_t
{
    Chase = 0,        // from behind and above
    Driver = 1,       // from the driver's seat; backward as in the mirror where that is asked for
    Overhead = 2,     // straight down, higher with the speed
    ReverseChase = 3, // from before the car
    Orbit = 4,        // circling round the car
    Side = 5,         // from beside the car, at wheel height
    Overview = 6,     // a fixed place over the map
    Still = 7         // the camera stays where it is
};

struct Camera
{
    float CamX = 0, CamY = 1, CamZ = 0;     // the eye, world units
    float CamYaw = 0, CamPitch = 0;         // radians; positive yaw turns from +z toward -x, positive pitch upward
    float CamCosYaw = 1, CamSinYaw = 0;     // derived; only UpdateCameraTrig writes them
    float CamCosPitch = 1, CamSinPitch = 0; // derived as well
    float Zoom = 0, MinZoom = 0;            // focal length in pixels and its lower bound
    float Radius = 0;                       // distance of the chasing views, world units
    float CamSway = 0;                      // sideways lean of the driver's head, radians
    std::int16_t View = Chase;              // a View; any other number leaves the camera alone
    std::int16_t ViewPlayer = 0;            // the car that the camera follows and the display describes
};

// Refreshes the four derived fields. Call after every change of an angle.
void UpdateCameraTrig(Camera& camera);

struct Point3
{
    float X = 0, Y = 0, Z = 0; // world units
};

// Every point of a frame passes through WorldToCamera, RotatePoint and Project: they are inline. All three sum in
// double precision.

// World to camera space: X to the right, Y upward, Z the depth, growing away from the eye. Stores floats. Reads the
// four derived fields, not the angles.
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
    float CosA = 1, SinA = 0; // about the vertical axis: the heading
    float CosB = 1, SinB = 0; // then the pitch
};
// Radians.
Rotation MakeRotation(float angleA, float angleB);
// A point of an object at that place, local to world. Stores floats.
inline Point3 RotatePoint(const Rotation& rotation, const Point3& place, const Point3& point)
{
    const double cosA = rotation.CosA, sinA = rotation.SinA, cosB = rotation.CosB, sinB = rotation.SinB;
    const double t = sinA * point.X + cosA * point.Z;
    return {static_cast<float>(cosA * point.X - sinA * point.Z + place.X),
            static_cast<float>(cosB * point.Y - t * sinB + place.Y),
            static_cast<float>(t * cosB + sinB * point.Y + place.Z)};
}

// A place on the frame, off it as well: whole pixels, row 0 at the bottom.
struct ScreenPoint
{
    std::int32_t X = 0, Y = 0;
};
// Camera space to screen, rounded. base::OutOfRange where the point is not finite or off every scale; what lies behind
// the eye is the caller's to leave out.
inline ScreenPoint Project(double x, double y, double depth, float zoom, float centerX, float centerY)
{
    return {base::RoundEven(x / depth * zoom + centerX), base::RoundEven(y / depth * zoom + centerY)};
}

// Lengths, in the units of what is given.
double Dist2D(double x1, double y1, double x2, double y2);
double Dist3D(double x1, double y1, double z1, double x2, double y2, double z2);
double VecLen(double x, double y, double z);
// Quadrant-correct arctangent with the constants above; 0 for (0, 0); +Pi for y = 0 and x < 0.
double AngleOf(double y, double x);
// -Pi … Pi in whole milliradians. Deliberate: the wrap rounds to a thousandth.
// NaN where the angle is no number or its thousandths need more than 32 bits.
double WrapAngle(double angle);

// A colour of one number: red in the low byte, then green, then blue. Meaningful for colours of 0 and above.
base::Rgb SplitRGB(std::int32_t colour);
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
