// SPDX-License-Identifier: Zlib
#include "tools/race/Hands.h"

#include "base/Math.h"
#include "tools/race/Stage.h"

namespace race
{
namespace
{
constexpr int Draws = 4; // their sum is bell-shaped enough

// Mean 0, spread 1.
double Bell(base::Random& random)
{
    double sum = 0;
    for (int i = 0; i < Draws; ++i)
        sum += random.Next() - 0.5;
    return sum * base::Sqrt(12.0 / Draws);
}
}

Wandering::Wandering(double spread, double seconds)
    : Keep(1 - 1 / (seconds * TicksASecond)), Push(spread * base::Sqrt(1 - Keep * Keep))
{
}

double Wandering::Next(base::Random& random)
{
    return Value = Value * Keep + Push * Bell(random);
}
}
