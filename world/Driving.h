// SPDX-License-Identifier: Zlib
// world/Driving.h: how cars answer their controls: speed, steering, movement, gears, damage. Speeds are world units in
// two ticks of 25 ms, positive forward; a tick moves a car by half of its speed. The speed shown is 36 times that.
#pragma once
#include "world/Simulation.h"

namespace world
{
// Steering against speed: 0 at rest, 1 at speed 1, then 2 / (s + 1); negative in reverse.
double SteerFactor(double speed);
// "R" below 0, "N" at 0, "1" … "6" by speed.
const char* Gear(float speed);
// Engine-sound step of a speed, 0.2 at rest: climbs within each gear and falls back at the next.
double EngineNote(float speed);
// Effective values after a change of damage: base / (damage + 1). Steering and friction are not scaled.
void ApplyDamage(Player& player);

// Darkens two texels of the ground under the car's sides: their channels times `strength` (0.7 or 0.9). Nothing for
// what lies off the ground and for a player without a car.
void TyreMarks(Simulation& sim, const Player& player, double strength);
// The user's car for one tick, by the held keys; nothing while the computer drives it. Writes the car, its speed, the
// camera's sway, tyre marks; the handbrake on a straight draws once.
void UserDrive(Simulation& sim);
// Half of Speed along the heading, then rolling friction.
void MoveCar(Simulation& sim, Player& player);
}
