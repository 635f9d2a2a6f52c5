// SPDX-License-Identifier: Zlib
// world/Zones.h: where a car stands: repair boxes, grass and water.
#pragma once
#include "world/Simulation.h"

namespace world
{
// Sees what has become of the map's zones since the last step. Once a step, before ApplyZones.
void LearnZones(Simulation& sim);
// Repairs the player's car, slows it, drowns it and splashes, by the zones that it stands in. For the car that the
// camera follows InBox is written. Nothing for a player without a car.
void ApplyZones(Simulation& sim, std::int16_t player);
}
