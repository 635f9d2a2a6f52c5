// SPDX-License-Identifier: Zlib
#include "tools/race/Run.h"

#include "tools/race/HumanDriver.h"
#include "tools/race/Scout.h"

#include <algorithm>

namespace race
{
namespace
{
constexpr int LongestLap = 180; // seconds of game time that a lap alone on the track may take

// The race itself; a driver only where a human drives.
RaceResult Play(Stage& stage, const Plan& plan, HumanDriver* driver, Trace* trace)
{
    if (driver == nullptr)
        stage.User()->Control = 1;
    Measure measure(stage.Race().Laps, GridPositions(stage));
    while (!measure.AreAllHome() && stage.Race().GameTime < plan.Limit * 1000)
    {
        if (driver != nullptr)
            stage.Game().Keys = driver->Drive(LookAround(stage));
        stage.Step();
        const std::vector<CarState> cars = StatesOf(stage);
        measure.Take(cars, (stage.Race().GameTime - world::ReleaseTime) / 1000.0);
        if (trace != nullptr)
            trace->Take(cars);
    }
    RaceResult result = measure.Conclude();
    if (driver != nullptr)
        result.Cars[static_cast<std::size_t>(stage.Race().UserPlayer)].IsHuman = true;
    result.Complaints = stage.Complaints();
    return result;
}
}

RaceResult Run(const Plan& plan, Trace* trace)
{
    Stage stage(plan.Start);
    if (plan.Grid > 0)
        PlaceOnGrid(stage, plan.Grid);
    RaceResult result;
    if (plan.Human == nullptr)
        result = Play(stage, plan, nullptr, trace);
    else
    {
        const Scouted track = Scout(plan.Start, *plan.Human, std::min(LongestLap, plan.Limit));
        HumanDriver driver(track.Way, stage.Race().Map, *plan.Human, plan.Repairs, plan.Start.Seed);
        result = Play(stage, plan, &driver, trace);
        result.CleanLap = track.MeanLap();
    }
    result.Seed = plan.Start.Seed;
    return result;
}
}
