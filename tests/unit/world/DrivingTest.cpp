// SPDX-License-Identifier: Zlib
#include "world/Driving.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using world::EngineNote;
using world::Gear;
using world::SteerFactor;

namespace
{
// One user's car at (10, 10), heading along +z, on a ground of two texels a unit whose bytes are 100.
struct Driving : testing::Test
{
    support::World World;
    void SetUp() override
    {
        World.AddCar(10, 10);
        World.SetGround(64, 64, 2, 100);
    }
    world::Player& Car() { return World.Player(0); }
    render::Obj& Body() { return World.Object(Car().Obj); }
    void Drive()
    {
        world::Simulation sim = World.Sim();
        world::UserDrive(sim);
    }
    // The texel under the side of the car that lies toward +x.
    int Mark() { return World.Texel(22, 20); }
};
}

TEST(SteerFactor, PeaksAtOneAndMirrorsInReverse)
{
    EXPECT_DOUBLE_EQ(SteerFactor(0), 0.0);
    EXPECT_DOUBLE_EQ(SteerFactor(0.5), 2.0 / 3.0);
    EXPECT_DOUBLE_EQ(SteerFactor(1), 1.0);
    EXPECT_DOUBLE_EQ(SteerFactor(3), 0.5);
    EXPECT_DOUBLE_EQ(SteerFactor(-0.5), -2.0 / 3.0);
    EXPECT_DOUBLE_EQ(SteerFactor(-1), -1.0);
    EXPECT_DOUBLE_EQ(SteerFactor(-3), -0.5);
}

TEST(Gear, ChangesAtTheSinglePrecisionBreakpoints)
{
    const float below = std::nextafter(0.55f, 0.0f);
    EXPECT_STREQ(Gear(-0.01f), "R");
    EXPECT_STREQ(Gear(0.0f), "N");
    EXPECT_STREQ(Gear(-0.0f), "N");
    EXPECT_STREQ(Gear(0.01f), "1");
    EXPECT_STREQ(Gear(below), "1");
    EXPECT_STREQ(Gear(0.55f), "2");
    EXPECT_STREQ(Gear(1.11f), "3");
    EXPECT_STREQ(Gear(1.94f), "4");
    EXPECT_STREQ(Gear(3.06f), "5");
    EXPECT_STREQ(Gear(4.4399f), "5");
    EXPECT_STREQ(Gear(4.44f), "6");
    EXPECT_STREQ(Gear(1e9f), "6");
}

TEST(EngineNote, ClimbsWithinEachGear)
{
    EXPECT_DOUBLE_EQ(EngineNote(-1.0f), 0.5);
    EXPECT_DOUBLE_EQ(EngineNote(0.0f), 0.2);
    EXPECT_DOUBLE_EQ(EngineNote(0.5f), 0.35);
    EXPECT_EQ(EngineNote(0.55f), (0.55f - 0.55) * 0.2 + 0.3);
    EXPECT_NEAR(EngineNote(1.0f), 0.39, 1e-7);
    EXPECT_EQ(EngineNote(1.11f), (1.11f - 1.11) * 0.2 + 0.3);
    EXPECT_EQ(EngineNote(4.44f), (4.44f - 4.44) * 0.2 + 0.3);
    EXPECT_NEAR(EngineNote(6.0f), 0.612, 1e-7);
}

