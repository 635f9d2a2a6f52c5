// SPDX-License-Identifier: Zlib
#include "world/Collision.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{
// Every test holds for the fast walk and for the plain one.
struct Collision : testing::TestWithParam<void (*)(world::Simulation&)>
{
    support::World World;
    void Collide()
    {
        world::Simulation sim = World.Sim();
        GetParam()(sim);
    }
    // Gives an object's only sphere a link to point (i, j) of a new mesh with the undamaged points (10, 20, 40).
    void AddMesh(std::int16_t object, std::int16_t meshes)
    {
        render::Obj& body = World.Object(object);
        body.Mesh.resize(static_cast<std::size_t>(meshes));
        for (std::int16_t mesh = 0; mesh < meshes; ++mesh)
        {
            render::EditObjMesh(World.Scene, object, mesh, {2, 2}, 255, 0);
            for (int i = 0; i < 4; ++i)
                render::EditObjMeshPt(World.Scene, object, mesh, i / 2, i % 2, {10, 20, 40, 0, 0});
        }
        render::KeepUndamaged(World.Scene, object);
    }
};

// k of two cars that meet at an angle of half a radian: atan(0.25) / 1.570796.
constexpr double K = 0.15595829320094023;
// k of a car that meets what is four times as heavy: atan(4) / 1.570796.
constexpr double K4 = 0.8440419148431957;

INSTANTIATE_TEST_SUITE_P(Walk, Collision, testing::Values(&world::Collide, &world::CollidePlain),
                         [](const auto& walk) { return walk.index == 0 ? "Fast" : "Plain"; });
}

TEST_P(Collision, TwoCars)
{
    World.AddCar(0, 0, 0.5f);
    World.AddCar(1.5f, 0);
    World.Player(0).Speed = 2.0f;
    World.Player(1).Speed = 1.0f;
    Collide();
    EXPECT_FLOAT_EQ(World.Player(0).Damage, static_cast<float>(3.0 * K));
    EXPECT_FLOAT_EQ(World.Player(1).Damage, static_cast<float>(3.0 * K));
    EXPECT_FLOAT_EQ(World.Player(0).Speed, static_cast<float>(2.0 * (1.0 - K)));
    EXPECT_FLOAT_EQ(World.Player(1).Speed, static_cast<float>(1.0 - K));
    EXPECT_FLOAT_EQ(World.Player(0).CurMaxSpeed, static_cast<float>(4.0 / (3.0 * K + 1.0)));
    // Half a unit deep, four times: two units each.
    EXPECT_EQ(World.Object(0).X, -2.0f);
    EXPECT_EQ(World.Object(1).X, 3.5f);
    EXPECT_EQ(World.Object(0).Z, 0.0f);
    EXPECT_EQ(World.Object(0).AngleA, 0.25f);
    EXPECT_EQ(World.Object(1).AngleA, 0.25f);
    EXPECT_EQ(World.Object(0).AngleB, 0.0f); // cars are not knocked over
}

TEST_P(Collision, TwoCarsInLineDealNoDamage)
{
    World.AddCar(0, 0);
    World.AddCar(0, 1.5f);
    World.Player(0).Speed = 2.0f;
    Collide();
    EXPECT_EQ(World.Player(0).Damage, 0.0f);
    EXPECT_EQ(World.Player(0).Speed, 2.0f);
    EXPECT_EQ(World.Object(0).Z, -1.5f);
    EXPECT_EQ(World.Object(1).Z, 3.0f);
}

TEST_P(Collision, OppositeSpeedsCancel)
{
    World.AddCar(0, 0, 0.5f);
    World.AddCar(1.5f, 0);
    World.Player(0).Speed = 2.0f;
    World.Player(1).Speed = -2.0f;
    Collide();
    EXPECT_EQ(World.Player(0).Damage, 0.0f);
    EXPECT_EQ(World.Object(0).X, -0.5f);
}

