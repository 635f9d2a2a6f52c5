// SPDX-License-Identifier: Zlib
#include "world/ComputerDrive.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{
// A computer's car at the origin heading along +z; checkpoint 0 lies straight ahead, checkpoint 1 to its right.
struct ComputerDrive : testing::Test
{
    support::World World;
    void SetUp() override
    {
        World.AddCar(0, 0);
        Car().Control = 1;
        World.SetCheckpoints({{0, 0, 100, 5}, {50, 0, 100, 5}});
        World.SetGround(64, 64, 1, 100);
    }
    world::Player& Car() { return World.Player(0); }
    render::Obj& Body() { return World.Object(0); }
    void Drive()
    {
        world::Simulation sim = World.Sim();
        world::ComputerDrive(sim);
    }
};
}

TEST_F(ComputerDrive, StartsStraightAhead)
{
    Body().X = 20.0f;
    World.SetCheckpoints({{20, 0, 100, 5}, {20, 0, 200, 5}});
    Drive();
    // No turn, so no friction of a turn: 0.25, moved by half of it, then rolling friction.
    EXPECT_EQ(Car().Speed, 0.25f - 0.03125f);
    EXPECT_EQ(Body().Z, 0.125f);
    EXPECT_EQ(Body().AngleA, 0.0f);
    EXPECT_EQ(World.Texel(21, 0), 70); // wheel spin
    EXPECT_EQ(World.Texel(19, 0), 70);
}

TEST_F(ComputerDrive, TheUsersCarIsLeftAlone)
{
    Car().Control = 0;
    Drive();
    EXPECT_EQ(Car().Speed, 0.0f);
}

TEST_F(ComputerDrive, EveryNonZeroControlIsTheComputer)
{
    Car().Control = 200;
    Drive();
    EXPECT_GT(Car().Speed, 0.0f);
}

TEST_F(ComputerDrive, TurnsTowardTheTargetWithoutOvershooting)
{
    Car().Speed = 0.5f;
    Car().CurAcceleration = 0.0f;
    World.SetCheckpoints({{-100, 0, 100, 5}, {-100, 0, 200, 5}}); // an eighth of a turn to the left
    Drive();
    // One step of SteerFactor(0.5) x 0.0625, paid for with a step of friction.
    EXPECT_FLOAT_EQ(Body().AngleA, 2.0f / 3.0f * 0.0625f);
    EXPECT_EQ(Car().Speed, 0.5f - 2 * 0.03125f);

    World.SetCheckpoints({{1, 0, 100, 5}, {1, 0, 200, 5}});
    Body() = render::Obj{};
    Car().Speed = 0.5f;
    Drive();
    EXPECT_FLOAT_EQ(Body().AngleA, -0.01f); // in whole milliradians, and not farther than needed
}

TEST_F(ComputerDrive, SlowerThanItsFrictionItStandsStillBeforeATurn)
{
    Car().Speed = 0.015625f;
    Car().CurAcceleration = 0.0f;
    World.SetCheckpoints({{-100, 0, 100, 5}, {-100, 0, 200, 5}});
    Drive();
    EXPECT_EQ(Car().Speed, 0.0f);
    EXPECT_EQ(Body().AngleA, 0.0f);
    EXPECT_EQ(Body().Z, 0.0f); // it did not move at all
}

TEST_F(ComputerDrive, SlowerThanItsFrictionItStillRollsStraightOn)
{
    Car().Speed = 0.015625f;
    Car().CurAcceleration = 0.0f;
    Drive();
    EXPECT_EQ(Body().Z, 0.0078125f);
    EXPECT_EQ(Car().Speed, 0.0f);
}

TEST_F(ComputerDrive, ASharpFollowingTurnBrakesInTime)
{
    // The next leg turns by a right angle, 1.571: at speed 2 that takes 8 x 3 x 1.571, 37.7 units.
    Car().Speed = 2.0f;
    Body().Z = 62.0f; // 38 to go
    Drive();
    EXPECT_FLOAT_EQ(Car().Speed, 2.25f - 0.03125f);
    Body().Z = 62.5f; // 37.5 to go
    Car().Speed = 2.0f;
    Drive();
    EXPECT_FLOAT_EQ(Car().Speed, 1.5f - 0.03125f);
}

