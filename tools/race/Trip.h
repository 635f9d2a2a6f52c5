// SPDX-License-Identifier: Zlib
// tools/race/Trip.h: the trip of a badly damaged car to a repair box.
#pragma once
#include "tools/race/Course.h"

#include <optional>
#include <span>

namespace race
{
class Trip
{
public:
    // boxes outlive this.
    explicit Trip(std::span<const world::Target> boxes) : Boxes(boxes) {}

    // Where to drive for the repair; nothing while there is no trip. Asked once a tick.
    std::optional<Aim> Next(const Sight& sight, const Course& course);

private:
    void Begin(const Sight& sight, const Course& course);

    std::span<const world::Target> Boxes;
    const world::Target* Goal = nullptr;
    int Patience = 0; // ticks until the trip is given up, or below 0 until the next one is thought of
};
}
