// world/RaceLogic.h: running order, checkpoints and laps, the finish, the computer drivers.
#pragma once
#include "world/Dynamics.h"

#include <string>

namespace world
{
// Place of every player: 1 + the number of players ahead.
void ComputePlaces(const render::Scene& scene, Race& race);

// What the race step asks of the display when the user's car finishes.
struct FinishSink
{
    virtual ~FinishSink() = default;
    // message: "Sei arrivato primo" and so on, to be shown; the lap labels vanish.
    virtual void Finished(const std::string& message) = 0;
};

// Checkpoints, laps, finish and zones for every player in index order. The finish also switches the camera to view 5.
void RaceStep(Simulation& sim, FinishSink& finish);
// Every car with Control non-zero, for one tick.
void ComputerDrive(Simulation& sim);
}
