// SPDX-License-Identifier: Zlib
#include "shell/Views.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
// One car, one checkpoint, one arrow.
struct ViewTest : testing::Test
{
    render::Scene Scene;
    world::Race Race;
    world::HeldKeys Keys;
    render::Camera Camera;

    ViewTest()
    {
        Scene.Objects.Items.resize(2);
        Race.Players.resize(1);
        Race.Map.Checkpoints.Items.push_back({110, 0, 40, 5});
        Car().X = 10;
        Car().Y = 1;
        Car().Z = 40;
        Camera.MinZoom = 100;
        Camera.Radius = 14;
    }

    render::Obj& Car() { return Scene.Objects.Items[0]; }
    render::Obj& Arrow() { return Scene.Objects.Items[1]; }
    void Place() { shell::PlaceView(Camera, Scene, Race, Keys, 1); }
};

TEST_F(ViewTest, ChaseGlidesTowardThePlaceBehindTheCar)
{
    Camera.Zoom = 160;
    Camera.CamX = 40;
    Camera.CamY = 18;
    Camera.CamZ = 50;
    Place();
    EXPECT_FLOAT_EQ(Camera.Zoom, 170);         // 160 + (200 - 160) / 4
    EXPECT_FLOAT_EQ(Camera.CamPitch, -0.025f); // -0.1 / 4
    EXPECT_FLOAT_EQ(Camera.CamYaw, 0);
    EXPECT_FLOAT_EQ(Camera.CamX, 30); // 40 + (10 - 40) / 3
    EXPECT_FLOAT_EQ(Camera.CamY, 16); // 18 + (1 + 7 - 18) / 5
    EXPECT_FLOAT_EQ(Camera.CamZ, 42); // 50 + (40 - 14 - 50) / 3
}

TEST_F(ViewTest, ChaseUsesTheSmoothedYawAndItsFreshTrigonometry)
{
    Car().AngleA = 1;
    Place();
    EXPECT_FLOAT_EQ(Camera.CamYaw, 0.2f);
    EXPECT_NEAR(Camera.CamSinYaw, std::sin(0.2), 1e-6);
    EXPECT_NEAR(Camera.CamX, (14 * std::sin(0.2) + 10) / 3, 1e-4);
}

TEST_F(ViewTest, ChaseDistanceGrowsWithTheSpeedAndShrinksInReverse)
{
    const auto distanceAt = [&](float speed)
    {
        Race.Players[0].Speed = speed;
        for (int tick = 0; tick < 200; ++tick)
            Place();
        return Car().Z - Camera.CamZ;
    };
    EXPECT_NEAR(distanceAt(0), 14, 1e-3);
    EXPECT_NEAR(distanceAt(5), 19, 1e-3);
    EXPECT_NEAR(distanceAt(-1), 13, 1e-3);
}

TEST_F(ViewTest, LookingBackExchangesChaseAndReverse)
{
    const auto settledYaw = [&](std::int16_t view, base::Flag back)
    {
        Camera = {};
        Camera.View = view;
        Keys.KeyLookBack = back;
        for (int tick = 0; tick < 200; ++tick)
            Place();
        return std::abs(Camera.CamYaw);
    };
    EXPECT_NEAR(settledYaw(0, base::False), 0, 0.01);
    EXPECT_NEAR(settledYaw(0, base::True), 3.1416, 0.01);
    EXPECT_NEAR(settledYaw(3, base::False), 3.1416, 0.01);
    EXPECT_NEAR(settledYaw(3, base::True), 0, 0.01);
}

TEST_F(ViewTest, ReverseChaseGlidesFasterAcrossTheGround)
{
    Camera.View = 3;
    Car().AngleA = 3.1415f; // its reverse direction is the camera's own yaw, nearly
    Camera.CamX = 40;
    Place();
    EXPECT_NEAR(Camera.CamX, 25, 0.05); // 40 + (10 - 40) / 2
}

TEST_F(ViewTest, DriverSitsAtOnceInTheSeat)
{
    Camera.View = 1;
    Camera.CamSway = 0.25f;
    Place();
    EXPECT_FLOAT_EQ(Camera.CamX, 9.7f);
    EXPECT_FLOAT_EQ(Camera.CamY, 2.1f);
    EXPECT_FLOAT_EQ(Camera.CamZ, 39.95f);
    EXPECT_FLOAT_EQ(Camera.CamYaw, 0.1f); // half of the way to -0.05 + 0.25
    EXPECT_FLOAT_EQ(Camera.CamPitch, static_cast<float>(-0.1 / 3));
    EXPECT_FLOAT_EQ(Camera.Zoom, 38.75f); // 155 / 4
}

TEST_F(ViewTest, MirrorShowsTheWayBack)
{
    const auto isMirror = [&](float speed, base::Flag brake, base::Flag back)
    {
        Camera.View = 1;
        Race.Players[0].Speed = speed;
        Keys.KeyBrake = brake;
        Keys.KeyLookBack = back;
        Place();
        return Camera.CamX > 9.75f; // 0.2 beside the middle, the driver 0.3
    };
    EXPECT_FALSE(isMirror(0, base::False, base::False));
    EXPECT_TRUE(isMirror(0, base::True, base::False));
    EXPECT_FALSE(isMirror(1, base::True, base::False));
    EXPECT_TRUE(isMirror(1, base::False, base::True));
    EXPECT_FALSE(isMirror(-0.1f, base::False, base::False));
    EXPECT_TRUE(isMirror(-0.1f, base::True, base::False));
    EXPECT_TRUE(isMirror(-0.3f, base::False, base::False));
}

