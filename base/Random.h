// SPDX-License-Identifier: Zlib
// base/Random.h: the game's uniform draws. One generator, seeded from the clock at start and by scripts in tests.
#pragma once
#include <cstdint>
#include <vector>

namespace base
{
struct Random
{
    std::uint64_t State = 0;
    std::vector<double> Script; // when not empty, draws cycle through these values instead
    std::uint64_t ScriptNext = 0;

    void Seed(std::uint64_t seed);
    // Uniform in [0, 1): 53 bits of SplitMix64 (Steele, Lea and Flood 2014).
    double Next();
};
}