TEST_P(Collision, CarAgainstAHeavierObject)
{
    World.AddCar(0, 0);
    World.AddBall(1.5f, 0, 1, 4);
    World.Object(0).AngleA = 1.0f;
    World.Player(0).Speed = 2.0f;
    Collide(); // ratio 4
    EXPECT_FLOAT_EQ(World.Player(0).Damage, static_cast<float>(2.0 * K4));
    EXPECT_FLOAT_EQ(World.Player(0).Speed, static_cast<float>(2.0 * (1.0 - K4)));
    EXPECT_EQ(World.Object(1).AngleB, 0.75f); // the draw alone: the ratio is not below 1
    EXPECT_EQ(World.Object(0).X, -6.0f);      // 1.5 x 4
    EXPECT_EQ(World.Object(1).X, 1.875f);     // 1.5 / 4
    EXPECT_EQ(World.Object(0).AngleA, 0.5f);
    EXPECT_EQ(World.Object(1).AngleA, 0.125f);
}

TEST_P(Collision, CarAgainstALighterObject)
{
    World.AddBall(0, 0, 1, 1);
    World.AddCar(1.5f, 0);
    World.Object(1).Mass = 0.25f;
    World.Object(1).AngleA = -1.0f;
    World.Player(0).Speed = -2.0f;
    Collide(); // ratio 0.25: for the car j, k comes from its inverse
    EXPECT_FLOAT_EQ(World.Player(0).Damage, static_cast<float>(2.0 * K4));
    EXPECT_FLOAT_EQ(World.Player(0).Speed, static_cast<float>(-2.0 * (1.0 - K4)));
    EXPECT_EQ(World.Object(0).AngleB, 0.1875f); // 0.75 x 0.25
    EXPECT_EQ(World.Object(0).X, -0.375f);
    EXPECT_EQ(World.Object(1).X, 7.5f);
    EXPECT_EQ(World.Object(0).AngleA, -0.125f); // half is 0.5
    EXPECT_EQ(World.Object(1).AngleA, -0.5f);
}

TEST_P(Collision, TwoStaticObjectsChangeOnlyAnglesAndPositions)
{
    World.AddBall(0, 0, 1, 1);
    World.AddBall(1.5f, 0, 1, 0.5f);
    const render::Obj before = World.Object(0);
    Collide(); // ratio 0.5, and the same ratio knocks both over
    EXPECT_EQ(World.Object(0).AngleB, 0.375f);
    EXPECT_EQ(World.Object(1).AngleB, 0.375f);
    EXPECT_EQ(World.Object(0).X, -0.25f);
    EXPECT_EQ(World.Object(1).X, 2.5f);
    EXPECT_EQ(World.Object(0).Y, before.Y);
    EXPECT_EQ(World.Object(0).Mass, before.Mass);
    EXPECT_EQ(World.Object(0).Radius, before.Radius);
    Collide();
    EXPECT_EQ(World.Object(0).X, -0.25f); // apart now
}

TEST_P(Collision, TheMassRatioIsLimited)
{
    for (const float mass : {1.0f, 5.0f, 6.0f, 1e30f, std::numeric_limits<float>::infinity()})
    {
        World.Scene.Objects = {};
        World.AddBall(0, 0, 1, 1);
        World.AddBall(1.5f, 0, 1, mass);
        Collide();
        EXPECT_EQ(World.Object(0).X, mass == 1.0f ? -0.5f : -2.5f) << mass;
    }
    for (const float mass : {0.2f, 0.1f, 0.0f, -3.0f})
    {
        World.Scene.Objects = {};
        World.AddBall(0, 0, 1, 1);
        World.AddBall(1.5f, 0, 1, mass);
        Collide();
        EXPECT_FLOAT_EQ(World.Object(0).X, -0.1f) << mass;
    }
}

TEST_P(Collision, NoMassAgainstNoMassIsEqual)
{
    World.AddBall(0, 0, 1, 0);
    World.AddBall(1.5f, 0, 1, 0);
    Collide();
    EXPECT_EQ(World.Object(0).X, -0.5f);
    EXPECT_EQ(World.Object(1).X, 2.0f);
}

TEST_P(Collision, TwoAtOnePlacePartAlongX)
{
    World.AddBall(3, 4, 1, 1);
    World.AddBall(3, 4, 1, 1);
    Collide();
    EXPECT_EQ(World.Object(0).X, 5.0f);
    EXPECT_EQ(World.Object(1).X, 1.0f);
    EXPECT_EQ(World.Object(0).Z, 4.0f);
    EXPECT_EQ(World.Object(1).Z, 4.0f);
}

