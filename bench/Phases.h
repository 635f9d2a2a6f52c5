// SPDX-License-Identifier: Zlib
// bench/Phases.h: the phases of a frame or a tick as columns of a benchmark.
#pragma once
#include "base/PhaseClock.h"

#include <benchmark/benchmark.h>

#include <chrono>

namespace bench
{
// Milliseconds of each phase in an iteration.
inline void ReportPhases(benchmark::State& state, const base::PhaseClock& clock)
{
    for (const base::PhaseClock::Phase& phase : clock.Phases())
        state.counters[phase.Name] = benchmark::Counter(std::chrono::duration<double, std::milli>(phase.Time).count(),
                                                        benchmark::Counter::kAvgIterations);
}
}
