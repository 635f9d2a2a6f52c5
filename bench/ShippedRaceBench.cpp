// Game ticks of the shipped race with every car driven by the computer, and the way from program start to the menu.
#include "bench/Phases.h"
#include "tests/support/ShippedRace.h"

#include <benchmark/benchmark.h>

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
}
