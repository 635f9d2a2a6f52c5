// SPDX-License-Identifier: Zlib
// Whole races on a small world: three cars, three checkpoints on a plain.
#include "tools/race/Run.h"
#include "tests/support/SmallWorld.h"
#include "tools/race/Batches.h"
#include "tools/race/Escape.h"

#include <gmock/gmock.h>

namespace
{
struct Racing : testing::Test
{
    support::SmallWorld World;

    std::vector<race::Batch> Batches(std::vector<std::string_view> words, int jobs = 1)
    {
        return race::RunBatches(race::ParseArguments(words), World.Path.string(), jobs, nullptr);
    }
};
}

TEST_F(Racing, TheComputersComeHome)
{
    const std::vector<race::Batch> batches = Batches({"--laps", "2", "--seeds", "3"});
    ASSERT_EQ(batches.size(), 1u);
    const race::RaceResult& race = batches[0].Races.at(0);
    EXPECT_EQ(race.Seed, 3u);
    EXPECT_FALSE(race.IsCutOff);
    EXPECT_EQ(race.Complaints, "");
    ASSERT_EQ(race.Cars.size(), 3u);
    std::vector<int> places;
    for (const race::CarResult& car : race.Cars)
    {
        EXPECT_EQ(car.Laps.size(), 2u);
        EXPECT_FALSE(car.IsHuman);
        places.push_back(car.Place);
    }
    EXPECT_THAT(places, testing::UnorderedElementsAre(1, 2, 3));
}

TEST_F(Racing, TheNumberOfJobsChangesNothing)
{
    const std::vector<std::string_view> words = {"--laps",  "2",       "--seeds", "1-3",
                                                 "--human", "average", "--vary",  "players[*].MaxSpeed=*0.9,*1"};
    const std::vector<race::Batch> one = Batches(words, 1), four = Batches(words, 4);
    EXPECT_EQ(race::JsonOf(one), race::JsonOf(four));
    EXPECT_EQ(race::CsvOf(one), race::CsvOf(four));
    EXPECT_EQ(race::TableOf(one), race::TableOf(four));
    EXPECT_NE(race::CsvOf({one.data(), 1}), race::CsvOf({one.data() + 1, 1}));
}

TEST_F(Racing, AHumanDrivesAndKnowsTheOwnCleanLap)
{
    for (const char* skill : {"weak", "average", "strong"})
    {
        const race::RaceResult race = Batches({"--laps", "2", "--seeds", "1", "--human", skill})[0].Races.at(0);
        EXPECT_TRUE(race.Cars[0].IsHuman) << skill;
        EXPECT_TRUE(race.Cars[0].Finish.has_value()) << skill;
        ASSERT_TRUE(race.CleanLap.has_value()) << skill;
        EXPECT_LT(*race.CleanLap, *race.Cars[0].Finish) << skill;
    }
}

TEST_F(Racing, TheGridIsAskedForByPosition)
{
    // The user's car stands at x = 50, the others at 58 and 42; all look at a checkpoint at x = 50.
    EXPECT_EQ(Batches({"--laps", "1", "--seeds", "1"})[0].Races[0].Cars[0].Grid, 1);
    EXPECT_EQ(Batches({"--laps", "1", "--seeds", "1", "--grid", "2"})[0].Races[0].Cars[0].Grid, 2);
    EXPECT_THROW(Batches({"--grid", "4"}), drive::Refusal);
}

TEST_F(Racing, ARaceWithoutAnEndIsCutOff)
{
    const race::RaceResult race =
        Batches({"--laps", "1", "--seeds", "1", "--limit", "5", "--set", "players[1].Control=0"})[0].Races.at(0);
    EXPECT_TRUE(race.IsCutOff);
    EXPECT_EQ(race.Winner(), std::nullopt);
    EXPECT_EQ(race.Cars[1].Stops, 0); // two seconds are none
}

TEST_F(Racing, WhatCannotBeSetEndsItAll)
{
    EXPECT_THROW(Batches({"--set", "players[9].Brake=1"}, 3), drive::Refusal);
    EXPECT_THROW(Batches({"--set", "race.Laps=0"}), drive::Refusal);
    World.Remove("data/images/sky.bmp");
    EXPECT_THROW(Batches({}), drive::Refusal);
}

TEST_F(Racing, WhatLoadingComplainsOfIsKept)
{
    World.Write("data/maps/map_01/grass.txt", "10,0,x,3\r\n");
    EXPECT_THAT(Batches({"--laps", "1", "--seeds", "1"})[0].Races.at(0).Complaints, testing::HasSubstr("LoadTargets"));
}

TEST_F(Racing, TheTraceHasALineACarAndTick)
{
    race::Trace trace;
    const race::Plan plan{{World.Path.string(), 1, 1, {}}, nullptr, false, 0, 1};
    race::Run(plan, &trace);
    const std::string csv = trace.Csv();
    EXPECT_THAT(csv,
                testing::StartsWith("tick,car,x,z,speed,heading,damage\n1,0,50.000,20.000,0.0000,0.0000,0.0000\n"));
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 1 + 40 * 3);
}

TEST_F(Racing, NothingKeepsACarOnAPlain)
{
    const race::Setup setup{World.Path.string(), 1, 1, {}};
    const std::vector<race::Attempt> attempts = race::TryToEscape(setup, 2, 20, 1, nullptr);
    ASSERT_EQ(attempts.size(), 4u);
    for (const race::Attempt& attempt : attempts)
    {
        EXPECT_TRUE(attempt.Left.has_value());
        EXPECT_LT(attempt.Margin, 0);
    }
    EXPECT_TRUE(attempts[0].IsFromLap);
    EXPECT_FALSE(attempts[3].IsFromLap);
    EXPECT_EQ(race::EscapeJson(attempts), race::EscapeJson(race::TryToEscape(setup, 2, 20, 4, nullptr)));
    EXPECT_THAT(race::EscapeTable(attempts), testing::HasSubstr("4 attempts, 4 left the map, 0 did not come back\n"));
    EXPECT_FALSE(attempts[0].Back.has_value());
}

TEST_F(Racing, WhoHasStayedOnThePlainDrivesBack)
{
    const race::Setup setup{World.Path.string(), 1, 1, {}};
    const std::vector<race::Attempt> attempts = race::TryToEscape(setup, 1, 1, 1, nullptr);
    ASSERT_EQ(attempts.size(), 2u);
    EXPECT_EQ(attempts[1].Left, std::nullopt);
    EXPECT_TRUE(attempts[1].Back.has_value());
    EXPECT_THAT(race::EscapeTable({&attempts[1], 1}), testing::HasSubstr(" back after "));
}
