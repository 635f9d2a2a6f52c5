// Whole frames of the shipped map along a recorded camera path; one iteration is one frame, the path over and over.
#include "render/RenderFrame.h"
#include "tests/support/ShippedRace.h"

#include <benchmark/benchmark.h>

#include <thread>

namespace
{
struct Path
{
    support::ShippedRace Race;
    std::vector<Mod3D::Camera> Cameras;
    Path() { Cameras = Race.RecordPath(1600); }
};

Path& ThePath()
{
    static Path path;
    return path;
}

void WholeFrame(benchmark::State& state)
{
    Path& path = ThePath();
    shell::Game& game = path.Race.Game();
    // The bands and walkers that the game would take on this machine.
    game.Screen.ThreadCount = static_cast<std::int16_t>(2 * std::thread::hardware_concurrency() + 1);
    Mod3D::ApplyResolution(path.Race.Form().Window(), game.Screen, game.Camera,
                           static_cast<std::int32_t>(state.range(0)), static_cast<std::int32_t>(state.range(1)));
    game.Screen.TxtFilter = static_cast<std::int16_t>(state.range(2));
    const float zoomScale = game.Camera.MinZoom;
    std::size_t next = 0;
    for (auto _ : state)
    {
        Mod3D::Camera camera = path.Cameras[next++ % path.Cameras.size()];
        // The path was recorded at another resolution: the same angle of view.
        camera.Zoom = camera.Zoom / camera.MinZoom * zoomScale;
        Mod3D::RenderFrame(game.Scene, camera, game.Screen, nullptr);
        benchmark::DoNotOptimize(game.Screen.Frame.Bytes.data());
    }
    state.SetLabel(Mod3D::FilterName(game.Screen.TxtFilter));
}
BENCHMARK(WholeFrame)
    ->ArgsProduct({{600}, {312}, {0, 1, 2}})
    ->ArgsProduct({{1200}, {900}, {0, 1, 2}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MinTime(1.0)
    ->Repetitions(5)
    ->ReportAggregatesOnly();
}
