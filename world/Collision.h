// SPDX-License-Identifier: Zlib
// world/Collision.h: who touches whom, the damage, and how the two part.
#pragma once
#include "world/Simulation.h"

namespace world
{
// Collisions of all object pairs for one tick, in the order of their indices; each pair sees what the ones before it
// moved. Only pairs that may touch are looked at. Writes the objects' places, angles and dents, the players' speed and
// damage, and Shake.
void Collide(Simulation& sim);
// The same, straight from its definition: every pair. The judge of the fast one.
void CollidePlain(Simulation& sim);
}