TEST_P(Collision, TouchingIsNotColliding)
{
    World.AddBall(0, 0, 1, 1);
    World.AddBall(2, 0, 1, 1);
    Collide();
    EXPECT_EQ(World.Object(0).X, 0.0f);
}

TEST_P(Collision, TheBroadTestCountsHeightAndRadius)
{
    World.AddBall(0, 0, 1, 1);
    World.AddBall(1.5f, 0, 1, 1);
    World.Object(1).Y = 2.0f; // 2.5 away
    Collide();
    EXPECT_EQ(World.Object(0).X, 0.0f);
    World.Object(1).Y = 0.0f;
    render::SetObjR(World.Scene, 1, 0.25f); // the spheres touch, the bounding spheres do not
    Collide();
    EXPECT_EQ(World.Object(0).X, 0.0f);
    render::SetObjR(World.Scene, 1, 0.75f);
    Collide();
    EXPECT_EQ(World.Object(0).X, -0.5f);
}

TEST_P(Collision, FreedObjectsAndThoseWithoutSpheresAreLeftOut)
{
    World.AddBall(0, 0, 1, 1);
    World.AddBall(1, 0, 1, 1);
    World.AddBall(2, 0, 1, 1);
    World.Object(1).Free = 1;
    World.Object(2).Visible = 0; // what is hidden collides all the same
    const std::int16_t bare = render::MakeObj(World.Scene, {0, 0, 0, 0, 0}, 0, 0, 1, 1);
    render::SetObjR(World.Scene, bare, 5);
    Collide();
    EXPECT_EQ(World.Object(0).X, 0.0f);
    World.Object(2).X = 1.5f;
    Collide();
    EXPECT_EQ(World.Object(0).X, -0.5f);
}

TEST_P(Collision, TheFirstPairOfSpheresIsTheContact)
{
    // Two spheres each; 0 of i is far off, 1 of i meets both of j, 0 first.
    for (const float x : {0.0f, 1.5f})
    {
        const std::int16_t object = render::MakeObj(World.Scene, {x, 0, 0, 0, 0}, 0, 2, 1, 1);
        render::SetObjR(World.Scene, object, 50);
    }
    render::EditObjSfere(World.Scene, 0, 0, {0, 40, 0}, 1);
    render::EditObjSfere(World.Scene, 0, 1, {0, 0, 0}, 1);
    render::EditObjSfere(World.Scene, 1, 0, {0, 0, 0}, 1);
    render::EditObjSfere(World.Scene, 1, 1, {-1, 0, 0}, 1);
    Collide();
    EXPECT_EQ(World.Object(0).X, -0.5f); // the depth of sphere 0, not the 1.5 of sphere 1
}

TEST_P(Collision, SpheresTurnWithTheirObjects)
{
    // A sphere 10 units along local +z; turned by a right angle it lies along -x.
    const std::int16_t arm = render::MakeObj(World.Scene, {0, 0, 0, 1.570796f, 0}, 0, 1, 1, 1);
    render::SetObjR(World.Scene, arm, 20);
    render::EditObjSfere(World.Scene, arm, 0, {0, 0, 10}, 1);
    World.AddBall(-11.5f, 0, 1, 1);
    World.AddBall(0, 11.5f, 1, 1);
    Collide();
    EXPECT_NEAR(World.Object(1).X, -12.0f, 1e-4f);
    EXPECT_EQ(World.Object(2).Z, 11.5f);
}

TEST_P(Collision, EachPairSeesWhatTheOnesBeforeMoved)
{
    // 0 and 1 overlap; 1 is thrown across to 2, which stands far from where 1 was.
    World.AddBall(0, 0, 1, 5);
    World.AddBall(1.5f, 0, 1, 1);
    World.AddBall(45.5f, 0, 1, 1);
    World.AddCar(-100, -100);
    World.Player(0).Obj = 0;
    World.Player(0).Speed = 16.2f; // push 0.5 x 17.2 = 8.6, times 5: 43
    Collide();
    EXPECT_FLOAT_EQ(World.Object(2).X, 46.5f); // 1 stood at 44.5 then, one unit deep
    EXPECT_FLOAT_EQ(World.Object(1).X, 43.5f);
}

