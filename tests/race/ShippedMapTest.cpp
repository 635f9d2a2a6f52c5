// What the shipped map promises: eight computer drivers race it cleanly, whatever the draws.
#include "tests/support/ShippedRace.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <vector>

namespace
{
constexpr int Laps = 3;
constexpr double Shortest = 25.0, Longest = 60.0; // seconds a lap

struct Outcome
{
    std::vector<std::vector<double>> LapTimes; // by car, seconds
    int LeadChanges = 0;
    double Seconds = 0.0;
};

std::int16_t Leader(const world::Race& race)
{
    for (std::size_t car = 0; car < race.Players.size(); ++car)
        if (race.Players[car].Place == 1)
            return static_cast<std::int16_t>(car);
    return -1;
}

bool AllDone(const Outcome& outcome)
{
    for (const std::vector<double>& times : outcome.LapTimes)
        if (times.size() < Laps)
            return false;
    return true;
}

Outcome RaceWith(std::uint64_t seed)
{
    support::ShippedRace shipped(seed);
    world::Race& race = shipped.Game().Race;
    race.Laps = Laps;
    Outcome outcome;
    outcome.LapTimes.resize(race.Players.size());
    std::vector<double> begun(race.Players.size(), 3.0); // the cars are released at three seconds
    std::int16_t leader = -1;
    const int mostTicks = static_cast<int>((3.0 + Laps * Longest) * 40.0);
    for (int tick = 0; tick < mostTicks && !AllDone(outcome); ++tick)
    {
        shipped.Step();
        outcome.Seconds = race.GameTime / 1000.0;
        for (std::size_t car = 0; car < race.Players.size(); ++car)
            if (race.Players[car].Lap > static_cast<int>(outcome.LapTimes[car].size()))
            {
                outcome.LapTimes[car].push_back(outcome.Seconds - begun[car]);
                begun[car] = outcome.Seconds;
            }
        const std::int16_t now = Leader(race);
        // The order of the grid settles in the first ten seconds; changes count from there.
        if (outcome.Seconds > 3.0 && leader >= 0 && now != leader && race.RaceOver == base::False)
            ++outcome.LeadChanges;
        leader = now;
    }
    return outcome;
}
}

TEST(ShippedMap, LoadsWithoutAWord)
{
    support::ShippedRace shipped;
    EXPECT_TRUE(shipped.Boxes().empty()) << shipped.Boxes().front().Text;
    EXPECT_EQ(shipped.Game().Race.NumPlayers, 8);
    EXPECT_GE(shipped.Game().Race.Map.ACheckpoints.size(), shipped.Game().Race.Map.Checkpoints.size());
    EXPECT_GT(shipped.Game().Race.Map.NumBoxes, 0);
    EXPECT_GT(shipped.Game().Race.Map.NumGrass, 0);
    EXPECT_GT(shipped.Game().Race.Map.NumWater, 0);
}

TEST(ShippedMap, EightComputerDriversFinishThreeLapsWithTenSeeds)
{
    int racesWithALeadChange = 0;
    for (std::uint64_t seed = 1; seed <= 10; ++seed)
    {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const Outcome outcome = RaceWith(seed);
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
        racesWithALeadChange += outcome.LeadChanges > 0 ? 1 : 0;
    }
    EXPECT_GT(racesWithALeadChange, 5);
}

// The same draws, the same race.
TEST(ShippedMap, ARaceRepeatsItself)
{
    const Outcome first = RaceWith(4), second = RaceWith(4), other = RaceWith(5);
    EXPECT_EQ(first.LapTimes, second.LapTimes);
    EXPECT_NE(first.LapTimes, other.LapTimes);
}
