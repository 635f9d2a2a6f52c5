// SPDX-License-Identifier: Zlib
#include "tools/race/Scout.h"

#include "tools/race/HumanDriver.h"

#include <limits>
#include <numeric>

namespace race
{
namespace
{
// Drives until the user has completed so many laps; false when that takes too long. eachTick: called before each.
template <class EachTick> bool DriveTo(Stage& stage, int lap, int seconds, EachTick&& eachTick)
{
    for (int tick = 0; tick < seconds * TicksASecond; ++tick)
    {
        if (stage.User()->Lap >= lap)
            return true;
        eachTick();
        stage.Step();
    }
    return stage.User()->Lap >= lap;
}

Spot UsersPlace(Stage& stage)
{
    const render::Obj* car = stage.Car(static_cast<std::size_t>(stage.Race().UserPlayer));
    return car != nullptr ? Spot{car->X, car->Z} : Spot{};
}
}

std::optional<double> Scouted::MeanLap() const
{
    if (Clean.size() < CleanLaps)
        return std::nullopt;
    return std::accumulate(Clean.begin(), Clean.end(), 0.0) / CleanLaps;
}

Scouted ScoutLine(Stage& stage, int lapSeconds)
{
    TakeOthersOff(stage);
    stage.Race().Laps = std::numeric_limits<std::int16_t>::max(); // no finish
    stage.User()->Control = 1;
    std::vector<Spot> way;
    const bool isDriven = DriveTo(stage, 1, lapSeconds, [] {}) &&
                          DriveTo(stage, 2, lapSeconds, [&] { way.push_back(UsersPlace(stage)); });
    stage.User()->Control = 0;
    Line line = isDriven ? Line(std::move(way)) : Line(stage.Race().Map.Checkpoints.Targets());
    return {std::move(line), isDriven, {}};
}

Scouted Scout(const Setup& setup, const Skill& skill, int lapSeconds)
{
    Stage stage(setup);
    Scouted scouted = ScoutLine(stage, lapSeconds);
    HumanDriver driver(scouted.Way, stage.Race().Map, skill, false, setup.Seed);
    const auto drive = [&] { stage.Game().Keys = driver.Drive(LookAround(stage)); };
    // The first lap is still the computer's in part.
    int lap = stage.User()->Lap + 1;
    bool inTime = DriveTo(stage, lap, lapSeconds, drive);
    for (int i = 0; i < CleanLaps && inTime; ++i)
    {
        const std::int32_t began = stage.Race().GameTime;
        inTime = DriveTo(stage, ++lap, lapSeconds, drive);
        if (inTime)
            scouted.Clean.push_back((stage.Race().GameTime - began) / 1000.0);
    }
    return scouted;
}
}
