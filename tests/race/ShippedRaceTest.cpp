// SPDX-License-Identifier: Zlib
// What the shipped map promises: it loads in silence, and eight computer drivers race it cleanly, whatever the draws.
#include "tests/support/ShippedRace.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace
{
constexpr int Laps = 3;
constexpr double Release = 3.0;                   // seconds on the race clock
constexpr double Shortest = 25.0, Longest = 60.0; // seconds a lap

struct Outcome
{
    std::vector<std::vector<double>> LapTimes; // by car, seconds
    int LeadChanges = 0;
    std::vector<headless::Box> Boxes; // message boxes
    std::int16_t UserPlace = 0;       // as his car crossed the line
    std::multiset<int> Places;        // at the end
};

std::int16_t Leader(const world::Race& race)
{
    const auto leader = std::ranges::find(race.Players, std::int16_t{1}, &world::Player::Place);
    return static_cast<std::int16_t>(leader - race.Players.begin());
}

bool AllDone(const world::Race& race)
{
    return std::ranges::all_of(race.Players, [](const world::Player& player) { return player.Lap >= Laps; });
}

// Until the last car has its laps, or the slowest race there may be is over.
Outcome RaceWith(std::uint64_t seed)
{
    support::ShippedRace shipped(seed);
    world::Race& race = shipped.Game().Race;
    race.Laps = Laps;
    Outcome outcome;
    outcome.LapTimes.resize(race.Players.size());
    std::vector<double> begun(race.Players.size(), Release);
    std::int16_t leader = -1;
    const int mostTicks = static_cast<int>((Release + Laps * Longest) * 40.0);
    for (int tick = 0; tick < mostTicks && !AllDone(race); ++tick)
    {
        const bool wasOver = race.RaceOver != base::False;
        shipped.Step();
        const double seconds = race.GameTime / 1000.0;
        for (std::size_t car = 0; car < race.Players.size(); ++car)
            if (race.Players[car].Lap > static_cast<int>(outcome.LapTimes[car].size()))
            {
                outcome.LapTimes[car].push_back(seconds - begun[car]);
                begun[car] = seconds;
            }
        const bool isOver = race.RaceOver != base::False;
        if (isOver && !wasOver)
            outcome.UserPlace = race.Players[static_cast<std::size_t>(race.UserPlayer)].Place;
        const std::int16_t now = Leader(race);
        if (seconds > Release && leader >= 0 && now != leader && !isOver)
            ++outcome.LeadChanges;
        leader = now;
    }
    for (const world::Player& player : race.Players)
        outcome.Places.insert(player.Place);
    outcome.Boxes = shipped.Boxes();
    return outcome;
}

void ExpectClean(const Outcome& outcome)
{
    ASSERT_EQ(outcome.LapTimes.size(), 8u);
    for (std::size_t car = 0; car < outcome.LapTimes.size(); ++car)
    {
        SCOPED_TRACE("car " + std::to_string(car));
        EXPECT_GE(outcome.LapTimes[car].size(), static_cast<std::size_t>(Laps)) << "laps done";
        for (const double seconds : outcome.LapTimes[car])
        {
            EXPECT_GE(seconds, Shortest);
            EXPECT_LE(seconds, Longest);
        }
    }
    EXPECT_TRUE(outcome.Boxes.empty()) << outcome.Boxes.front().Text;
    EXPECT_EQ(outcome.Places, (std::multiset<int>{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_GE(outcome.UserPlace, 1) << "the race has no finish";
    EXPECT_LE(outcome.UserPlace, 8);
}
}

TEST(ShippedRace, LoadsWithoutAWord)
{
    support::ShippedRace shipped;
    EXPECT_TRUE(shipped.Boxes().empty()) << shipped.Boxes().front().Text;
    EXPECT_EQ(shipped.Game().Race.NumPlayers(), 8);
    EXPECT_GE(shipped.Game().Race.Map.ACheckpoints.Items.size(), shipped.Game().Race.Map.Checkpoints.Items.size());
    EXPECT_GT(shipped.Game().Race.Map.Boxes.Count(), 0);
    EXPECT_GT(shipped.Game().Race.Map.Grass.Count(), 0);
    EXPECT_GT(shipped.Game().Race.Map.Water.Count(), 0);
}

// Ten races, none like another; the lead changes in most of them.
TEST(ShippedRace, EightComputerDriversFinishThreeLapsWithTenSeeds)
{
    int racesWithALeadChange = 0;
    std::set<std::vector<std::vector<double>>> races;
    for (std::uint64_t seed = 1; seed <= 10; ++seed)
    {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const Outcome outcome = RaceWith(seed);
        ExpectClean(outcome);
        racesWithALeadChange += outcome.LeadChanges > 0 ? 1 : 0;
        races.insert(outcome.LapTimes);
    }
    EXPECT_GT(racesWithALeadChange, 5);
    EXPECT_EQ(races.size(), 10u);
}
