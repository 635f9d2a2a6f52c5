// SPDX-License-Identifier: Zlib
// Whole frames of the shipped map along a recorded camera path; one iteration is one frame, the path over and over.
#include "bench/Phases.h"
#include "bench/ShippedFrames.h"

#include <benchmark/benchmark.h>

namespace
{
bench::ShippedFrames& Frames()
{
    static bench::ShippedFrames frames;
    return frames;
}

void WholeFrame(benchmark::State& state)
{
    bench::ShippedFrames& frames = Frames();
    const std::int16_t filter = static_cast<std::int16_t>(state.range(2));
    frames.Prepare(static_cast<std::int32_t>(state.range(0)), static_cast<std::int32_t>(state.range(1)), filter);
    for (auto _ : state)
        benchmark::DoNotOptimize(frames.Draw());
    state.SetLabel(bench::FilterName(filter));
}
BENCHMARK(WholeFrame)
    ->ArgsProduct({{600}, {312}, {0, 1, 2}})
    ->ArgsProduct({{1200}, {900}, {0, 1, 2}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MinTime(1.0)
    ->Repetitions(5)
    ->ReportAggregatesOnly();

// Where a frame's time goes: milliseconds of each phase a frame.
void FramePhases(benchmark::State& state)
{
    bench::ShippedFrames& frames = Frames();
    frames.Prepare(static_cast<std::int32_t>(state.range(0)), static_cast<std::int32_t>(state.range(1)),
                   static_cast<std::int16_t>(state.range(2)));
    base::PhaseClock clock;
    for (auto _ : state)
        benchmark::DoNotOptimize(frames.Draw(&clock));
    bench::ReportPhases(state, clock);
}
BENCHMARK(FramePhases)
    ->ArgsProduct({{600}, {312}, {0, 1, 2}})
    ->ArgsProduct({{1200}, {900}, {0, 1, 2}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
}
