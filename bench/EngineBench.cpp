// SPDX-License-Identifier: Zlib
// One buffer of the engine's sound, 46 ms of it.
#include "audio/EngineSound.h"

#include <benchmark/benchmark.h>

namespace
{
void Refill(benchmark::State& state)
{
    audio::EngineSound engine;
    for (std::size_t i = 0; i < engine.Table.size(); ++i)
        engine.Table[i] = static_cast<std::int16_t>(static_cast<int>(i * 37 % 220) - 110);
    engine.Step = 0.37f;
    engine.Gain = 250;
    std::int32_t buffer = 0;
    for (auto _ : state)
    {
        audio::FillEngineBuffer(engine, buffer);
        benchmark::DoNotOptimize(engine.Buffers.data());
        buffer = (buffer + 1) % audio::BufferCount;
    }
}
}

BENCHMARK(Refill)->Unit(benchmark::kMicrosecond);
