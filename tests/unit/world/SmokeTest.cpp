// SPDX-License-Identifier: Zlib
#include "render/Effects.h"
#include "tests/support/World.h"
#include "world/Particles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{
// One car at (10, 1, 20), heading 0.5, with all pictures; the clock stands at 1000.
struct Smoke : testing::Test
{
    support::World World;
    void SetUp() override
    {
        World.MakePictures();
        World.AddCar(10, 20, 0.5f);
        World.Object(0).Y = 1.0f;
        World.Race.GameTime = 1000;
    }
    world::Player& Car() { return World.Player(0); }
    void Tick()
    {
        world::Simulation sim = World.Sim();
        world::DamageSmoke(sim);
    }
    const render::Sprite3D& Sprite(std::size_t particle)
    {
        return World.Scene.Sprites.At(World.Scene.Particles.at(particle).Sprite);
    }
};
}

TEST_F(Smoke, DamageOfExactlyOneSendsUpNothing)
{
    Car().Damage = 1.0f;
    Tick();
    EXPECT_EQ(World.Scene.ParticleCount, 0);
}

TEST_F(Smoke, ASmokeParticleIsBornAndAdvancesInTheSameTick)
{
    Car().Damage = 2.0f;
    Car().Speed = -1.0f;
    Tick(); // size 8, s 2
    ASSERT_EQ(World.Scene.ParticleCount, 1);
    EXPECT_EQ(World.Scene.Particles[0].Kind, 1);
    EXPECT_EQ(World.Scene.Particles[0].Life, 7);
    // Born at (10 - sin 0.5, 2, 20 + cos 0.5), drifted by 0.06 each way, grown by 1.06, paled by 0.95.
    EXPECT_FLOAT_EQ(Sprite(0).X, 9.520574f + 0.06f);
    EXPECT_FLOAT_EQ(Sprite(0).Y, 2.06f);
    EXPECT_FLOAT_EQ(Sprite(0).Z, 20.877583f + 0.06f);
    EXPECT_FLOAT_EQ(Sprite(0).Scale, 0.0318f);
    EXPECT_FLOAT_EQ(Sprite(0).Alpha, 0.55f * 0.95f); // 8 / 80 / 2 + 0.5
    EXPECT_EQ(Sprite(0).Pixels, World.Assets.Smoke);
    EXPECT_EQ(Car().NextSmoke, 1035); // 70 / 2
}

TEST_F(Smoke, TheLifeOfSmokeIsFourTicksADamageAndTwentyAtMost)
{
    for (const auto& [damage, life] : {std::pair{1.5f, 6}, {5.0f, 20}, {6.0f, 20}, {6.99f, 20}})
    {
        World.Scene.Particles.clear();
        World.Scene.ParticleCount = 0;
        Car().Damage = damage;
        Car().NextSmoke = 0;
        Tick();
        ASSERT_EQ(World.Scene.ParticleCount, 1);
        EXPECT_EQ(World.Scene.Particles[0].Life, life - 1) << damage;
        EXPECT_EQ(World.Scene.Particles[0].Kind, 1);
    }
}

TEST_F(Smoke, FromSevenOnItBurnsInTwoColours)
{
    Car().Damage = 7.0f;
    Car().Speed = 1.0f;
    Tick();
    ASSERT_EQ(World.Scene.ParticleCount, 2);
    for (std::size_t flame = 0; flame < 2; ++flame)
    {
        EXPECT_EQ(World.Scene.Particles[flame].Kind, 3);
        EXPECT_EQ(World.Scene.Particles[flame].Life, 24);
        EXPECT_FLOAT_EQ(Sprite(flame).X, 9.520574f + 0.03f);
        EXPECT_FLOAT_EQ(Sprite(flame).Y, 1.8f + 0.04f);
        EXPECT_FLOAT_EQ(Sprite(flame).Alpha, 0.35f); // 0.7 / 2
    }
    EXPECT_EQ(Sprite(0).Pixels, World.Assets.FireRed);
    EXPECT_FLOAT_EQ(Sprite(0).Scale, 0.04f * 0.92f);
    EXPECT_EQ(Sprite(1).Pixels, World.Assets.FireYellow);
    EXPECT_FLOAT_EQ(Sprite(1).Scale, 0.03f * 0.92f);
    EXPECT_EQ(Car().NextSmoke, 1070); // 140 / 2
}

