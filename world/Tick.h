// SPDX-License-Identifier: Zlib
// world/Tick.h: one step of the simulation, 40 a second. The one place where its order is written.
#pragma once
#include "world/RaceLogic.h"
#include "world/Simulation.h"

namespace world
{
// From this race time on, in milliseconds, cars answer to their drivers: the countdown is over.
inline constexpr std::int32_t ReleaseTime = 3000;

// The step at Race.GameTime, which the caller has set. Its order:
//   1. places are given, from where the last step left the cars: a finish in this step is announced with them;
//   2. once the race is over, the trophy floats before the camera;
//   3. for every player in turn: checkpoints, laps, the finish, then the zones in which the car stands;
//   4. collisions;
//   5. damaged cars smoke, and every particle ages, those born in this step too;
//   6. from ReleaseTime on the computer's cars drive, then the user's: each moves at once;
//   7. with the webcam on, its shake fades.
// Whoever wants to hear the speed that a car has between two steps, as the engine's sound does, asks before the step;
// whoever shows where the cars are, as the camera does, asks behind it.
// The phases that are measured: "places" (with the trophy), "race", "collisions", "particles", "drivers" (with the
// shake).
void GameTick(Simulation& sim, FinishSink& finish);
// The same with the plain collisions: the judge of the fast ones over whole steps.
void GameTickPlain(Simulation& sim, FinishSink& finish);
}
