// SPDX-License-Identifier: Zlib
// The ground pass alone: each filter, plain and fast, on one thread; and fast on all of them.
#include "render/GroundPlain.h"
#include "render/RenderFrame.h"
#include "render/RowTables.h"
#include "tests/support/Scenes.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace
{
// The chase camera over the middle of a large map: about half the frame is ground.
struct World
{
    render::Scene Scene;
    std::unique_ptr<support::View> View;

    World(int width, int height, int filter, int threads)
    {
        base::Random random;
        random.Seed(7);
        Scene.Sky = support::Noise(random, render::SkyWidth, 300);
        support::SetGround(Scene, support::Noise(random, 1000, 1000));
        View = std::make_unique<support::View>(width, height, filter, threads);
        View->Look(500.0f, 7.0f, 400.0f, 0.4f, -0.1f);
        render::UpdateSkyOffset(View->Camera, View->Screen);
        render::UpdateRowTables(View->Camera, View->Screen);
        render::UpdateColumnSlopes(View->Camera, View->Screen);
    }
};

void Plain(benchmark::State& state)
{
    World world(static_cast<int>(state.range(1)), static_cast<int>(state.range(2)), static_cast<int>(state.range(0)),
                1);
    const render::GroundView view = render::MakeGroundView(world.Scene, world.View->Camera, world.View->Screen);
    for (auto _ : state)
        render::GroundPlain(view, {0, world.View->Screen.ScreenMaxX});
}

// threads 1: the calling one alone, as against the plain form; 5: the bands of two processors.
void Fast(benchmark::State& state)
{
    World world(static_cast<int>(state.range(1)), static_cast<int>(state.range(2)), static_cast<int>(state.range(0)),
                static_cast<int>(state.range(3)));
    for (auto _ : state)
        render::DrawGround(world.Scene, world.View->Camera, world.View->Screen, world.View->Threads);
}
}

BENCHMARK(Plain)
    ->ArgNames({"filter", "width", "height"})
    ->ArgsProduct({{0, 1, 2}, {1200}, {900}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(Fast)
    ->ArgNames({"filter", "width", "height", "bands"})
    ->ArgsProduct({{0, 1, 2}, {1200}, {900}, {1, 5}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
