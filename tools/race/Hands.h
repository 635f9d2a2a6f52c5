// SPDX-License-Identifier: Zlib
// tools/race/Hands.h: what hands do: keys go down and up, no quicker than fingers move, and attention wanders.
#pragma once
#include "base/Random.h"

namespace race
{
// One of two opposite keys, or neither. A new choice is taken once the last one has been held long enough.
class Fingers
{
public:
    explicit Fingers(int hold) : Hold(hold), Age(hold) {}

    // side: +1, 0, -1. What is held in this tick.
    int Press(int side)
    {
        ++Age;
        if (side != Held && Age >= Hold)
        {
            Held = side;
            Age = 0;
        }
        return Held;
    }

private:
    int Hold; // ticks
    int Held = 0, Age;
};

// A value that wanders about 0, a step a tick.
class Wandering
{
public:
    // spread: how far from 0 it is typically. seconds: how long it takes to forget where it was.
    Wandering(double spread, double seconds);
    double Next(base::Random& random);

private:
    double Keep, Push; // a tick
    double Value = 0;
};
}
