// SPDX-License-Identifier: Zlib
// Whole frames of a race-like scene: ground, sixteen cars' worth of triangles of which most lie off the screen, smoke,
// and a head-up display.
#include "render/Effects.h"
#include "render/RenderFrame.h"
#include "tests/support/Scenes.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace
{
// 12 meshes of 9 x 5 points: 768 triangles, every other mesh textured.
void AddCar(render::Scene& scene, base::Random& random, float x, float z)
{
    const auto car =
        render::MakeObj(scene, {x, 0.0f, z, static_cast<float>(support::Draw(random, 0.0, 6.0)), 0.0f}, 12, 0, 1, 1.0f);
    render::SetObjR(scene, car, 3.0f);
    for (std::int16_t m = 0; m < 12; ++m)
    {
        render::EditObjMesh(scene, car, m, {9, 5}, m % 2 == 0 ? 0x4080C0 : -1, 0);
        for (int i = 0; i < 9; ++i)
            for (int j = 0; j < 5; ++j)
                render::EditObjMeshPt(scene, car, m, i, j,
                                      {static_cast<float>(i * 0.45 - 1.8 + m * 0.01), static_cast<float>(0.2 + j * 0.3),
                                       static_cast<float>((m - 6) * 0.2 + 0.1 * j), i * 30, j * 60});
    }
}

struct World
{
    render::Scene Scene;
    std::unique_ptr<support::View> View;

    World(int width, int height, int filter)
    {
        base::Random random;
        random.Seed(7);
        Scene.Sky = support::Noise(random, render::SkyWidth, 300);
        support::SetGround(Scene, support::Noise(random, 1000, 1000));
        render::Texture& texture = Scene.Textures.At(Scene.Textures.Add());
        texture.Pic = support::Noise(random, 256, 256, 0.01);
        AddCar(Scene, random, 500.0f, 414.0f);
        AddCar(Scene, random, 496.0f, 425.0f);
        for (int i = 0; i < 12; ++i)
            AddCar(Scene, random, static_cast<float>(support::Draw(random, 300.0, 700.0)),
                   static_cast<float>(support::Draw(random, 300.0, 700.0)));
        const auto smoke = std::make_shared<render::Picture>(support::Noise(random, 64, 64, 0.3));
        for (int i = 0; i < 10; ++i)
            render::AddParticle(Scene, 20, render::Smoke,
                                {.X = 498.0f,
                                 .Y = 1.0f + static_cast<float>(i) * 0.1f,
                                 .Z = 420.0f,
                                 .Scale = 0.03f,
                                 .Alpha = 0.6f,
                                 .Pixels = smoke});
        for (std::int16_t i = 0; i < 8; ++i)
            render::MakeRect2D(Scene, {.Visible = 1,
                                       .X = static_cast<std::int16_t>(i * 20),
                                       .Y = 10,
                                       .W = 100,
                                       .H = 8,
                                       .Col = {255, 255, 0}});
        View = std::make_unique<support::View>(width, height, filter, 5);
        View->Look(500.0f, 7.0f, 400.0f, 0.1f, -0.1f);
    }
};

void Frame(benchmark::State& state)
{
    World world(static_cast<int>(state.range(1)), static_cast<int>(state.range(2)), static_cast<int>(state.range(0)));
    for (auto _ : state)
        render::RenderFrame(world.Scene, world.View->Camera, world.View->Screen, world.View->Threads);
}
}

BENCHMARK(Frame)
    ->ArgNames({"filter", "width", "height"})
    ->ArgsProduct({{0, 1, 2}, {600}, {312}})
    ->ArgsProduct({{0, 1, 2}, {1200}, {900}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
