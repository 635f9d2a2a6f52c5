// SPDX-License-Identifier: Zlib
#include "base/Random.h"

namespace base
{
void Random::Seed(std::uint64_t seed)
{
    State = seed;
    Script.clear();
    ScriptNext = 0;
}

double Random::Next()
{
    if (!Script.empty())
        return Script[static_cast<std::size_t>(ScriptNext++ % Script.size())];
    State += 0x9E3779B97F4A7C15u;
    std::uint64_t z = State;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    z ^= z >> 31;
    return static_cast<double>(z >> 11) * (1.0 / 9007199254740992.0);
}
}
