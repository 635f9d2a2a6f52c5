// SPDX-License-Identifier: Zlib
// tools/preview/LapLine.h: a lap as the map gives it: straight from checkpoint to checkpoint and back to the first.
#pragma once
#include "world/Race.h"

#include <cstdint>
#include <span>
#include <vector>

namespace preview
{
struct Place
{
    double X = 0, Z = 0;   // world units
    double AngleA = 0;     // of a car that drives along the line there
    double Along = 0;      // world units from the first checkpoint
    std::int16_t Next = 0; // the checkpoint ahead
};

class LapLine
{
public:
    // Failure where two checkpoints at least, at different places, are not there.
    explicit LapLine(std::span<const world::Target> checkpoints);

    double Length() const { return Begins.back(); } // of the lap
    // The place so far along, from 0 to below the length.
    Place At(double along) const;
    // So many places, equally far from each other, beginning at the first checkpoint.
    std::vector<Place> Places(int count) const;
    // How far along a car is that has passed so many checkpoints since the start and stands there: below 0 before the
    // first one, the length and more once it has come round. Nearer to the next checkpoint is farther along.
    double Progress(int passed, double x, double z) const;

private:
    const world::Target& Checkpoint(std::size_t number) const { return Checkpoints[number % Checkpoints.size()]; }

    std::span<const world::Target> Checkpoints;
    std::vector<double> Begins; // how far along each checkpoint stands; the last is the first one again
};
}
