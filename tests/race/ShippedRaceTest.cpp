// A whole race of the shipped circuit, driven by the computer: it can be driven, and it ends.
#include "tools/drive/Driver.h"

#include <gtest/gtest.h>

#include <set>

namespace
{
struct ShippedRace : testing::Test
{
    drive::Driver Driver{base::Files(VELKAR_SHIPPED)};

    void Tell(const std::string& line)
    {
        const std::string answer = Driver.Answer(line);
        ASSERT_FALSE(Driver.HadErrors()) << line << ": " << answer;
        ASSERT_EQ(answer.find("\"icon\""), std::string::npos) << line << ": " << answer;
    }
    const world::Race& Race() { return Driver.State().Form()->State().Race; }
};
}

TEST_F(ShippedRace, EveryDriverCompletesItsLaps)
{
    constexpr int mostTicks = 6000; // two and a half minutes
    Tell("random seed 11");
    Tell("load");
    Tell("click cSTART");
    Tell("poke race.Laps 2");
    Tell("poke players[0].Control 1");
    ASSERT_EQ(Race().NumPlayers, 8);
    const auto allDone = [&]
    {
        return std::all_of(Race().Players.begin(), Race().Players.end(),
                           [](const world::Player& player) { return player.Lap >= 2; });
    };
    int ticks = 0;
    for (; ticks < mostTicks && !allDone(); ticks += 40)
        Tell("game 40");
    for (std::size_t i = 0; i < Race().Players.size(); ++i)
        EXPECT_GE(Race().Players[i].Lap, 2) << "player " << i << ", " << Race().Players[i].Passed << " checkpoints";
    EXPECT_NE(Race().RaceOver, 0);
    EXPECT_GT(ticks, 1000) << "two laps take longer";
}

TEST_F(ShippedRace, PlacesAreOneToEight)
{
    Tell("load");
    Tell("click cSTART");
    Tell("game 400");
    std::set<int> places;
    for (const world::Player& player : Race().Players)
        places.insert(player.Place);
    EXPECT_EQ(*places.begin(), 1);
    EXPECT_LE(*places.rbegin(), 8);
    EXPECT_GT(places.size(), 4u) << "the grid spreads";
}
