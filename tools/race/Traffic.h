// SPDX-License-Identifier: Zlib
// tools/race/Traffic.h: the cars around: whom to steer round, and on which side, and whom to follow.
#pragma once
#include "tools/race/Course.h"

#include <optional>

namespace race
{
class Traffic
{
public:
    explicit Traffic(const Line& line) : TheLine(line) {}

    // Units to the left of the line that the driver keeps to, for the cars that are near; changes slowly.
    // here: the driver's point of the line.
    double Left(const Sight& sight, std::size_t here);
    // The speed that a car right ahead leaves.
    static double MostSpeed(const Sight& sight);

private:
    std::optional<double> Wanted(const Sight& sight, std::size_t here);

    const Line& TheLine;
    double Offset = 0;
    int Side = 0; // on which the car ahead is being passed: +1 left
};
}
