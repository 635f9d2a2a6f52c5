// SPDX-License-Identifier: Zlib
#include "world/Zones.h"
#include "tests/support/World.h"
#include "world/Driving.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
// The user's car at (10, 10) inside one zone of radius 5, of the kind that the test chooses.
struct Zones : testing::Test
{
    support::World World;
    void SetUp() override { World.AddCar(10, 10); }
    world::Player& Car() { return World.Player(0); }
    void Add(world::TargetList& list, float radius = 5.0f)
    {
        list.Items.push_back({10, 99, 6, radius}); // the height does not count; 4 units away
    }
    void AddBox(float radius = 5.0f) { Add(World.Race.Map.Boxes, radius); }
    void AddGrass() { Add(World.Race.Map.Grass); }
    void AddWater() { Add(World.Race.Map.Water); }
    void Apply(std::int16_t player = 0)
    {
        world::Simulation sim = World.Sim();
        world::LearnZones(sim);
        world::ApplyZones(sim, player);
    }
};
}

TEST_F(Zones, RepairHappensOnlyAtRestInsideABox)
{
    AddBox();
    Car().Damage = 1.0f;
    Car().Speed = 0.001f;
    Apply();
    EXPECT_EQ(Car().Damage, 1.0f);
    EXPECT_FALSE(World.InBox);
    Car().Speed = 0.0f;
    Apply();
    EXPECT_EQ(Car().Damage, 0.95f);
    EXPECT_FLOAT_EQ(Car().CurMaxSpeed, 4.0f / 1.95f);
    EXPECT_TRUE(World.InBox);
}

TEST_F(Zones, RepairEndsAtZero)
{
    AddBox();
    Car().Damage = 0.03f;
    Apply();
    EXPECT_EQ(Car().Damage, 0.0f);
    EXPECT_EQ(Car().CurMaxSpeed, 4.0f);
    Apply();
    EXPECT_EQ(Car().Damage, 0.0f);
}

TEST_F(Zones, TheEdgeOfAZoneIsOutside)
{
    AddBox(4.0f);
    Car().Damage = 1.0f;
    Apply();
    EXPECT_EQ(Car().Damage, 1.0f);
}

TEST_F(Zones, TwoBoxesRepairOnce)
{
    AddBox();
    AddBox();
    Car().Damage = 1.0f;
    Apply();
    EXPECT_EQ(Car().Damage, 0.95f);
}

TEST_F(Zones, OnlyTheFollowedCarShowsTheIndicator)
{
    AddBox();
    World.AddCar(10, 10);
    World.Camera.ViewPlayer = 1;
    Apply(0);
    EXPECT_FALSE(World.InBox);
    Apply(1);
    EXPECT_TRUE(World.InBox);
    World.Player(1).Speed = 1.0f;
    Apply(1);
    EXPECT_FALSE(World.InBox);
}

TEST_F(Zones, GrassSlowsForwardMotionAboveOne)
{
    AddGrass();
    AddGrass(); // only the first zone counts
    Car().Speed = 2.0f;
    Apply();
    EXPECT_EQ(Car().Speed, 1.96f);
    Car().Speed = 1.0f;
    Apply();
    EXPECT_EQ(Car().Speed, 1.0f);
    Car().Speed = -2.0f;
    Apply();
    EXPECT_EQ(Car().Speed, -2.0f);
    EXPECT_EQ(Car().Damage, 0.0f);
}

TEST_F(Zones, WaterSlowsAndDamages)
{
    AddWater();
    AddWater();
    Car().Speed = 2.0f;
    Apply();
    EXPECT_EQ(Car().Speed, 1.88f);
    EXPECT_EQ(Car().Damage, 0.018f);
    EXPECT_FLOAT_EQ(Car().CurMaxSpeed, 4.0f / 1.018f);
    Car().Speed = -2.0f;
    Apply();
    EXPECT_EQ(Car().Speed, -2.0f);
    EXPECT_EQ(Car().Damage, 0.036f);
    Car().Speed = 0.2f; // as a single it lies above 0.2
    Apply();
    EXPECT_FLOAT_EQ(Car().Speed, 0.188f);
    Car().Speed = 0.19f;
    Apply();
    EXPECT_EQ(Car().Speed, 0.19f);
}