TEST_P(Collision, TheMovedFirstMeetsTheRestOfItsRowWhereItIsNow)
{
    World.AddCar(0, 0);
    World.AddBall(1.5f, 0, 1, 5);
    World.AddBall(-44.5f, 0, 1, 1);
    World.Player(0).Speed = 16.2f; // thrown 43 units to -43
    Collide();
    EXPECT_LT(World.Object(2).X, -44.6f);
}

TEST_P(Collision, WhoeverIsDeletedIsNotHitByWhatWasThrownBesideIt)
{
    World.AddBall(45.5f, 0, 1, 1);
    World.AddBall(0, 0, 1, 5);
    World.AddBall(1.5f, 0, 1, 1);
    World.AddCar(-100, -100);
    World.Player(0).Obj = 1;
    World.Player(0).Speed = 16.2f;
    Collide(); // 2 lies in 0 now, and meets it in the next step
    EXPECT_FLOAT_EQ(World.Object(2).X, 44.5f);
    EXPECT_EQ(World.Object(0).X, 45.5f);
    World.Object(0).Free = 1;
    Collide();
    EXPECT_FLOAT_EQ(World.Object(2).X, 44.5f);
    EXPECT_EQ(World.Object(0).X, 45.5f);
    World.Object(0).Free = 0;
    Collide();
    EXPECT_GT(World.Object(0).X, 45.5f);
}

TEST_P(Collision, DentsAreMadeFromTheUndamagedPoints)
{
    World.AddCar(0, 0, 0.5f);
    World.AddCar(1.5f, 0);
    AddMesh(0, 1);
    render::AddSfereLink(World.Scene, 0, 0, {0, 1, 0});
    World.Player(0).Speed = 2.0f;
    World.Random.Script = {0.0, 0.5, 1.0};
    Collide();
    const render::PointGrid& points = World.Object(0).Mesh[0].Pts;
    EXPECT_FLOAT_EQ(points.At(1, 0).X, 9.5f);  // 0.95
    EXPECT_FLOAT_EQ(points.At(1, 0).Y, 17.5f); // 0.95 - 0.075
    EXPECT_FLOAT_EQ(points.At(1, 0).Z, 32.0f); // 0.95 - 0.15
    EXPECT_EQ(points.At(0, 1).X, 10.0f);
    World.Object(0).X = 0.0f;
    World.Object(1).X = 1.5f;
    Collide(); // not dented twice
    EXPECT_FLOAT_EQ(World.Object(0).Mesh[0].Pts.At(1, 0).X, 9.5f);
}

TEST_P(Collision, OnlyCarsAreDented)
{
    World.AddCar(0, 0);
    World.AddBall(1.5f, 0, 1, 1);
    AddMesh(1, 1);
    render::AddSfereLink(World.Scene, 1, 0, {0, 0, 0});
    World.Player(0).Speed = 2.0f;
    Collide();
    EXPECT_EQ(World.Object(1).Mesh[0].Pts.At(0, 0).X, 10.0f);
}

TEST_P(Collision, LinksThatLeadNowhereAreSkipped)
{
    World.AddCar(0, 0);
    World.AddCar(1.5f, 0);
    AddMesh(0, 1);
    for (const std::int16_t odd : std::initializer_list<std::int16_t>{-1, 2, 32767, -32768})
    {
        render::AddSfereLink(World.Scene, 0, 0, {odd, 0, 0});
        render::AddSfereLink(World.Scene, 0, 0, {0, odd, 0});
        render::AddSfereLink(World.Scene, 0, 0, {0, 0, odd});
    }
    World.Random.ScriptNext = 0;
    Collide();
    EXPECT_EQ(World.Object(0).X, -0.5f);
    EXPECT_EQ(World.Random.ScriptNext, 0u);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(World.Object(0).Mesh[0].Pts.At(i / 2, i % 2).X, 10.0f);
}

TEST_P(Collision, AGridMadeAnewAfterTheModelHasNoUndamagedPoints)
{
    World.AddCar(0, 0);
    World.AddCar(1.5f, 0);
    AddMesh(0, 1);
    render::AddSfereLink(World.Scene, 0, 0, {0, 3, 3});
    render::EditObjMesh(World.Scene, 0, 0, {4, 4}, 255, 0);
    Collide();
    EXPECT_EQ(World.Object(0).X, -0.5f);
    EXPECT_EQ(World.Object(0).Mesh[0].Pts.At(3, 3).X, 0.0f);
}

