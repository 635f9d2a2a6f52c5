// SPDX-License-Identifier: Zlib
// The simulation of one game tick, and its collisions against the plain walk over all pairs. Scenes are made here:
// cars on a round course, objects with spheres all over the world.
#include "tests/support/World.h"
#include "world/Collision.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

namespace
{
constexpr float UsualSize = 700.0f; // of the world
constexpr int UsualObjects = 2000;  // in a world of that size
constexpr int GateCount = 24;
constexpr int CarSpheres = 10;

using support::World;

float Between(base::Random& random, double low, double high)
{
    return static_cast<float>(low + (high - low) * random.Next());
}

// The world is a square of that size.
void AddObject(World& world, float size)
{
    base::Random& random = world.Random;
    const float radius = Between(random, 1, 6);
    const auto spheres = static_cast<std::int16_t>(1 + base::Floor(random.Next() * 4));
    const std::int16_t object =
        render::MakeObj(world.Scene, {Between(random, 0, size), 0, Between(random, 0, size), Between(random, -3, 3), 0},
                        0, spheres, 1, 20);
    render::SetObjR(world.Scene, object, radius);
    for (std::int16_t sphere = 0; sphere < spheres; ++sphere)
        render::EditObjSfere(world.Scene, object, sphere,
                             {Between(random, -radius, radius) / 2, 1, Between(random, -radius, radius) / 2},
                             radius / 3);
}

// On the course round the middle, in rows of four.
void AddCar(World& world, float middle, int number)
{
    const int row = number / 4;
    const float angle = static_cast<float>(row) * 0.03f;
    const float distance = 250.0f + static_cast<float>(number % 4) * 4.0f;
    const std::int16_t object = render::MakeObj(
        world.Scene, {middle - std::cos(angle) * distance, 0, middle + std::sin(angle) * distance, -angle, 0}, 21,
        CarSpheres, 1, 1);
    render::SetObjR(world.Scene, object, 2.6f);
    for (std::int16_t mesh = 0; mesh < 21; ++mesh)
        render::EditObjMesh(world.Scene, object, mesh, {4, 4}, 255, 0);
    for (std::int16_t sphere = 0; sphere < CarSpheres; ++sphere)
    {
        render::EditObjSfere(
            world.Scene, object, sphere,
            {static_cast<float>(sphere % 2) - 0.5f, 0.6f, std::floor(static_cast<float>(sphere) / 2) * 0.8f - 1.6f},
            0.6f);
        for (std::int16_t link = 0; link < 8; ++link)
            render::AddSfereLink(world.Scene, object, sphere, {link, 1, 1});
    }
    render::KeepUndamaged(world.Scene, object);

    world::Player player;
    player.Obj = object;
    player.MaxSpeed = player.CurMaxSpeed = Between(world.Random, 3.5, 5.5);
    player.MaxSpeedR = player.CurMaxSpeedR = 1.0f;
    player.WRS = player.CurWRS = 0.06f;
    player.Acceleration = player.CurAcceleration = 0.05f;
    player.Brake = player.CurBrake = 0.1f;
    player.Deceleration = player.CurDeceleration = 0.01f;
    player.Control = number == 0 ? 0 : 1;
    world.Race.Players.push_back(player);
}

std::unique_ptr<World> MakeWorld(int cars, int objects, float size = UsualSize)
{
    const float middle = size / 2;
    auto made = std::make_unique<World>();
    World& world = *made;
    world.Random.Script.clear();
    world.Random.Seed(11);
    world.WebcamOn = true;
    world.Race.GameTime = world::ReleaseTime; // every car drives
    for (int n = 0; n < cars; ++n)
        AddCar(world, middle, n);
    for (int n = 0; n < objects; ++n)
        AddObject(world, size);
    for (int gate = 1; gate <= GateCount; ++gate)
    {
        const float angle = static_cast<float>(gate) * 6.2831853f / GateCount;
        world.Race.Map.Checkpoints.Items.push_back(
            {middle - std::cos(angle) * 256, 0, middle + std::sin(angle) * 256, 16});
        world.Race.Map.Grass.Items.push_back({middle, 0, middle, 10.0f * static_cast<float>(gate)});
    }
    world.Race.Map.ACheckpoints = world.Race.Map.Checkpoints;
    world.MakePictures();
    world.Keys.KeyAccel = base::True;
    return made;
}

// Of a world with as many objects to the square unit as the usual one.
float SizeOf(int objects)
{
    return UsualSize * std::sqrt(static_cast<float>(objects) / UsualObjects);
}

// The race goes on from tick to tick, and begins anew after a minute.
void TimeTicks(benchmark::State& state, int cars, int objects, float size)
{
    constexpr int minute = 2400;
    std::unique_ptr<World> world;
    int tick = 0;
    for (auto _ : state)
    {
        if (tick++ % minute == 0)
        {
            state.PauseTiming();
            world = MakeWorld(cars, objects, size);
            state.ResumeTiming();
        }
        world->Tick();
    }
}

// Cars, objects, in a world that is the fuller the more there are.
void GameTick(benchmark::State& state)
{
    TimeTicks(state, static_cast<int>(state.range(0)), static_cast<int>(state.range(1)), UsualSize);
}

// Cars, objects, in a world that is the wider the more there are.
void GameTickWide(benchmark::State& state)
{
    const int objects = static_cast<int>(state.range(1));
    TimeTicks(state, static_cast<int>(state.range(0)), objects, SizeOf(objects));
}

template <void (*Walk)(world::Simulation&)> void Collisions(benchmark::State& state)
{
    const std::unique_ptr<World> world = MakeWorld(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    for (int tick = 0; tick < 40; ++tick)
        world->Tick();
    world::Simulation sim = world->Sim();
    for (auto _ : state)
        Walk(sim);
}

BENCHMARK(GameTick)
    ->Args({8, 0})
    ->Args({8, 250})
    ->Args({64, 2000})
    ->Args({64, 10000})
    ->Args({64, 20000})
    ->Args({64, 30000})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(GameTickWide)->Args({64, 10000})->Args({64, 20000})->Args({64, 30000})->Unit(benchmark::kMicrosecond);
BENCHMARK(Collisions<world::Collide>)->Args({8, 250})->Args({64, 2000})->Unit(benchmark::kMicrosecond);
BENCHMARK(Collisions<world::CollidePlain>)->Args({8, 250})->Args({64, 2000})->Unit(benchmark::kMicrosecond);
}
