// SPDX-License-Identifier: Zlib
// Game ticks of the shipped race with every car driven by the computer, the way from program start to the menu, and
// the loading alone.
#include "bench/Phases.h"
#include "tests/support/ShippedRace.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>

namespace
{
void GameTick(benchmark::State& state)
{
    support::ShippedRace race;
    for (int tick = 0; tick < 400; ++tick)
        race.Step();
    for (auto _ : state)
        race.Step();
}
BENCHMARK(GameTick)->Unit(benchmark::kMicrosecond)->Repetitions(5)->ReportAggregatesOnly();

// Where a tick's time goes: milliseconds of each phase a tick.
void TickPhases(benchmark::State& state)
{
    support::ShippedRace race;
    for (int tick = 0; tick < 400; ++tick)
        race.Step();
    base::PhaseClock clock;
    for (auto _ : state)
        race.Step(&clock);
    bench::ReportPhases(state, clock);
}
BENCHMARK(TickPhases)->Unit(benchmark::kMicrosecond);

// Without the second that the splash is shown at least.
void StartToMenu(benchmark::State& state)
{
    for (auto _ : state)
        support::ShippedRace race;
}
BENCHMARK(StartToMenu)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly();

// Form_Load alone: neither the splash before nor the first painting of the menu behind, nor what ending frees.
void FormLoad(benchmark::State& state)
{
    for (auto _ : state)
    {
        headless::Machine machine{base::Files(VELKAR_ROOT)};
        const auto form = std::make_unique<shell::Form1>(machine);
        const auto start = std::chrono::steady_clock::now();
        form->Form_Load();
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}
BENCHMARK(FormLoad)->Unit(benchmark::kMillisecond)->UseManualTime()->Repetitions(5)->ReportAggregatesOnly();
}