// Each gear falls back to 0.3 at the speed where the display changes as well.
TEST(EngineNote, FallsAtEveryBreakpoint)
{
    struct Shift
    {
        float At;
        double Before, After;
    };
    for (const Shift& shift : {Shift{0.0f, 0.2, 0.2}, Shift{0.55f, 0.365, 0.3}, Shift{1.11f, 0.412, 0.3},
                               Shift{1.94f, 0.466, 0.3}, Shift{3.06f, 0.524, 0.3}, Shift{4.44f, 0.576, 0.3}})
    {
        EXPECT_NEAR(EngineNote(std::nextafter(shift.At, -1.0f)), shift.Before, 1e-6) << shift.At;
        EXPECT_NEAR(EngineNote(shift.At), shift.After, 1e-6) << shift.At;
    }
    EXPECT_NEAR(EngineNote(-2.5f), 0.95, 1e-6);
    EXPECT_NEAR(EngineNote(0.25f), 0.275, 1e-6);
    EXPECT_NEAR(EngineNote(0.8f), 0.35, 1e-6);
    EXPECT_NEAR(EngineNote(1.5f), 0.378, 1e-6);
    EXPECT_NEAR(EngineNote(2.5f), 0.412, 1e-6);
    EXPECT_NEAR(EngineNote(4.0f), 0.488, 1e-6);
    EXPECT_NEAR(EngineNote(5.0f), 0.412, 1e-6);
}

TEST_F(Driving, DamageOfOneHalvesAllButSteeringAndFriction)
{
    Car().Damage = 1.0f;
    world::ApplyDamage(Car());
    EXPECT_EQ(Car().CurMaxSpeed, 2.0f);
    EXPECT_EQ(Car().CurMaxSpeedR, 0.5f);
    EXPECT_EQ(Car().CurAcceleration, 0.125f);
    EXPECT_EQ(Car().CurBrake, 0.25f);
    EXPECT_EQ(Car().CurWRS, 0.0625f);
    EXPECT_EQ(Car().CurDeceleration, 0.03125f);
}

TEST_F(Driving, AcceleratingFromRestSpinsTheWheelsAndMoves)
{
    World.Keys.KeyAccel = -1;
    Drive();
    EXPECT_EQ(Car().Speed, 0.25f - 0.03125f);
    EXPECT_EQ(Body().X, 10.0f);
    EXPECT_EQ(Body().Z, 10.125f); // half of 0.25
    EXPECT_EQ(Mark(), 70);
    EXPECT_EQ(World.Texel(18, 20), 70);
    EXPECT_EQ(World.Texel(20, 20), 100);
    Drive(); // 0.46875 is too fast for wheel spin
    EXPECT_EQ(Car().Speed, 0.4375f);
    EXPECT_EQ(Mark(), 70);
}

TEST_F(Driving, AccelerationEndsAtTheTopSpeed)
{
    World.Keys.KeyAccel = -1;
    Car().Speed = 4.0f;
    Drive();
    EXPECT_EQ(Car().Speed, 4.0f - 0.03125f);
    Drive(); // below the top speed a whole step is taken, also beyond it
    EXPECT_EQ(Car().Speed, 4.21875f - 0.03125f);
}

TEST_F(Driving, AWeakEngineLeavesNoMarks)
{
    World.Keys.KeyAccel = -1;
    Car().CurAcceleration = 0.005f;
    Drive();
    EXPECT_EQ(Mark(), 100);
}

TEST_F(Driving, AcceleratingWhileRollingBackwardsBrakes)
{
    World.Keys.KeyAccel = -1;
    Car().Speed = -1.0f;
    Drive();
    EXPECT_EQ(Car().Speed, -0.5f + 0.03125f);
    EXPECT_EQ(Mark(), 70); // still faster than 0.4
    Car().Speed = -0.5f;
    Drive();
    EXPECT_EQ(Car().Speed, 0.0f);
}

TEST_F(Driving, AcceleratorComesBeforeTheBrake)
{
    World.Keys.KeyAccel = World.Keys.KeyBrake = -1;
    Drive();
    EXPECT_GT(Car().Speed, 0.0f);
}

TEST_F(Driving, BrakingToAStopAndHoldingReverses)
{
    World.Keys.KeyBrake = -1;
    Car().Speed = 0.75f;
    Drive();
    EXPECT_EQ(Car().Speed, 0.25f - 0.03125f);
    Drive();
    EXPECT_EQ(Car().Speed, 0.0f);
    Drive();
    EXPECT_EQ(Car().Speed, -0.25f + 0.03125f); // the forward acceleration
    for (int tick = 0; tick < 20; ++tick)
        Drive();
    // The last step is taken from above -1, so the speed ends within one step of it.
    EXPECT_LE(Car().Speed, -1.0f + 0.03125f);
    EXPECT_GE(Car().Speed, -1.25f + 0.03125f);
}