TEST_F(ComputerDrive, ADaringPaceBrakesLater)
{
    Car().Speed = 2.0f;
    Car().Pace = 1.25f;
    Body().Z = 69.0f; // 31 to go count as 38.75
    Drive();
    EXPECT_GT(Car().Speed, 2.0f);
    Car().Pace = 1.0f;
    Car().Speed = 2.0f;
    Body().Z = 69.0f;
    Drive();
    EXPECT_LT(Car().Speed, 2.0f);
}

TEST_F(ComputerDrive, BeingOffCourseBrakes)
{
    // 0.2 off at speed 2 needs 28 units.
    World.SetCheckpoints({{0, 0, 27, 5}, {0, 0, 200, 5}});
    Body().AngleA = -0.2f;
    Car().Speed = 2.0f;
    World.Player(0).CurWRS = 0.0f;
    Drive();
    EXPECT_LT(Car().Speed, 2.0f);
}

TEST_F(ComputerDrive, HardBrakingMarksTheGround)
{
    World.SetCheckpoints({{20, 0, 25, 5}, {100, 0, 25, 5}});
    Body().X = 20.0f;
    Body().Z = 20.0f;
    Car().Speed = 2.5f; // 2.0 after braking
    Drive();
    EXPECT_EQ(World.Texel(21, 20), 100);
    Body().Z = 20.0f;
    Car().Speed = 3.0f; // 2.5 after braking
    Drive();
    EXPECT_EQ(World.Texel(21, 20), 90);
}

TEST_F(ComputerDrive, TheTopSpeedEndsTheAcceleration)
{
    World.SetCheckpoints({{0, 0, 1000, 5}, {0, 0, 2000, 5}});
    Car().Speed = 4.0f;
    Drive();
    EXPECT_EQ(Car().Speed, 4.0f - 0.03125f);
    Car().Speed = 0.5f;
    Car().CurMaxSpeed = 0.25f;
    Drive();
    EXPECT_EQ(Car().Speed, 0.5f - 0.03125f);
}

TEST_F(ComputerDrive, OnItsTargetItOnlyRolls)
{
    Body().Z = 100.0f;
    Car().Speed = 1.0f;
    Drive();
    EXPECT_EQ(Body().Z, 100.5f);
    EXPECT_EQ(Car().Speed, 0.96875f);
    EXPECT_EQ(Body().AngleA, 0.0f);
}

TEST_F(ComputerDrive, CheckpointsAtOnePlaceTurnTheFollowingLegFromAngleZero)
{
    // h2 is then -AngleA: 0 when the car heads along +z, so that only the way to the target counts.
    World.SetCheckpoints({{0, 0, 10, 5}, {0, 0, 10, 5}});
    Car().Speed = 3.0f;
    Drive();
    EXPECT_GT(Car().Speed, 3.0f);
    Body() = render::Obj{};
    Body().AngleA = 1.0f;
    World.SetCheckpoints({{-8.4147f, 0, 5.4030f, 5}, {-8.4147f, 0, 5.4030f, 5}}); // straight ahead again
    Car().Speed = 2.0f;
    Drive(); // 8 x 3 x 1 is more than 10
    EXPECT_LT(Car().Speed, 2.0f);
}

TEST_F(ComputerDrive, AfterTheLastCheckpointComesTheFirst)
{
    // From (50, 100) the first lies to the left: the following turn is a right angle.
    Car().NextCheckpoint = 1;
    Body().X = 50.0f;
    Body().Z = 62.5f;
    Car().Speed = 2.0f;
    Drive();
    EXPECT_LT(Car().Speed, 2.0f);
}

TEST_F(ComputerDrive, WithoutATargetItOnlyRolls)
{
    for (const std::int16_t next : std::initializer_list<std::int16_t>{-1, 2, 32767})
    {
        Car().NextCheckpoint = next;
        Car().Speed = 1.0f;
        Drive();
        EXPECT_EQ(Car().Speed, 0.96875f);
    }
    World.SetCheckpoints({});
    Car().NextCheckpoint = 0;
    Car().Speed = 1.0f;
    Drive();
    EXPECT_EQ(Car().Speed, 0.96875f);
    Car().Obj = -5;
    Drive();
}

TEST_F(ComputerDrive, OddNumbersDoNoHarm)
{
    for (const float odd : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), 3e38f})
        for (float* field : {&Body().X, &Body().AngleA, &Car().Speed, &Car().CurWRS, &Car().Pace})
        {
            const float before = *field;
            *field = odd;
            Drive();
            Drive();
            Body() = render::Obj{};
            Car().Speed = 1.0f;
            *field = before;
        }
}
