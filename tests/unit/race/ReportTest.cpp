// SPDX-License-Identifier: Zlib
#include "tools/race/Report.h"

#include <gmock/gmock.h>

namespace
{
using testing::HasSubstr;

race::CarResult Car(int place, double finish, double damage)
{
    race::CarResult car;
    car.Grid = place;
    car.Place = place;
    car.Laps = {finish / 2, finish / 2};
    car.Places = {place, place};
    car.Finish = finish;
    car.Gap = finish - 60;
    car.Damage = damage;
    car.PeakDamage = damage + 1;
    return car;
}

// Car 0, driven by a human, wins the first of two races and is out in the second.
race::Batch TwoRaces()
{
    race::RaceResult first, second;
    first.Seed = 4;
    first.Cars = {Car(1, 60, 0), Car(2, 62, 0.5)};
    first.CleanLap = 29;
    first.Passes = 3;
    second.Seed = 5;
    second.IsCutOff = true;
    second.Cars = {Car(2, 60, 2), Car(1, 60, 0)};
    second.Cars[0].Finish = second.Cars[0].Gap = std::nullopt;
    first.Cars[0].IsHuman = second.Cars[0].IsHuman = true;
    return {{race::ParseSetting("a=*2"), race::ParseSetting("b=x,y")}, {first, second}};
}
}

TEST(Summary, MeansAndShares)
{
    const race::Batch batch = TwoRaces();
    const race::Summary summary = race::Summarise(batch.Races);
    EXPECT_EQ(summary.Races, 2u);
    EXPECT_EQ(summary.CutOff.Value(), 0.5);
    EXPECT_EQ(summary.NoneRuined.Value(), 0.5);
    EXPECT_EQ(summary.NoneEverRuined.Value(), 0); // the second car's peak was 1.5
    EXPECT_EQ(summary.Spread.Value(), 1);
    EXPECT_EQ(summary.Passes.Value(), 1.5);
    EXPECT_EQ(summary.Winning.Value(), 60);
    EXPECT_NEAR(summary.CleanRatio.Value().value(), 60 / 58.0, 1e-9);
    ASSERT_EQ(summary.Cars.size(), 2u);
    EXPECT_EQ(summary.Cars[0].Won.Value(), 0.5);
    EXPECT_EQ(summary.Cars[0].Finished.Value(), 0.5);
    EXPECT_EQ(summary.Cars[0].Finish.Value(), 60); // of the races that it finished
    EXPECT_EQ(summary.Cars[0].Place.Value(), 1.5);
    EXPECT_EQ(summary.Cars[1].Ruined.Value(), 0);
    EXPECT_EQ(race::Mean().Value(), std::nullopt);
}

TEST(Report, CsvHasALineACarAndRace)
{
    const std::vector<race::Batch> batches = {TwoRaces()};
    EXPECT_EQ(race::CsvOf(batches),
              "a,b,seed,car,driver,grid,place,finished,time,gap,laps,places,flying_lap,clean_lap,damage,peak_damage,"
              "stops,stopped,passes,passed,cut_off\n"
              "*2,\"x,y\",4,0,human,1,1,1,60.000,0.000,30.000 30.000,1 1,30.000,29.000,0.000,1.000,0,0.000,0,0,0\n"
              "*2,\"x,y\",4,1,computer,2,2,1,62.000,2.000,31.000 31.000,2 2,31.000,,0.500,1.500,0,0.000,0,0,0\n"
              "*2,\"x,y\",5,0,human,2,2,0,,,30.000 30.000,2 2,30.000,,2.000,3.000,0,0.000,0,0,1\n"
              "*2,\"x,y\",5,1,computer,1,1,1,60.000,0.000,30.000 30.000,1 1,30.000,,0.000,1.000,0,0.000,0,0,1\n");
}

TEST(Report, TableShowsEachVariation)
{
    const std::vector<race::Batch> batches = {TwoRaces()};
    const std::string table = race::TableOf(batches);
    EXPECT_THAT(table, HasSubstr("a=*2 b=x,y\n"));
    EXPECT_THAT(table, HasSubstr("  0*   1.5   50%   1.50   50%    60.00    0.00   30.00    1.00   2.00     50%"));
    EXPECT_THAT(table, HasSubstr("races 2, cut off 50%, none ruined 50% (never 0%), passes 1.5"));
    EXPECT_THAT(table, HasSubstr("human: clean lap 29.00, race over as many clean laps 1.034"));
}

TEST(Report, JsonHoldsBothRaces)
{
    const std::vector<race::Batch> batches = {TwoRaces()};
    const std::string json = race::JsonOf(batches);
    EXPECT_THAT(json, testing::StartsWith(R"({"variations": [{"changes": {"a": "*2", "b": "x,y"}, "summary": )"));
    EXPECT_THAT(json, HasSubstr(R"({"seed": 4, "cutOff": false, "seconds": 0, "winner": 0, "passes": 3)"));
    EXPECT_THAT(json, HasSubstr(R"("place": 2, "time": null, "gap": null, "laps": [30, 30], "places": [2, 2])"));
}