namespace
{
// A car of seven spheres, all at its centre, that is hit with the last one when the others are small; against a ball.
void AddGlassCar(support::World& world, std::size_t hit)
{
    world.AddCar(0, 0);
    render::Obj& car = world.Object(0);
    car.Sfere.assign(7, render::Sfera{});
    car.Sfere[hit].R = 1.0f;
    car.Mesh.resize(21);
    car.Mesh[20].Colour = 1234;
    world.AddBall(1.5f, 0, 1, 1);
    world.Assets.BrokenGlassTexture = 3;
}
}

TEST_P(Collision, AHardBlowToTheCabinBreaksTheGlass)
{
    AddGlassCar(World, 6);
    World.Player(0).Speed = 2.5f; // impact 1.25
    Collide();
    EXPECT_EQ(World.Object(0).Mesh[20].TexIndex, 3);
    EXPECT_EQ(World.Object(0).Mesh[20].Colour, -1); // flat before, textured now
    EXPECT_EQ(World.Object(0).Mesh[19].TexIndex, 0);
}

TEST_P(Collision, TexturedGlassKeepsItsColourValue)
{
    AddGlassCar(World, 6);
    World.Object(0).Mesh[20].Colour = -7;
    World.Player(0).Speed = 2.5f;
    Collide();
    EXPECT_EQ(World.Object(0).Mesh[20].TexIndex, 3);
    EXPECT_EQ(World.Object(0).Mesh[20].Colour, -7);
}

TEST_P(Collision, ASoftBlowLeavesTheGlass)
{
    AddGlassCar(World, 6);
    World.Player(0).Speed = 1.9f; // impact 0.95
    Collide();
    EXPECT_LT(World.Object(0).X, 0.0f);
    EXPECT_EQ(World.Object(0).Mesh[20].Colour, 1234);
}

TEST_P(Collision, ABlowToTheBodyLeavesTheGlass)
{
    AddGlassCar(World, 5);
    World.Player(0).Speed = 2.5f;
    Collide();
    EXPECT_LT(World.Object(0).X, 0.0f);
    EXPECT_EQ(World.Object(0).Mesh[20].Colour, 1234);
}

TEST_P(Collision, TheGlassBreaksByTheRatioOfTheMasses)
{
    AddGlassCar(World, 6);
    World.Object(1).Mass = 4.0f;
    World.Player(0).Speed = 0.4f; // impact 0.34, times 4
    Collide();
    EXPECT_EQ(World.Object(0).Mesh[20].TexIndex, 3);

    World.Scene.Objects = {};
    World.Race = {};
    AddGlassCar(World, 6);
    std::swap(World.Object(0), World.Object(1)); // the car is j now
    World.Player(0).Obj = 1;
    World.Object(0).Mass = 4.0f; // ratio 0.25: impact / ratio
    World.Player(0).Speed = 0.4f;
    Collide();
    EXPECT_EQ(World.Object(1).Mesh[20].TexIndex, 3);
}

TEST_P(Collision, FewMeshesOrNoTextureKeepTheGlass)
{
    AddGlassCar(World, 6);
    World.Assets.BrokenGlassTexture = -1;
    World.Player(0).Speed = 2.5f;
    Collide();
    EXPECT_EQ(World.Object(0).Mesh[20].Colour, 1234);

    World.Scene.Objects = {};
    World.Race = {};
    AddGlassCar(World, 6);
    World.Object(0).Mesh.resize(20);
    World.Player(0).Speed = 2.5f;
    Collide();
    EXPECT_LT(World.Object(0).X, 0.0f);
}

TEST_P(Collision, AHitOfTheUserShakesTheWebcamPicture)
{
    World.AddCar(0, 0, 0.5f);
    World.AddCar(1.5f, 0);
    World.Player(0).Speed = 0.25f;
    World.WebcamOn = true;
    World.Race.UserPlayer = 1;
    Collide();
    EXPECT_FLOAT_EQ(World.Shake, static_cast<float>(0.25 * K * 40.0));

    World.Object(0).X = 0.0f;
    World.Object(1).X = 1.5f;
    World.Object(0).AngleA = 0.5f;
    World.Object(1).AngleA = 0.0f;
    World.Player(0).Speed = 2.0f;
    World.Player(1).Speed = 1.0f;
    Collide();
    EXPECT_EQ(World.Shake, 4.0f);
}

