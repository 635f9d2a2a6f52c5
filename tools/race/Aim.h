// SPDX-License-Identifier: Zlib
// tools/race/Aim.h: where a driver wants to go in the next moment.
#pragma once
#include "tools/race/Line.h"

namespace race
{
inline constexpr double NoLimit = 1e9;

struct Aim
{
    Spot To;
    double Most = NoLimit; // speed not to be exceeded; 0 is to stop
};
}
