// SPDX-License-Identifier: Zlib
// tools/race/Trace.h: where cars were at every tick, as a table: tick, car, x, z, speed, heading, damage.
#pragma once
#include "tools/race/Measure.h"

#include <string>

namespace race
{
class Trace
{
public:
    void Take(const std::vector<CarState>& cars);
    std::string Csv() const;

private:
    std::string Rows;
    int Tick = 0;
};
}
