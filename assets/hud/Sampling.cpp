// SPDX-License-Identifier: Zlib
#include "assets/hud/Sampling.h"

#include "base/Numbers.h"

#include <array>
#include <cmath>

namespace assets::hud
{
namespace
{
struct SampledWidth
{
    float Scale; // as the display has it: the tenths are no exact floats, and some samples lie a pixel lower for it
    int Pixels;  // what a three pixel stroke should become
    double Weight;
    bool Small; // so small that a sample beside the middle of a stroke spoils its corners
};
constexpr std::array<SampledWidth, 5> Scales{
    {{0.4f, 1, 3, true}, {0.5f, 1, 3, true}, {0.6f, 2, 1, false}, {0.7f, 2, 1, false}, {0.9f, 3, 0.6, false}}};

// How far, over all scales, a stroke over first … first + 2 differs from what it should become.
double Unevenness(int first)
{
    double total = 0;
    for (const SampledWidth& wanted : Scales)
    {
        int hits = 0;
        bool middle = false;
        for (int i = 0; i * 2 <= first * 5 + 30; ++i)
        {
            const int sampled = base::Floor(i / static_cast<double>(wanted.Scale));
            hits += sampled >= first && sampled <= first + 2;
            middle = middle || sampled == first + 1;
        }
        total += wanted.Weight * std::abs(hits - wanted.Pixels);
        if (wanted.Small && !middle)
            total += 0.5;
    }
    return total;
}
}

double BestCentre(double centre, double least)
{
    double best = centre, bestCost = 1e9;
    for (int first = 0; first < 60; ++first)
    {
        const double here = first + 1.5;
        const double cost = std::abs(here - centre) + 0.5 * Unevenness(first);
        if (here >= least - 0.01 && cost < bestCost)
        {
            best = here;
            bestCost = cost;
        }
    }
    return best;
}
}
