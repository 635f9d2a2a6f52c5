// SPDX-License-Identifier: Zlib
// The fast walk over the pairs against the plain one: after every tick of random scenes, every bit is the same.
#include "tests/support/World.h"
#include "world/Collision.h"
#include "world/Driving.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace
{
struct Recipe
{
    int Objects, Cars;
    double Size;   // of the world
    double Radius; // of the objects, at most
    double Speed;  // of the cars, at most
};

void PrintTo(const Recipe& recipe, std::ostream* out)
{
    *out << recipe.Objects << " objects, " << recipe.Cars << " cars in " << recipe.Size;
}

float Between(base::Random& random, double low, double high)
{
    return static_cast<float>(low + (high - low) * random.Next());
}

// One of one to eight spheres, with links to a mesh where it is a car.
void AddObject(support::World& world, base::Random& random, const Recipe& recipe, bool car)
{
    const auto spheres = static_cast<std::int16_t>(1 + base::Floor(random.Next() * 8));
    const float radius = Between(random, 0.2, recipe.Radius);
    const std::int16_t object = render::MakeObj(
        world.Scene, {Between(random, 0, recipe.Size), 0, Between(random, 0, recipe.Size), Between(random, -4, 4), 0},
        car ? 1 : 0, spheres, 1, Between(random, 0, 3));
    render::SetObjR(world.Scene, object, radius);
    for (std::int16_t sphere = 0; sphere < spheres; ++sphere)
    {
        render::EditObjSfere(world.Scene, object, sphere,
                             {Between(random, -radius, radius) / 2, 0, Between(random, -radius, radius) / 2},
                             Between(random, 0.1, radius));
        if (car)
            render::AddSfereLink(world.Scene, object, sphere, {0, sphere, 0});
    }
    if (!car)
        return;
    render::EditObjMesh(world.Scene, object, 0, {8, 1}, 0, 0);
    for (int point = 0; point < 8; ++point)
        render::EditObjMeshPt(world.Scene, object, 0, point, 0, {1, 2, 3, 0, 0});
    render::KeepUndamaged(world.Scene, object);
    world::Player player;
    player.Obj = object;
    player.MaxSpeed = 5;
    player.Speed = Between(random, -recipe.Speed, recipe.Speed);
    world.Race.Players.push_back(player);
}

support::World Build(const Recipe& recipe, std::uint64_t seed)
{
    base::Random random;
    random.Seed(seed);
    support::World world;
    world.Random.Seed(seed + 1);
    world.WebcamOn = true;
    for (int n = 0; n < recipe.Objects; ++n)
        AddObject(world, random, recipe, n % (recipe.Objects / recipe.Cars) == 0);
    return world;
}

// Everything that a collision may change, as bits.
std::vector<std::uint64_t> Bits(const support::World& world)
{
    std::vector<std::uint64_t> bits;
    const auto add = [&](float value) { bits.push_back(std::bit_cast<std::uint32_t>(value)); };
    for (const render::Obj& object : world.Scene.Objects.Items)
    {
        for (const float value : {object.X, object.Y, object.Z, object.AngleA, object.AngleB})
            add(value);
        for (const render::ObjMesh& mesh : object.Mesh)
            for (const render::MeshPt& point : mesh.Pts.Points)
                for (const float value : {point.X, point.Y, point.Z})
                    add(value);
        for (const render::ObjMesh& mesh : object.Mesh)
            bits.push_back(static_cast<std::uint64_t>(mesh.TexIndex) << 32 ^ static_cast<std::uint32_t>(mesh.Colour));
    }
    for (const world::Player& player : world.Race.Players)
        for (const float value : {player.Speed, player.Damage, player.CurMaxSpeed, player.CurMaxSpeedR,
                                  player.CurAcceleration, player.CurBrake})
            add(value);
    add(world.Shake);
    bits.push_back(world.Random.State);
    return bits;
}

// A walk in both worlds, the fast and the plain one. Whether anything touched.
bool CollideBoth(support::World& fast, support::World& plain)
{
    const std::vector<std::uint64_t> before = Bits(plain);
    world::Simulation fastSim = fast.Sim();
    world::Simulation plainSim = plain.Sim();
    world::Collide(fastSim);
    world::CollidePlain(plainSim);
    return Bits(plain) != before;
}

struct CollisionJudge : testing::TestWithParam<Recipe>
{
};

const Recipe Recipes[] = {
    {40, 4, 20, 2, 6},       // crowded
    {130, 8, 300, 6, 6},     // the usual
    {300, 30, 768, 30, 100}, // large objects, cars thrown far
    {200, 20, 4000, 40, 6},  // a wide country
    {60, 60, 60, 3, 1e6},    // thrown to where places are rounded
    {90, 9, 100, 60, 1e30},  // thrown off every scale
    {250, 125, 22, 2, 3},    // everybody pushes everybody, many times a tick
    {120, 12, 300, 3000, 9}, // everybody is near everybody
    {160, 40, 900, 9000, 2}, // and many of them drive
    {400, 5, 40, 0.4, 8},    // small ones, close together
};
}

INSTANTIATE_TEST_SUITE_P(Scenes, CollisionJudge, testing::ValuesIn(Recipes));

