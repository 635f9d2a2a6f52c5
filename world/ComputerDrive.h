// SPDX-License-Identifier: Zlib
// world/ComputerDrive.h: the computer drivers: each steers at its next checkpoint and brakes for the bend behind it.
#pragma once
#include "world/Simulation.h"

namespace world
{
// Every car with Control non-zero, for one tick, in the order of the players. Draws nothing.
void ComputerDrive(Simulation& sim);
}
