// SPDX-License-Identifier: Zlib
// The order of a step of the simulation.
#include "base/Math.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
struct Announced final : world::FinishSink
{
    std::vector<std::string> Messages;
    void Finished(const std::string& message) override { Messages.push_back(message); }
};

struct Tick : testing::Test
{
    support::World World;
    Announced Finish;

    void StepAt(std::int32_t time)
    {
        World.Race.GameTime = time;
        world::Simulation sim = World.Sim();
        world::GameTick(sim, Finish);
    }
    world::Player& Car(std::int32_t index) { return World.Player(index); }
};

TEST_F(Tick, TheFinishAnnouncesThePlaceFromBeforeTheStep)
{
    World.SetCheckpoints({{0, 0, 0, 5}, {0, 0, 50, 5}});
    World.AddCar(0, 0);
    World.AddCar(100, 0);
    World.Race.Laps = 0;
    Car(1).Passed = 1;
    StepAt(0); // in it the user passes a checkpoint and comes level
    EXPECT_EQ(Car(0).Passed, 1);
    EXPECT_EQ(Finish.Messages, std::vector<std::string>{"Sei arrivato secondo"});
}

TEST_F(Tick, TheTrophyFloatsFromTheStepAfterTheFinish)
{
    World.Assets.CupObj = World.AddBall(500, 500, 1, 1);
    World.SetCheckpoints({{0, 0, 200, 5}});
    World.AddCar(0, 0);
    World.Race.Laps = 0;
    const render::Obj& trophy = World.Object(World.Assets.CupObj);
    StepAt(0);
    EXPECT_EQ(trophy.Visible, 1);
    EXPECT_EQ(trophy.X, 500);
    StepAt(25);
    EXPECT_FLOAT_EQ(trophy.X, static_cast<float>(World.Camera.CamX - 5 * base::Sin(World.Camera.CamYaw + 0.4)));
}

TEST_F(Tick, CarsDriveFromTheReleaseOn)
{
    World.AddCar(0, 0);
    World.AddCar(100, 0);
    Car(0).Speed = Car(1).Speed = 1;
    StepAt(world::ReleaseTime - 1);
    EXPECT_EQ(World.Object(0).Z, 0);
    EXPECT_EQ(World.Object(1).Z, 0);
    StepAt(world::ReleaseTime);
    EXPECT_EQ(World.Object(0).Z, 0.5f);
    EXPECT_EQ(World.Object(1).Z, 0.5f);
}

TEST_F(Tick, CollisionsComeBeforeTheDriving)
{
    World.AddCar(0, 0);
    World.AddBall(0, 2.1f, 1, 1); // out of reach until the car has moved
    Car(0).Speed = 1;
    StepAt(world::ReleaseTime);
    EXPECT_EQ(Car(0).Damage, 0);
    EXPECT_EQ(World.Object(0).Z, 0.5f);
    StepAt(world::ReleaseTime);
    EXPECT_GT(Car(0).Damage, 0);
}

TEST_F(Tick, TheDamageOfACollisionSmokesInTheSameStep)
{
    World.MakePictures();
    World.AddCar(0, 0);
    World.AddBall(0, 1, 1, 5);
    Car(0).Speed = 10;
    StepAt(500);
    EXPECT_GT(Car(0).Damage, 1);
    ASSERT_EQ(World.Scene.Particles.size(), Car(0).Damage < 7 ? 1u : 2u);
    const render::Sprite3D& sprite = World.Scene.Sprites.At(World.Scene.Particles[0].Sprite);
    EXPECT_GT(sprite.Y, Car(0).Damage < 7 ? 1.0f : 0.8f); // and has risen by a step
}

TEST_F(Tick, TheWaterSlowsACarBeforeItDrives)
{
    World.Race.Map.Water.Items = {{0, 0, 0, 3}};
    World.AddCar(0, 0);
    Car(0).Speed = 1;
    StepAt(world::ReleaseTime);
    EXPECT_EQ(World.Object(0).Z, static_cast<float>(static_cast<double>(0.94f) / 2));
}

TEST_F(Tick, TheShakeOfACollisionFadesInTheSameStepAndOnlyWithTheWebcam)
{
    World.AddCar(0, 0);
    World.AddBall(0, 1, 1, 5);
    Car(0).Speed = 10;
    support::World with = World;
    with.WebcamOn = true;
    with.Tick();
    EXPECT_FLOAT_EQ(with.Shake, 4 * 0.96f);
    World.Shake = 2;
    StepAt(0);
    EXPECT_EQ(World.Shake, 2);
}

TEST_F(Tick, ThePlainStepIsTheSame)
{
    for (int n = 0; n < 12; ++n)
        World.AddCar(static_cast<float>(n % 4), static_cast<float>(n) / 4.0f, static_cast<float>(n) / 8.0f);
    for (world::Player& player : World.Race.Players)
        player.Speed = 2;
    World.Race.GameTime = world::ReleaseTime;
    support::World plain = World;
    for (int tick = 0; tick < 20; ++tick)
    {
        World.Tick();
        plain.Tick(world::GameTickPlain);
    }
    for (std::int16_t car = 0; car < 12; ++car)
    {
        EXPECT_EQ(World.Object(car).X, plain.Object(car).X);
        EXPECT_EQ(World.Player(car).Damage, plain.Player(car).Damage);
    }
    EXPECT_GT(World.Player(5).Damage, 0);
}
}