TEST_F(Zones, WaterSplashesBesideTheCar)
{
    AddWater();
    World.MakePictures();
    World.Object(0).Y = 2.0f;
    World.Object(0).AngleA = 0.5f;
    Car().Speed = 2.0f; // 1.88 after the water: 3 x 1.88 + 5 is 10.64
    Apply();
    ASSERT_EQ(World.Scene.ParticleCount, 1);
    const render::Particle& particle = World.Scene.Particles[0];
    EXPECT_EQ(particle.Life, 11);
    EXPECT_EQ(particle.Kind, 2);
    const render::Sprite3D& sprite = World.Scene.Sprites.At(particle.Sprite);
    EXPECT_FLOAT_EQ(sprite.X, 10.877583f); // cos 0.5
    EXPECT_FLOAT_EQ(sprite.Y, 2.2f);
    EXPECT_FLOAT_EQ(sprite.Z, 10.479426f); // sin 0.5
    EXPECT_EQ(sprite.Scale, 0.03f);
    EXPECT_EQ(sprite.Alpha, 0.6f);
    EXPECT_EQ(sprite.Pixels, World.Assets.Water);
}

TEST_F(Zones, NoSplashWhenSlowOrWithoutEffects)
{
    AddWater();
    World.MakePictures();
    Car().Speed = 0.1f;
    World.EffQuality = 0.0f;
    Apply();
    Car().Speed = 2.0f;
    Apply();
    World.EffQuality = 1.0f;
    Car().Speed = -2.0f;
    Apply();
    Car().Speed = 0.09f;
    Apply();
    EXPECT_EQ(World.Scene.ParticleCount, 0);
}

TEST_F(Zones, ASplashLivesAtMostAsLongAsACounterCanTell)
{
    AddWater();
    World.MakePictures();
    Car().Speed = 1e30f;
    Apply();
    ASSERT_EQ(World.Scene.ParticleCount, 1);
    EXPECT_EQ(World.Scene.Particles[0].Life, 32767);
}

TEST_F(Zones, PlayersAndObjectsOutOfRangeAreSkipped)
{
    AddBox();
    AddWater();
    for (const std::int16_t player : std::initializer_list<std::int16_t>{-1, 1, 32767})
        Apply(player);
    Car().Obj = 77;
    Apply();
    EXPECT_EQ(Car().Damage, 0.0f);
}

TEST_F(Zones, ACarThatIsNowhereIsInNoZone)
{
    AddWater();
    World.Object(0).X = std::numeric_limits<float>::quiet_NaN();
    Apply();
    EXPECT_EQ(Car().Damage, 0.0f);
}

TEST(TyreMarks, DarkenTheTexelsUnderBothSides)
{
    support::World world;
    world.AddCar(10, 10, 1.570796f); // heading along -x: its sides lie along z
    world.SetGround(32, 32, 1, 101);
    world::Simulation sim = world.Sim();
    world::TyreMarks(sim, world.Player(0), 0.7);
    EXPECT_EQ(world.Texel(10, 11), 71); // 70.7
    EXPECT_EQ(world.Texel(10, 9), 71);
    const std::uint8_t* texel = world.TexelAt(10, 11);
    EXPECT_EQ(texel[1], 71);
    EXPECT_EQ(texel[2], 71);
    world::TyreMarks(sim, world.Player(0), 0.9);
    EXPECT_EQ(world.Texel(10, 11), 64); // 63.9
    int marked = 0;
    for (int row = 0; row < 32; ++row)
        for (int column = 0; column < 32; ++column)
            marked += world.Texel(column, row) != 101 ? 1 : 0;
    EXPECT_EQ(marked, 2);
}

TEST(TyreMarks, RoundToTheNearestTexelTiesToEven)
{
    support::World world;
    world.AddCar(11.5f, 10);
    world.SetGround(32, 32, 1, 100);
    world::Simulation sim = world.Sim();
    world::TyreMarks(sim, world.Player(0), 0.5);
    EXPECT_EQ(world.Texel(12, 10), 50); // 12.5
    EXPECT_EQ(world.Texel(10, 10), 50); // 10.5
}

TEST(TyreMarks, OutsideTheGroundThereIsNothingToMark)
{
    support::World world;
    world.AddCar(0, 0);
    world.SetGround(4, 4, 1, 100);
    world::Simulation sim = world.Sim();
    for (const float x : {-1.6f, 4.6f, 1e30f, -1e30f, 2147483648.0f, float(INFINITY), float(NAN)})
    {
        world.Object(0).X = x;
        world::TyreMarks(sim, world.Player(0), 0.5);
        world.Object(0).X = 1.0f;
        world.Object(0).Z = x;
        world::TyreMarks(sim, world.Player(0), 0.5);
        world.Object(0).Z = 0.0f;
    }
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            EXPECT_EQ(world.Texel(column, row), 100);

    world.Scene.Ground = {}; // no ground at all
    world::TyreMarks(sim, world.Player(0), 0.5);
}
