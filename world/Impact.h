// SPDX-License-Identifier: Zlib
// world/Impact.h: what a contact of two bodies does to them: damage, dents, and how they part.
#pragma once
#include "world/Shape.h"
#include "world/Simulation.h"

namespace world
{
// Fills CarOf and Cars: which player drives each object, the first one where several say so. Once before the pairs.
void ListCars(Simulation& sim);
// The bodies of these two objects touch, the first with sphere A, the second with sphere B of the contact. Writes both
// objects' places, angles and dents, their players' speed and damage, and Shake. False, and nothing is written, where
// the impact is no number.
bool Strike(Simulation& sim, std::size_t first, std::size_t second, const Contact& contact);
}
