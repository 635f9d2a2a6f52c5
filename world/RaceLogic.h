// SPDX-License-Identifier: Zlib
// world/RaceLogic.h: running order, checkpoints and laps, the finish.
#pragma once
#include "world/Simulation.h"

#include <string>

namespace world
{
// Place of every player: 1 + the number of players ahead. Reads where the cars stand, writes the players' Place alone.
void ComputePlaces(Simulation& sim);

// What the race step asks of the display when the user's car finishes.
struct FinishSink
{
    virtual ~FinishSink() = default;
    // message: "Sei arrivato primo" and so on, to be shown; the lap labels vanish.
    virtual void Finished(const std::string& message) = 0;
};

// Checkpoints, laps, finish and zones for every player in index order. At the finish of the user's car, once a race:
// RaceOver is set, the computer takes the wheel, a trophy shows for the first three, the camera goes to view 5.
void RaceStep(Simulation& sim, FinishSink& finish);
}