TEST_P(Collision, NoShakeWithoutWebcamOrUser)
{
    World.AddCar(0, 0, 0.5f);
    World.AddCar(1.5f, 0);
    World.Player(0).Speed = 2.0f;
    Collide();
    EXPECT_EQ(World.Shake, 0.0f);
    World.Object(0).X = 0.0f;
    World.Object(1).X = 1.5f;
    World.WebcamOn = true;
    World.Race.UserPlayer = -1; // also not where an object without player is hit
    World.AddBall(1, 0, 1, 1);
    Collide();
    EXPECT_EQ(World.Shake, 0.0f);
}

TEST_P(Collision, WhatIsNoNumberCollidesWithNothing)
{
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    constexpr float inf = std::numeric_limits<float>::infinity();
    using Change = void (*)(support::World&, float);
    const Change changes[] = {[](support::World& world, float odd) { world.Object(0).X = odd; },
                              [](support::World& world, float odd) { world.Object(0).Y = odd; },
                              [](support::World& world, float odd) { world.Object(0).Z = odd; },
                              [](support::World& world, float odd) { world.Object(0).AngleA = odd; },
                              [](support::World& world, float odd) { world.Object(0).AngleB = odd; },
                              [](support::World& world, float odd) { world.Object(0).Radius = odd; },
                              [](support::World& world, float odd) { world.Object(0).Sfere[0].R = odd; },
                              [](support::World& world, float odd) { world.Object(0).Sfere[0].X = odd; },
                              [](support::World& world, float odd) { world.Player(0).Speed = odd; }};
    for (const float odd : {nan, inf, -inf})
        for (std::size_t change = 0; change < std::size(changes); ++change)
        {
            World.Scene.Objects = {};
            World.Race = {};
            World.AddCar(0, 0);
            World.AddBall(1, 0, 1, 1);
            changes[change](World, odd);
            Collide();
            EXPECT_EQ(World.Object(1).X, 1.0f) << change << " " << odd;
            EXPECT_EQ(World.Object(1).AngleB, 0.0f) << change << " " << odd;
        }
}

TEST_P(Collision, WhatAScriptPutsBackMeetsItsNeighbours)
{
    World.AddBall(1, 1, 1, 1);
    World.AddBall(0, 0, 1, 1);
    World.AddBall(1.9f, 0, 1, 1);
    const render::Obj second = World.Object(1), third = World.Object(2);
    Collide(); // the first pushes the second away from the third
    EXPECT_LT(World.Object(1).Z, 0.0f);
    World.Object(0).X = 50;
    World.Object(1) = second;
    World.Object(2) = third;
    Collide();
    EXPECT_NEAR(World.Object(1).X, -0.1, 1e-6);
    EXPECT_NEAR(World.Object(2).X, 2.0, 1e-6);
}

TEST_P(Collision, WhoStandsStillIsHitOnceItsSpeedIsANumber)
{
    for (const bool getsOut : {false, true})
    {
        World.Scene.Objects = {};
        World.Race = {};
        World.AddCar(0, 0);
        World.AddBall(1, 0, 1, 1);
        World.Player(0).Speed = std::numeric_limits<float>::quiet_NaN();
        Collide();
        EXPECT_EQ(World.Object(1).X, 1.0f);
        World.Player(0).Speed = 1;
        if (getsOut)
            World.Player(0).Obj = -1;
        Collide();
        EXPECT_GT(World.Object(1).X, 1.0f);
    }
}

TEST_P(Collision, PlayersOfNoObjectOrOfTheSameOneAreHarmless)
{
    World.AddCar(0, 0);
    World.AddCar(1.5f, 0);
    World.AddCar(50, 50);
    World.Player(2).Obj = 0; // the first player of an object is its driver
    World.Player(0).Speed = 2.0f;
    World.Object(0).AngleA = 0.5f;
    Collide();
    EXPECT_GT(World.Player(0).Damage, 0.0f);
    EXPECT_EQ(World.Player(2).Damage, 0.0f);
    World.Player(0).Obj = 32767;
    World.Player(1).Obj = -1;
    Collide();
}
