// SPDX-License-Identifier: Zlib
// assets/track/Race.h: what the race needs of the map: gates, zones and drivers.
#pragma once
#include "assets/track/Plan.h"

namespace assets::track
{
// A round zone on the ground.
struct Zone
{
    double X = 0, Z = 0, R = 0;
};

// Gates of one lap; the last lies at the start line. Computer drivers aim at the centres one after the other.
std::vector<Zone> Checkpoints(const Circuit& road);
// For each gate a wider zone that begins where the gate begins and reaches out to both sides beyond it; at the chicane
// it takes in the grass that tempts to cut.
std::vector<Zone> AlternativeCheckpoints(const Circuit& road);
// Those of the pit lane, then those of the lay-bys.
std::vector<Zone> RepairBoxes(const Plan& plan);
// Circles that cover the grass and gravel beside the road, and the lake.
std::vector<Zone> GrassZones(const Plan& plan);
std::vector<Zone> WaterZones(const Plan& plan);

struct Driver
{
    double Steering, TopSpeed, ReverseSpeed, Acceleration, Brake, Friction;
};
// Eight; the first is the player's.
const std::vector<Driver>& Drivers();
// Grid slot of each driver, 0 in front.
const std::vector<int>& GridSlots();
// Where a car stands in a slot.
Standing GridPlace(const Circuit& road, int slot);
}