TEST_F(Smoke, TheNextSpawnWaitsUntilItsTimeIsPast)
{
    Car().Damage = 2.0f;
    Car().NextSmoke = 1000;
    Tick();
    EXPECT_EQ(World.Scene.ParticleCount, 0);
    World.Race.GameTime = 1001;
    Tick();
    EXPECT_EQ(World.Scene.ParticleCount, 1);
    EXPECT_EQ(Car().NextSmoke, 1071);
}

TEST_F(Smoke, LowerQualityWaitsLonger)
{
    Car().Damage = 2.0f;
    World.EffQuality = 0.3f;
    Tick();
    EXPECT_EQ(Car().NextSmoke, 1233); // 70 / 0.3 is 233.3
}

TEST_F(Smoke, WithoutEffectsNothingIsBornButTheOldOnesAge)
{
    Car().Damage = 2.0f;
    Tick();
    World.EffQuality = 0.0f;
    World.Race.GameTime = 5000;
    for (int tick = 0; tick < 6; ++tick)
        Tick();
    EXPECT_EQ(World.Scene.ParticleCount, 1);
    Tick();
    EXPECT_EQ(World.Scene.ParticleCount, 0);
    EXPECT_LT(World.Scene.Particles[0].Life, 0);
}

TEST_F(Smoke, SmokePalesByATwentiethEveryTick)
{
    render::AddParticle(World.Scene, 100, render::Smoke,
                        {.X = 0, .Y = 0, .Z = 0, .Scale = 1, .Alpha = 1, .Pixels = World.Assets.Smoke});
    for (int tick = 0; tick < 20; ++tick)
        Tick();
    EXPECT_NEAR(Sprite(0).Alpha, 0.3584859f, 1e-6f);
}

TEST_F(Smoke, EveryCarHasItsOwnTime)
{
    World.AddCar(50, 50);
    Car().Damage = 2.0f;
    World.Player(1).Damage = 3.0f;
    World.Player(1).NextSmoke = 2000;
    Tick();
    EXPECT_EQ(World.Scene.ParticleCount, 1);
    World.Race.GameTime = 2001;
    Tick();
    EXPECT_EQ(World.Scene.ParticleCount, 3);
}

TEST_F(Smoke, OddNumbersDoNoHarm)
{
    for (const float odd : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), 3e38f})
    {
        Car().NextSmoke = 0;
        Car().Damage = odd;
        Car().Speed = odd;
        Tick();
    }
    Car().Damage = 2.0f;
    Car().Speed = 0.0f;
    Car().NextSmoke = 0;
    World.EffQuality = 1e-30f;
    Tick();
    EXPECT_EQ(Car().NextSmoke, std::numeric_limits<std::int32_t>::max());
    Car().NextSmoke = 0;
    World.EffQuality = 1.0f;
    World.Race.GameTime = std::numeric_limits<std::int32_t>::max();
    Tick();
    EXPECT_EQ(Car().NextSmoke, std::numeric_limits<std::int32_t>::max());
    Car().Obj = 1234;
    Car().NextSmoke = 0;
    Tick();
}

TEST_F(Smoke, AGreatManySpritesTakeNoMore)
{
    Car().Damage = 2.0f;
    World.Scene.Sprites.Count = 16384;
    Tick();
    EXPECT_EQ(World.Scene.ParticleCount, 0);
}

TEST_F(Smoke, WithoutAPictureThereIsNoParticle)
{
    World.Assets = {};
    Car().Damage = 2.0f;
    Tick();
    Car().Damage = 9.0f;
    Car().NextSmoke = 0;
    Tick();
    EXPECT_EQ(World.Scene.ParticleCount, 0);
}
