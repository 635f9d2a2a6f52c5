// SPDX-License-Identifier: Zlib
// A tick of the simulation takes no memory once its lists have grown.
#include "tests/support/Allocations.h"
#include "tests/support/World.h"
#include "world/Collision.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
// Cars that drive, collide, are dented, smoke and splash.
support::World BusyWorld()
{
    support::World world;
    world.Random.Script.clear();
    world.Random.Seed(5);
    world.Race.GameTime = world::ReleaseTime;
    world.MakePictures();
    world.SetGround(256, 256, 1, 200);
    world.SetCheckpoints({{20, 0, 20, 15}, {100, 0, 20, 15}, {100, 0, 100, 15}, {20, 0, 100, 15}});
    world.Race.Map.Water.Items = {{100, 0, 60, 30}};
    for (int n = 0; n < 24; ++n)
    {
        const std::int16_t car = world.AddCar(static_cast<float>(20 + n), static_cast<float>(30 + n % 5));
        world.Player(car).Damage = static_cast<float>(n % 10);
    }
    for (int n = 0; n < 200; ++n)
        world.AddBall(static_cast<float>(n % 20 * 6), std::floor(static_cast<float>(n) / 20) * 12, 2, 1);
    return world;
}
}

TEST(Allocation, NoneInATickOnceTheListsHaveGrown)
{
    support::World world = BusyWorld();
    for (int tick = 0; tick < 400; ++tick)
        world.Tick();
    EXPECT_GT(world.Scene.Particles.size(), 0u);
    // The lists of particles may still find a new height: memory for them is had before.
    world.Scene.Particles.reserve(world.Scene.Particles.size() + 1000);
    world.Scene.Sprites.Items.reserve(world.Scene.Sprites.Items.size() + 1000);
    const std::size_t before = support::Allocations();
    for (int tick = 0; tick < 400; ++tick)
        world.Tick();
    EXPECT_EQ(support::Allocations() - before, 0u);
    EXPECT_GT(before, 0u); // the counter counts
}

namespace
{
// What the first collisions of so many bodies ask for. reach: of the bounding radii, which makes neighbours, not
// contacts.
std::size_t BytesOfCollisions(int bodies, float reach)
{
    support::World world;
    for (int n = 0; n < bodies; ++n)
    {
        world.AddBall(static_cast<float>(n % 100), std::floor(static_cast<float>(n) / 100), 0.25f, 1);
        world.Object(n).Radius = reach;
    }
    world::Simulation sim = world.Sim();
    const std::size_t before = support::AllocatedBytes();
    world::Collide(sim);
    world.Object(0).X += 0.1f;
    world::Collide(sim);
    return support::AllocatedBytes() - before;
}
}

TEST(Allocation, CollisionsTakeMemoryInProportionToTheBodies)
{
    for (const float reach : {0.25f, 5.0f, 1e6f})
        for (const int bodies : {100, 1000, 3000})
        {
            const std::size_t bytes = BytesOfCollisions(bodies, reach);
            EXPECT_LT(bytes, static_cast<std::size_t>(bodies) * 1000) << bodies << " bodies of " << reach;
            EXPECT_GT(bytes, static_cast<std::size_t>(bodies) * 50) << bodies << " bodies of " << reach;
        }
}