TEST_P(CollisionJudge, EveryTickGivesTheSameBits)
{
    int touched = 0;
    for (std::uint64_t seed = 1; seed <= 12; ++seed)
    {
        support::World fast = Build(GetParam(), seed);
        support::World plain = fast;
        for (int tick = 0; tick < 12; ++tick)
        {
            touched += CollideBoth(fast, plain) ? 1 : 0;
            ASSERT_EQ(Bits(fast), Bits(plain)) << "seed " << seed << ", tick " << tick;
            // A car that is moved by a script or drives on between the ticks.
            for (support::World* world : {&fast, &plain})
            {
                world::Simulation sim = world->Sim();
                for (world::Player& player : world->Race.Players)
                    world::MoveCar(sim, player);
            }
        }
    }
    EXPECT_GE(touched, 12); // otherwise nothing was compared
}

namespace
{
constexpr float OddNumbers[] = {std::numeric_limits<float>::quiet_NaN(),
                                std::numeric_limits<float>::infinity(),
                                -std::numeric_limits<float>::infinity(),
                                3e38f,
                                -3e38f,
                                1e30f,
                                1e6f,
                                -1e6f,
                                999999.9f,
                                3000.0f,
                                -2.0f,
                                1e-40f,
                                0.0f,
                                -0.0f};

// Draws for whoever writes into a scene.
struct Hand
{
    base::Random Random;

    std::size_t One(std::size_t count)
    {
        return static_cast<std::size_t>(base::Floor(Random.Next() * static_cast<double>(count)));
    }
    float Odd() { return OddNumbers[One(std::size(OddNumbers))]; }
};

// Into the object itself.
void MeddleWithObject(render::Obj& object, Hand& hand)
{
    render::Sfera none;
    render::Sfera& sphere = object.Sfere.empty() ? none : object.Sfere[hand.One(object.Sfere.size())];
    switch (hand.One(10))
    {
    case 0:
        object.X += 0.5f;
        break;
    case 1:
        object.AngleB += 1.0f;
        break;
    case 2:
        object.Radius *= 2;
        break;
    case 3:
        sphere.R *= 3;
        break;
    case 4:
        sphere.X += 0.5f;
        break;
    case 5:
        object.Sfere.resize(1 + hand.One(3), {0, 0, 0, 1});
        break;
    case 6:
        object.Free = object.Free == 0;
        break;
    case 7:
        object.Sfere = std::vector<render::Sfera>(object.Sfere); // the same somewhere else
        break;
    case 8:
        object.Sfere.clear();
        break;
    default:
        float* const fields[] = {&object.X,      &object.Y,    &object.Z, &object.AngleA,
                                 &object.Radius, &object.Mass, &sphere.R, &sphere.X};
        *fields[hand.One(std::size(fields))] = hand.Odd();
        break;
    }
}

// What a script or the game may do to a scene between two ticks. The same draws do the same.
void Meddle(support::World& world, Hand& hand)
{
    std::vector<render::Obj>& objects = world.Scene.Objects.Items;
    render::Obj& object = objects[hand.One(objects.size())];
    const std::size_t other = hand.One(objects.size());
    world::Player& player = world.Race.Players[hand.One(world.Race.Players.size())];
    switch (hand.One(8))
    {
    case 0:
        object.X = objects[other].X + 0.1f;
        object.Z = objects[other].Z;
        break;
    case 1:
        std::swap(object, objects[other]);
        break;
    case 2:
        player.Obj = static_cast<std::int16_t>(hand.One(objects.size() + 2)) - 1;
        break;
    case 3:
        player.Speed = hand.Odd();
        break;
    case 4: // another one is made, or the last one is gone
        if (hand.One(2) == 0 || objects.size() < 20)
            objects.push_back(render::Obj(objects[other]));
        else
            objects.pop_back();
        break;
    case 5: // as many as before, but others
        if (hand.One(4) == 0)
            std::reverse(objects.begin(), objects.end());
        break;
    default:
        MeddleWithObject(object, hand);
        break;
    }
}
}

TEST(CollisionJudgeMeddled, GiveTheSameBits)
{
    int touched = 0;
    for (std::uint64_t seed = 1; seed <= 60; ++seed)
    {
        support::World fast = Build({150, 6, 50, 3, 3}, seed);
        support::World plain = fast;
        Hand fastHand, plainHand;
        fastHand.Random.Seed(seed + 500);
        plainHand.Random.Seed(seed + 500);
        for (int tick = 0; tick < 60; ++tick)
        {
            touched += CollideBoth(fast, plain) ? 1 : 0;
            ASSERT_EQ(Bits(fast), Bits(plain)) << "seed " << seed << ", tick " << tick;
            for (int write = 0; write < tick % 4; ++write)
            {
                Meddle(fast, fastHand);
                Meddle(plain, plainHand);
            }
        }
    }
    EXPECT_GE(touched, 1000);
}

TEST(CollisionJudgeOddNumbers, GiveTheSameBits)
{
    Hand hand;
    hand.Random.Seed(99);
    const Recipe recipe = {80, 8, 60, 6, 6};
    for (std::uint64_t seed = 1; seed <= 20; ++seed)
    {
        support::World fast = Build(recipe, seed);
        for (int n = 0; n < 30; ++n)
        {
            render::Obj& object = fast.Scene.Objects.Items[hand.One(80)];
            float* const fields[] = {&object.X,      &object.Y,    &object.Z,          &object.AngleA,
                                     &object.Radius, &object.Mass, &object.Sfere[0].R, &object.Sfere[0].Z};
            *fields[hand.One(std::size(fields))] = hand.Odd();
        }
        support::World plain = fast;
        for (int tick = 0; tick < 5; ++tick)
        {
            CollideBoth(fast, plain);
            ASSERT_EQ(Bits(fast), Bits(plain)) << "seed " << seed << ", tick " << tick;
        }
    }
}