TEST_F(ViewTest, MirrorTurnsAThirdPartOffTheRear)
{
    Camera.View = 1;
    Keys.KeyLookBack = base::True;
    for (int tick = 0; tick < 60; ++tick)
        Place();
    EXPECT_NEAR(Camera.CamYaw, -2.702, 1e-3); // whole milliradians
    EXPECT_NEAR(Camera.CamPitch, -0.12, 1e-5);
}

TEST_F(ViewTest, OverheadRisesWithTheSpeedAndLooksDown)
{
    Camera.View = 2;
    Race.Players[0].Speed = -2;
    for (int tick = 0; tick < 200; ++tick)
        Place();
    EXPECT_NEAR(Camera.CamY, 69, 1e-3); // 2 * 14 + 1 + 40
    EXPECT_NEAR(Camera.CamZ, 32, 1e-3);
    EXPECT_NEAR(Camera.CamPitch, -1.570796, 1e-5);
    EXPECT_NEAR(Camera.Zoom, 400, 1e-3);
    EXPECT_FLOAT_EQ(Arrow().Y, 11);
}

TEST_F(ViewTest, OrbitTurnsOnByHalfOfItsStep)
{
    Camera.View = 4;
    Place();
    Place();
    EXPECT_NEAR(Camera.CamYaw, 0.03, 1e-6);
}

TEST_F(ViewTest, SideTakesHeadingAndPlaceAtOnce)
{
    Camera.View = 5;
    Car().AngleA = 0.5f;
    Place();
    EXPECT_FLOAT_EQ(Camera.CamYaw, 0.5f);
    EXPECT_NEAR(Camera.CamX, 10 - 1.3 * std::cos(0.5), 1e-5);
    EXPECT_FLOAT_EQ(Camera.CamY, 1.3f);
    EXPECT_NEAR(Camera.CamZ, 40 - 1.3 * std::sin(0.5), 1e-5);
}

TEST_F(ViewTest, OverviewGlidesSlowlyToItsFixedPlace)
{
    Camera.View = 6;
    Camera.CamX = 30;
    Place();
    EXPECT_FLOAT_EQ(Camera.CamX, 60); // 30 + (270 - 30) / 8
    EXPECT_FLOAT_EQ(Camera.CamYaw, 0.2f);
    for (int tick = 0; tick < 500; ++tick)
        Place();
    EXPECT_NEAR(Camera.CamX, 270, 0.01);
    EXPECT_NEAR(Camera.CamY, 90, 0.01);
    EXPECT_NEAR(Camera.CamZ, 321, 0.01);
    EXPECT_NEAR(Camera.CamPitch, -0.6, 1e-3);
}

TEST_F(ViewTest, ViewSevenLeavesTheCameraAndMovesTheArrow)
{
    Camera.View = 7;
    Camera.CamX = 3;
    Place();
    EXPECT_EQ(Camera.CamX, 3);
    EXPECT_EQ(Camera.Zoom, 0);
    EXPECT_FLOAT_EQ(Arrow().X, 10);
    EXPECT_FLOAT_EQ(Arrow().Y, 11);
}

TEST_F(ViewTest, OtherViewsTouchNothing)
{
    for (const std::int16_t view : {std::int16_t{8}, std::int16_t{-1}, std::int16_t{32767}})
    {
        Camera.View = view;
        Camera.CamX = 3;
        Place();
        EXPECT_EQ(Camera.CamX, 3);
        EXPECT_EQ(Arrow().Y, 0);
    }
}

TEST_F(ViewTest, ArrowPointsAtTheNextCheckpoint)
{
    Camera.View = 7;
    Place(); // the checkpoint lies 100 units to the right
    EXPECT_FLOAT_EQ(Arrow().AngleA, -1.570796f);
    Race.Map.Checkpoints.Items[0] = {10, 0, 0, 5};
    Place(); // behind
    EXPECT_NEAR(std::abs(Arrow().AngleA), 3.141592, 1e-5);
}

TEST_F(ViewTest, ArrowKeepsItsAngleOnTheCheckpointAndWithoutOne)
{
    Camera.View = 7;
    Arrow().AngleA = 0.7f;
    Race.Map.Checkpoints.Items[0] = {10, 0, 40, 5};
    Place();
    EXPECT_EQ(Arrow().AngleA, 0.7f);
    Race.Players[0].NextCheckpoint = 5;
    Place();
    EXPECT_EQ(Arrow().AngleA, 0.7f);
    EXPECT_FLOAT_EQ(Arrow().Y, 11);
}

TEST_F(ViewTest, FromInsideTheArrowStandsAhead)
{
    Camera.View = 1;
    Place();
    EXPECT_FLOAT_EQ(Arrow().X, 10);
    EXPECT_FLOAT_EQ(Arrow().Y, 5);
    EXPECT_FLOAT_EQ(Arrow().Z, 52);
}

TEST_F(ViewTest, YawTurnsTheShortWayRound)
{
    Camera.CamYaw = 3;
    shell::TurnYaw(Camera, -3, 4);
    EXPECT_NEAR(Camera.CamYaw, 3.0708, 1e-4); // 3 + (-3 + 6.283184 - 3) / 4
    Camera.CamYaw = -3;
    shell::TurnYaw(Camera, 3, 4);
    EXPECT_NEAR(Camera.CamYaw, 3.283184 - 0.283184 / 4, 1e-4);
}

TEST_F(ViewTest, MissingCarOrArrowIsPassedOver)
{
    Camera.ViewPlayer = 4;
    Camera.CamX = 3;
    Place();
    EXPECT_EQ(Camera.CamX, 3);
    Camera.ViewPlayer = 0;
    shell::PlaceView(Camera, Scene, Race, Keys, -1);
    EXPECT_NE(Camera.CamX, 3);
    Race.Players[0].Obj = 77;
    Place();
    EXPECT_EQ(Arrow().Y, 0);
}
}
