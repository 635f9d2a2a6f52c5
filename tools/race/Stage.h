// SPDX-License-Identifier: Zlib
// tools/race/Stage.h: one game on a machine of its own, its race about to start. Games share nothing: each thread may
// have its own.
#pragma once
#include "tools/drive/Driver.h"
#include "tools/race/Variation.h"
#include "world/Tick.h"

#include <cstdint>
#include <span>
#include <string>

namespace race
{
inline constexpr int TicksASecond = 40;

struct Setup
{
    std::string Root; // holds data/
    std::uint64_t Seed = 1;
    int Laps = 5;
    std::span<const Setting> Changes; // made before the start
};

// Throws drive::Refusal where the game does not start or a change cannot be made.
class Stage
{
public:
    explicit Stage(const Setup& setup);

    shell::Game& Game() { return Driver.State().Form()->State(); }
    world::Race& Race() { return Game().Race; }
    // Null for a player without a car.
    render::Obj* Car(std::size_t player);
    world::Player* User();
    void SkipCountdown();
    // 25 ms of the game.
    void Step() { Driver.State().Step(); }
    bool IsReleased() { return Race().GameTime >= world::ReleaseTime; } // the countdown is over
    // What loading complained of, as JSON; empty where all is well.
    const std::string& Complaints() const { return LoadAnswer; }

private:
    drive::Driver Driver;
    std::string LoadAnswer;
};

// The user's car alone remains: the other players are gone, and nothing can touch their cars.
void TakeOthersOff(Stage& stage);
// The user's car and the one that stands in that grid position, 1 in front, change their places. Throws drive::Refusal
// where there are not so many cars.
void PlaceOnGrid(Stage& stage, int position);
// The position of every player's car at the start, 1 for the one nearest to the first checkpoint.
std::vector<int> GridPositions(Stage& stage);
}
