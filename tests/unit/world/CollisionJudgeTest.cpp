// The fast walk over the pairs against the plain one: after every tick of random scenes, every bit is the same.
#include "tests/support/World.h"
#include "world/Collision.h"
#include "world/Driving.h"

#include <gtest/gtest.h>

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
    }
    for (const world::Player& player : world.Race.Players)
        for (const float value : {player.Speed, player.Damage, player.CurMaxSpeed})
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
    {200, 20, 4000, 40, 6},  // wider than the strips go round
    {60, 60, 60, 3, 1e6},    // thrown off the strips
    {90, 9, 100, 60, 1e30},  // thrown off every scale
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
// What a script or the game may do to a scene between two ticks. The same draws do the same.
void Meddle(support::World& world, base::Random& random)
{
    const auto one = [&](std::size_t count)
    { return static_cast<std::size_t>(base::Floor(random.Next() * static_cast<double>(count))); };
    render::Obj& object = world.Scene.Objects.Items[one(world.Scene.Objects.Items.size())];
    render::Obj& other = world.Scene.Objects.Items[one(world.Scene.Objects.Items.size())];
    world::Player& player = world.Race.Players[one(world.Race.Players.size())];
    switch (base::Floor(random.Next() * 8))
    {
    case 0:
        object.X = other.X + 0.1f;
        break;
    case 1:
        object.AngleB += 1.0f;
        break;
    case 2:
        object.Radius *= 2;
        break;
    case 3:
        object.Sfere.empty() ? void() : void(object.Sfere.back().R *= 3);
        break;
    case 4:
        object.Sfere.resize(1 + one(3));
        break;
    case 5:
        object.Free = object.Free == 0;
        break;
    case 6:
        std::swap(object, other);
        break;
    default:
        player.Obj = static_cast<std::int16_t>(one(world.Scene.Objects.Items.size()));
        break;
    }
}
}

TEST(CollisionJudgeMeddled, GiveTheSameBits)
{
    int touched = 0;
    for (std::uint64_t seed = 1; seed <= 40; ++seed)
    {
        support::World fast = Build({150, 6, 70, 3, 3}, seed);
        support::World plain = fast;
        base::Random fastHand, plainHand;
        fastHand.Seed(seed + 500);
        plainHand.Seed(seed + 500);
        for (int tick = 0; tick < 40; ++tick)
        {
            touched += CollideBoth(fast, plain) ? 1 : 0;
            ASSERT_EQ(Bits(fast), Bits(plain)) << "seed " << seed << ", tick " << tick;
            if (tick % 3 != 0)
                continue;
            Meddle(fast, fastHand);
            Meddle(plain, plainHand);
        }
    }
    EXPECT_GE(touched, 100);
}

TEST(CollisionJudgeOddNumbers, GiveTheSameBits)
{
    const float odd[] = {std::numeric_limits<float>::quiet_NaN(),
                         std::numeric_limits<float>::infinity(),
                         3e38f,
                         -3e38f,
                         1e6f,
                         -1e6f,
                         999999.9f,
                         1e-40f,
                         0.0f};
    base::Random random;
    random.Seed(99);
    const Recipe recipe = {80, 8, 60, 6, 6};
    for (std::uint64_t seed = 1; seed <= 20; ++seed)
    {
        support::World fast = Build(recipe, seed);
        for (int n = 0; n < 30; ++n)
        {
            render::Obj& object = fast.Object(base::Floor(random.Next() * 80));
            float* const fields[] = {&object.X,      &object.Y,    &object.Z,         &object.AngleA,
                                     &object.Radius, &object.Mass, &object.Sfere[0].R};
            *fields[base::Floor(random.Next() * 7)] = odd[base::Floor(random.Next() * 9)];
        }
        support::World plain = fast;
        for (int tick = 0; tick < 5; ++tick)
        {
            CollideBoth(fast, plain);
            ASSERT_EQ(Bits(fast), Bits(plain)) << "seed " << seed << ", tick " << tick;
        }
    }
}
