// SPDX-License-Identifier: Zlib
#include "render/Camera.h"

#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using render::Camera;
using render::Point3;

namespace
{
constexpr float HalfTurn = 3.14159274f, QuarterTurn = 1.57079637f;
const double NaN = std::numeric_limits<double>::quiet_NaN();
const double Infinity = std::numeric_limits<double>::infinity();

Camera At(float x, float y, float z, float yaw, float pitch)
{
    Camera camera;
    camera.CamX = x;
    camera.CamY = y;
    camera.CamZ = z;
    camera.CamYaw = yaw;
    camera.CamPitch = pitch;
    UpdateCameraTrig(camera);
    return camera;
}

void ExpectNear(const Point3& point, double x, double y, double z)
{
    EXPECT_NEAR(point.X, x, 1e-5);
    EXPECT_NEAR(point.Y, y, 1e-5);
    EXPECT_NEAR(point.Z, z, 1e-5);
}
}

TEST(WorldToCamera, UnturnedItLooksAlongZWithXToTheRight)
{
    const Point3 seen = WorldToCamera(At(1, 2, 3, 0, 0), 2, 4, 8);
    EXPECT_EQ(seen.X, 1.0f);
    EXPECT_EQ(seen.Y, 2.0f);
    EXPECT_EQ(seen.Z, 5.0f);
}

TEST(WorldToCamera, PositiveYawTurnsFromPlusZTowardMinusX)
{
    ExpectNear(WorldToCamera(At(0, 0, 0, QuarterTurn, 0), -5, 1, 0), 0, 1, 5);
    ExpectNear(WorldToCamera(At(0, 0, 0, QuarterTurn, 0), 0, 1, 5), 5, 1, 0);
    ExpectNear(WorldToCamera(At(0, 0, 0, HalfTurn, 0), 0, 0, -5), 0, 0, 5);
}

TEST(WorldToCamera, PositivePitchTiltsUpward)
{
    ExpectNear(WorldToCamera(At(0, 0, 0, 0, QuarterTurn), 0, 5, 0), 0, 0, 5);
    ExpectNear(WorldToCamera(At(0, 0, 0, 0, 0.5f), 0, 0, 10), 0, -10 * std::sin(0.5), 10 * std::cos(0.5));
}

// Single-precision sums would lose the one that is left: 2^24 + 1 is no float.
TEST(WorldToCamera, SumsAreDouble)
{
    Camera camera = At(-1, 0, 0, 0, 0);
    camera.CamCosYaw = camera.CamSinYaw = 0.5f;
    EXPECT_EQ(WorldToCamera(camera, 16777216.0f, 0, -16777216.0f).X, 0.5f);
}

namespace
{
// What becomes of a seen point within one procedure, where the compiler may see through the singles.
void SeeAndDivide(const Camera& camera, const Point3& world, Point3* seen, double* quotient)
{
    *seen = WorldToCamera(camera, world.X, world.Y, world.Z);
    quotient[0] = static_cast<double>(seen->X) / seen->Z;
    quotient[1] = static_cast<double>(seen->Y) / seen->Z;
}
}

// An optimiser that forgets that X and Y were rounded moves corners on the screen.
TEST(WorldToCamera, ResultsAreSinglesAlsoWhereTheyAreUsedAtOnce)
{
    void (*volatile compute)(const Camera&, const Point3&, Point3*, double*) = SeeAndDivide;
    for (int i = 0; i < 50; ++i)
    {
        const float a = static_cast<float>(i) * 0.37f;
        Point3 seen;
        double quotient[2];
        compute(At(1.1f, 2.3f, 3.7f, a, a / 9.0f), {a + 10.1f, 7.3f, 90.7f - a}, &seen, quotient);
        EXPECT_EQ(quotient[0], static_cast<double>(seen.X) / seen.Z) << i;
        EXPECT_EQ(quotient[1], static_cast<double>(seen.Y) / seen.Z) << i;
    }
}

