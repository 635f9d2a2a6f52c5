// SPDX-License-Identifier: Zlib
#include "tools/race/Stage.h"

#include "tools/race/Apply.h"
#include "world/Cars.h"

#include <algorithm>
#include <numeric>

namespace race
{
namespace
{
constexpr std::string_view NothingToSay = R"({"messages": []})";

bool WriteNothing(const std::string&, std::string_view, drive::Writing)
{
    return false;
}

// From the player's car to the first checkpoint.
double FirstLeg(Stage& stage, std::size_t player)
{
    const render::Obj* car = stage.Car(player);
    const world::Target* first = world::CheckpointAt(stage.Race().Map, 0);
    return car != nullptr && first != nullptr ? world::GroundDistance(*car, *first) : 1e9;
}
}

Stage::Stage(const Setup& setup) : Driver(base::Files(setup.Root), WriteNothing)
{
    Driver.Answer("processors 1"); // no thread of its own: the races are what runs side by side
    Driver.Answer("random seed " + std::to_string(setup.Seed));
    LoadAnswer = Driver.Answer("load");
    if (Driver.State().Form() == nullptr || Driver.State().Ended())
        throw drive::Refusal{"the game does not start: " + LoadAnswer};
    if (LoadAnswer == NothingToSay)
        LoadAnswer.clear();
    Driver.Answer("click cSTART");
    Race().Laps = static_cast<std::int16_t>(setup.Laps);
    for (const Setting& change : setup.Changes)
        Apply(Driver.State(), change);
    drive::Require(Race().Laps > 0, "a race has one lap at least");
    drive::Require(User() != nullptr, "the map has no car for the user");
    drive::Require(Race().Map.Checkpoints.Count() > 0, "the map has no checkpoints");
}

render::Obj* Stage::Car(std::size_t player)
{
    return player < Race().Players.size() ? world::ObjectAt(Game().Scene, Race().Players[player].Obj) : nullptr;
}

world::Player* Stage::User()
{
    return world::FindPlayer(Race(), Race().UserPlayer);
}

void Stage::SkipCountdown()
{
    Game().Timers.GameT.Elapsed = world::ReleaseTime;
}

void TakeOthersOff(Stage& stage)
{
    world::Race& race = stage.Race();
    const auto user = static_cast<std::size_t>(race.UserPlayer);
    for (std::size_t i = 0; i < race.Players.size(); ++i)
        if (render::Obj* car = stage.Car(i); car != nullptr && i != user)
        {
            car->Sfere.clear();
            car->Visible = 0;
        }
    race.Players = {race.Players[user]};
    race.UserPlayer = 0;
    stage.Game().Camera.ViewPlayer = 0;
}

std::vector<int> GridPositions(Stage& stage)
{
    const std::size_t count = stage.Race().Players.size();
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return FirstLeg(stage, a) < FirstLeg(stage, b); });
    std::vector<int> positions(count);
    for (std::size_t at = 0; at < count; ++at)
        positions[order[at]] = static_cast<int>(at) + 1;
    return positions;
}

void PlaceOnGrid(Stage& stage, int position)
{
    const std::vector<int> positions = GridPositions(stage);
    const auto there = std::find(positions.begin(), positions.end(), position);
    drive::Require(there != positions.end(), "there is no grid position " + std::to_string(position) +
                                                 ", the map has " + std::to_string(positions.size()) + " cars");
    render::Obj* users = stage.Car(static_cast<std::size_t>(stage.Race().UserPlayer));
    render::Obj* others = stage.Car(static_cast<std::size_t>(there - positions.begin()));
    if (users == nullptr || others == nullptr)
        return;
    std::swap(users->X, others->X);
    std::swap(users->Z, others->Z);
    std::swap(users->AngleA, others->AngleA);
}
}
