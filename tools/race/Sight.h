// SPDX-License-Identifier: Zlib
// tools/race/Sight.h: what a driver sees at one moment.
#pragma once
#include "tools/race/Line.h"
#include "tools/race/Stage.h"

#include <cstdint>
#include <vector>

namespace race
{
// A car. Heading in game angles, Speed along it: a tick moves a car by half of it.
struct Seen
{
    Spot Place;
    double Heading = 0, Speed = 0;
};

struct Sight
{
    Seen Own;
    std::vector<Seen> Others;
    std::int16_t NextCheckpoint = 0;
    double Damage = 0;
    // What the car can do at present.
    double Steering = 0, Acceleration = 0, Brake = 0, TopSpeed = 0;
    bool Released = false; // the countdown is over
};

// What the user sees.
Sight LookAround(Stage& stage);
// The same car a tick later. Keys: +1 left, -1 right, 0 straight; +1 throttle, -1 brake, 0 neither.
Seen AfterTick(const Seen& car, const Sight& can, int steer, int pedal);
}
