// SPDX-License-Identifier: Zlib
#include "tools/race/Measure.h"

#include <gmock/gmock.h>

#include <cmath>

namespace
{
using testing::DoubleEq;
using testing::ElementsAre;
using testing::Optional;

struct Measuring : testing::Test
{
    race::Measure Measure{2, {1, 2}};
    std::vector<race::CarState> Cars{2};
    double Seconds = 0;

    Measuring()
    {
        for (std::size_t i = 0; i < 2; ++i)
        {
            Cars[i].Speed = 3;
            Cars[i].Place = static_cast<int>(i) + 1;
        }
    }
    void Pass(double seconds)
    {
        for (const double end = Seconds + seconds; Seconds < end - 0.001;)
            Measure.Take(Cars, Seconds += 0.025);
    }
    // At once, then a tick passes.
    void CompleteLap(std::size_t car)
    {
        ++Cars[car].Lap;
        Pass(0.025);
    }
    const race::CarResult Car(std::size_t car) const { return Measure.Conclude().Cars[car]; }
};
}

TEST_F(Measuring, LapsPlacesAndTheFinish)
{
    Pass(30);
    CompleteLap(0); // 30.025
    Pass(1);
    CompleteLap(1); // 31.05
    Pass(25);
    std::swap(Cars[0].Place, Cars[1].Place);
    CompleteLap(1); // 56.075
    EXPECT_FALSE(Measure.AreAllHome());
    Pass(2);
    CompleteLap(0); // 58.1
    EXPECT_TRUE(Measure.AreAllHome());

    const race::RaceResult result = Measure.Conclude();
    EXPECT_FALSE(result.IsCutOff);
    EXPECT_THAT(result.Winner(), Optional(1u));
    EXPECT_NEAR(result.Cars[0].Laps.at(0), 30.025, 1e-9);
    EXPECT_NEAR(result.Cars[0].Laps.at(1), 28.075, 1e-9);
    EXPECT_THAT(result.Cars[0].Places, ElementsAre(1, 2));
    EXPECT_THAT(result.Cars[1].Places, ElementsAre(2, 1));
    EXPECT_NEAR(result.Cars[0].Gap.value(), 2.025, 1e-9);
    EXPECT_THAT(result.Cars[1].Gap, Optional(DoubleEq(0)));
    EXPECT_EQ(result.Cars[0].Grid, 1);
    EXPECT_NEAR(result.Seconds, 58.1, 1e-9);
}

TEST_F(Measuring, InOneTickThePlacesDecide)
{
    Pass(30);
    std::swap(Cars[0].Place, Cars[1].Place);
    Cars[0].Lap = 1;
    CompleteLap(1);
    EXPECT_THAT(Car(0).Places, ElementsAre(2));
    EXPECT_THAT(Car(1).Places, ElementsAre(1));
}

TEST_F(Measuring, APassOfTheFirstLapIsCountedApart)
{
    Pass(5);
    std::swap(Cars[0].Place, Cars[1].Place);
    Pass(2);
    EXPECT_EQ(Measure.Conclude().FirstLapPasses, 1);
    EXPECT_EQ(Car(1).PassesMade, 0);
    CompleteLap(0);
    CompleteLap(1);
    std::swap(Cars[0].Place, Cars[1].Place);
    Pass(0.975);
    EXPECT_EQ(Measure.Conclude().Passes, 0);
    Pass(0.025);
    EXPECT_EQ(Measure.Conclude().Passes, 1);
    EXPECT_EQ(Car(0).PassesMade, 1);
    EXPECT_EQ(Car(1).PassesSuffered, 1);
    EXPECT_EQ(Measure.Conclude().FirstLapPasses, 1);
}

TEST_F(Measuring, DamageIsThatOfTheFinish)
{
    Pass(1);
    Cars[0].Damage = 1.5;
    Pass(1);
    Cars[0].Damage = 0.25;
    Cars[0].Lap = 1;
    Pass(1);
    CompleteLap(0);
    Cars[0].Damage = 5;
    Pass(1);
    EXPECT_EQ(Car(0).Damage, 0.25);
    EXPECT_EQ(Car(0).PeakDamage, 1.5);
}

TEST_F(Measuring, ACrawlOfThreeSecondsIsAStop)
{
    Pass(1);
    Cars[0].Speed = -0.1;
    Pass(2.975);
    EXPECT_EQ(Car(0).Stops, 0);
    EXPECT_EQ(Car(0).Stopped, 0);
    Pass(1.025);
    EXPECT_EQ(Car(0).Stops, 1);
    EXPECT_NEAR(Car(0).Stopped, 4, 1e-9);
    Cars[0].Speed = 1;
    Pass(1);
    Cars[0].Speed = 0;
    Pass(3);
    EXPECT_EQ(Car(0).Stops, 2);
    EXPECT_EQ(Car(1).Stops, 0);
}

TEST_F(Measuring, OnTheGridNobodyHasStopped)
{
    Seconds = -3;
    Cars[0].Speed = 0;
    Pass(3.5);
    EXPECT_EQ(Car(0).Stops, 0);
}

TEST_F(Measuring, WhoIsOutStandsBehindWhoIsHome)
{
    Pass(10);
    CompleteLap(1);
    CompleteLap(1);
    const race::RaceResult result = Measure.Conclude();
    EXPECT_TRUE(result.IsCutOff);
    EXPECT_EQ(result.Cars[1].Place, 1);
    EXPECT_EQ(result.Cars[0].Place, 2);
    EXPECT_EQ(result.Cars[0].Finish, std::nullopt);
    EXPECT_EQ(result.Cars[0].Gap, std::nullopt);
}

TEST(MedianFlyingLap, LeavesTheFirstLapOut)
{
    race::CarResult car;
    car.Laps = {50};
    EXPECT_EQ(MedianFlyingLap(car), std::nullopt);
    car.Laps = {50, 33, 30};
    EXPECT_THAT(MedianFlyingLap(car), Optional(DoubleEq(31.5)));
    car.Laps = {50, 33, 30, 31};
    EXPECT_THAT(MedianFlyingLap(car), Optional(DoubleEq(31)));
}