TEST_F(Driving, HardBrakingMarksTheGround)
{
    World.Keys.KeyBrake = -1;
    Car().Speed = 3.0f;
    Drive();
    EXPECT_EQ(Mark(), 100); // 2.5 is not above 2.5
    Body().Z = 10.0f;
    Car().Speed = 3.25f;
    Drive();
    EXPECT_EQ(Mark(), 70);
}

TEST_F(Driving, SteeringAtRestDoesNotTurn)
{
    World.Keys.KeyLeft = -1;
    Drive();
    EXPECT_EQ(Body().AngleA, 0.0f);
    EXPECT_EQ(World.Camera.CamSway, 0.01f);
}

TEST_F(Driving, LeftAndRightAreMirrorImages)
{
    World.Keys.KeyLeft = -1;
    Car().Speed = 1.0f;
    Drive();
    EXPECT_EQ(Body().AngleA, 0.0625f);
    EXPECT_EQ(World.Camera.CamSway, 0.01f);
    EXPECT_FLOAT_EQ(Car().Speed, 0.99f - 0.03125f); // the drag of the bend
    EXPECT_FLOAT_EQ(Body().X, 10.0f - 0.03091736f); // 0.99 sin 0.0625 / 2
    EXPECT_FLOAT_EQ(Body().Z, 10.494033f);          // 0.99 cos 0.0625 / 2

    World.Keys = {};
    World.Keys.KeyRight = -1;
    World.Camera.CamSway = 0.0f;
    Body() = render::Obj{};
    Car().Speed = 1.0f;
    Drive();
    EXPECT_EQ(Body().AngleA, -0.0625f);
    EXPECT_EQ(World.Camera.CamSway, -0.01f);
    EXPECT_FLOAT_EQ(Body().X, 0.03091736f);
}

TEST_F(Driving, LeftComesBeforeRight)
{
    World.Keys.KeyLeft = World.Keys.KeyRight = -1;
    Car().Speed = 1.0f;
    Drive();
    EXPECT_EQ(Body().AngleA, 0.0625f);
}

TEST_F(Driving, InReverseTheTurnIsInvertedAndTheHeadDoesNotLean)
{
    World.Keys.KeyLeft = -1;
    Car().Speed = -1.0f;
    Drive();
    EXPECT_EQ(Body().AngleA, -0.0625f);
    EXPECT_EQ(World.Camera.CamSway, 0.0f);
}

TEST_F(Driving, TheLeanEndsAtItsLimitAndFadesStraightOn)
{
    World.Keys.KeyLeft = -1;
    World.Camera.CamSway = 0.36f;
    Drive();
    EXPECT_EQ(World.Camera.CamSway, 0.36f);
    World.Keys.KeyLeft = 0;
    Drive();
    EXPECT_FLOAT_EQ(World.Camera.CamSway, 0.288f);
    World.Keys.KeyRight = -1;
    World.Camera.CamSway = -0.36f;
    Drive();
    EXPECT_EQ(World.Camera.CamSway, -0.36f);
}

TEST_F(Driving, FastCornersMarkTheGroundLightly)
{
    World.Keys.KeyLeft = -1;
    Car().Speed = 2.7f;
    Car().CurWRS = 0.0f;
    Drive(); // 2.7 as a single lies above 2.7
    EXPECT_EQ(Mark(), 90);
    Body().Z = 10.0f;
    Car().Speed = 2.5f;
    Drive();
    EXPECT_EQ(Mark(), 90);
}