TEST(RotatePoint, HeadingTurnsLocalZAndPitchComesAfter)
{
    const float h = 0.7f;
    ExpectNear(RotatePoint(render::MakeRotation(h, 0), {10, 20, 30}, {0, 0, 1}), 10 - std::sin(h), 20,
               30 + std::cos(h));
    ExpectNear(RotatePoint(render::MakeRotation(QuarterTurn, 0), {0, 0, 0}, {1, 0, 0}), 0, 0, 1);
    ExpectNear(RotatePoint(render::MakeRotation(0, QuarterTurn), {0, 0, 0}, {0, 1, 0}), 0, 0, 1);
    ExpectNear(RotatePoint(render::MakeRotation(0, QuarterTurn), {0, 0, 0}, {0, 0, 1}), 0, -1, 0);
}

TEST(Project, RoundsTiesToEven)
{
    const render::ScreenPoint at = render::Project(1, 3, 4, 10.0f, 120.0f, 100.0f);
    EXPECT_EQ(at.X, 122); // 122.5
    EXPECT_EQ(at.Y, 108); // 107.5
}

TEST(Project, WhatIsOnNoScreenIsOutOfRange)
{
    EXPECT_EQ(render::Project(1, 1, 0, 10.0f, 120.0f, 100.0f).X, base::OutOfRange);
    EXPECT_EQ(render::Project(0, 0, 0, 10.0f, 120.0f, 100.0f).Y, base::OutOfRange);
    EXPECT_EQ(render::Project(NaN, 1, 1, 10.0f, 120.0f, 100.0f).X, base::OutOfRange);
    EXPECT_EQ(render::Project(1e20, 1, 1, 10.0f, 120.0f, 100.0f).X, base::OutOfRange);
}

TEST(Distances, AreEuclidean)
{
    EXPECT_EQ(render::Dist2D(1, 1, 4, 5), 5.0);
    EXPECT_EQ(render::Dist3D(1, 1, 1, 2, 3, 3), 3.0);
    EXPECT_EQ(render::VecLen(2, 3, 6), 7.0);
    // Pixels far apart: the difference needs more than 32 bits.
    EXPECT_EQ(render::Dist2D(-2147483647, 0, 2147483647, 0), 4294967294.0);
}

TEST(AngleOf, QuadrantsWithTheConstantsOfTheGame)
{
    EXPECT_EQ(render::AngleOf(1, 0), 1.570796);
    EXPECT_EQ(render::AngleOf(-1, 0), -1.570796);
    EXPECT_EQ(render::AngleOf(0, 0), 0.0);
    EXPECT_EQ(render::AngleOf(0, 3), 0.0);
    EXPECT_EQ(render::AngleOf(0, -3), 3.141592);
    EXPECT_NEAR(render::AngleOf(1, 1), 0.785398163, 1e-9);
    EXPECT_NEAR(render::AngleOf(1, -1), -0.785398163 + 3.141592, 1e-9);
    EXPECT_NEAR(render::AngleOf(-1, -1), 0.785398163 - 3.141592, 1e-9);
    EXPECT_NEAR(render::AngleOf(-1, 1), -0.785398163, 1e-9);
}

TEST(WrapAngle, WorksInWholeMilliradians)
{
    EXPECT_EQ(render::WrapAngle(0.0004), 0.0);
    EXPECT_EQ(render::WrapAngle(0.0005), 0.0); // ties to even
    EXPECT_EQ(render::WrapAngle(0.0015), 0.002);
    EXPECT_EQ(render::WrapAngle(3.141), 3.141);
    EXPECT_EQ(render::WrapAngle(3.142), 3.142 - 6.283184);
    EXPECT_EQ(render::WrapAngle(-3.142), -3.142 + 6.283184);
    EXPECT_EQ(render::WrapAngle(7.0), 0.717);
    EXPECT_EQ(render::WrapAngle(-7.0), -0.717);
    EXPECT_EQ(render::WrapAngle(6.283), 0.0);
}

TEST(WrapAngle, WhatIsNoAngleStaysNone)
{
    for (const double angle : {NaN, Infinity, -Infinity, 1e12})
        EXPECT_TRUE(std::isnan(render::WrapAngle(angle)));
}

TEST(SplitRGB, RedIsTheLowByte)
{
    const base::Rgb colour = render::SplitRGB(0x123456);
    EXPECT_EQ(colour.R, 0x56);
    EXPECT_EQ(colour.G, 0x34);
    EXPECT_EQ(colour.B, 0x12);
}
