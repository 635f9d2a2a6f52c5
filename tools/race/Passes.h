// SPDX-License-Identifier: Zlib
// tools/race/Passes.h: who passes whom. Cars side by side change places many times; a pass counts once the new order
// has held for a while.
#pragma once
#include <cstddef>
#include <span>
#include <vector>

namespace race
{
struct Pass
{
    std::size_t Passer = 0, Passed = 0; // players
};

class PassCounter
{
public:
    // hold: ticks that an order must last.
    PassCounter(std::size_t cars, int hold) : Cars(cars), Hold(hold), Pairs(cars * cars) {}

    // places: of every car, 1 for the first; equal ones say nothing. The passes that count from this tick on. The
    // first order seen is no pass.
    std::vector<Pass> Take(std::span<const int> places);

private:
    struct Pair
    {
        int Order = 0;   // +1: the first of the two is ahead; 0: not known yet
        int Against = 0; // ticks that it has been the other way round
    };

    std::size_t Cars;
    int Hold;
    std::vector<Pair> Pairs; // of cars i < j at i * Cars + j
};
}