TEST_F(Driving, TheHandbrakeTurnsTwiceAndBrakes)
{
    World.Keys.KeyLeft = World.Keys.KeyHandbrake = -1;
    Car().Speed = 1.0f;
    Car().CurDeceleration = 0.0f;
    Drive();
    EXPECT_EQ(Body().AngleA, 0.125f);
    EXPECT_FLOAT_EQ(Car().Speed, 0.875f * 0.99f);
    EXPECT_EQ(World.Texel(22, 20), 70);
    Car().Speed = 0.125f; // not above a quarter of the brake
    Drive();
    EXPECT_EQ(Car().Speed, 0.0f);
}

TEST_F(Driving, TheHandbrakeInReverseBrakesTowardZero)
{
    World.Keys.KeyHandbrake = -1;
    Car().Speed = -1.0f;
    Car().CurDeceleration = 0.0f;
    Drive();
    EXPECT_EQ(Car().Speed, -0.875f);
}

TEST_F(Driving, TheHandbrakeStraightOnFishtails)
{
    World.Keys.KeyHandbrake = -1;
    Car().Speed = 1.0f;
    World.Random.Script = {0.75, 0.25, 0.5};
    Drive();
    EXPECT_EQ(Body().AngleA, 0.0625f);
    Car().Speed = 1.0f;
    Drive();
    EXPECT_EQ(Body().AngleA, 0.0f);
    Car().Speed = 1.0f;
    Drive(); // exactly one half has no side
    EXPECT_EQ(Body().AngleA, 0.0f);
}

TEST_F(Driving, StraightOnWithoutHandbrakeDrawsNoRandomNumber)
{
    World.Random.ScriptNext = 0;
    Drive();
    EXPECT_EQ(World.Random.ScriptNext, 0u);
}

TEST_F(Driving, FrictionEndsAtRest)
{
    Car().Speed = 0.03125f;
    Drive();
    EXPECT_EQ(Car().Speed, 0.0f);
    EXPECT_EQ(Body().Z, 10.015625f);
    Car().Speed = 0.015625f;
    Drive();
    EXPECT_EQ(Car().Speed, 0.0f);
    Car().Speed = -1.0f;
    Drive();
    EXPECT_EQ(Car().Speed, -0.96875f);
}

TEST_F(Driving, TheCarMovesAlongItsHeading)
{
    Body().AngleA = 1.570796f;
    Car().Speed = 2.0f;
    Drive();
    EXPECT_FLOAT_EQ(Body().X, 9.0f);
    EXPECT_NEAR(Body().Z, 10.0f, 1e-6f);
}

TEST_F(Driving, TheComputersCarIsNotTheUsers)
{
    World.Keys.KeyAccel = -1;
    Car().Control = 1;
    Drive();
    EXPECT_EQ(Car().Speed, 0.0f);
}

TEST_F(Driving, IndicesOutOfRangeDriveNothing)
{
    World.Keys.KeyAccel = World.Keys.KeyLeft = -1;
    for (const std::int16_t user : std::initializer_list<std::int16_t>{-1, 1, 32767, -32768})
    {
        World.Race.UserPlayer = user;
        Drive();
    }
    World.Race.UserPlayer = 0;
    for (const std::int16_t object : std::initializer_list<std::int16_t>{-1, 1, 32767})
    {
        Car().Obj = object;
        Drive();
        world::Simulation sim = World.Sim();
        world::MoveCar(sim, Car());
        world::TyreMarks(sim, Car(), 0.5);
    }
    EXPECT_EQ(Car().Speed, 0.0f);
}

TEST_F(Driving, NoNumbersDoNoHarm)
{
    for (const float odd : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), 3e38f})
        for (const base::Flag key : {base::True, base::False})
        {
            World.Keys.KeyLeft = key;
            World.Keys.KeyHandbrake = World.Keys.KeyBrake = -1;
            Car().Speed = odd;
            Drive();
            Body().X = Body().AngleA = odd;
            Drive();
        }
    EXPECT_EQ(Mark(), 100);
}
