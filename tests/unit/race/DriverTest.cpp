// SPDX-License-Identifier: Zlib
// The human-like driver and its parts, on made-up roads.
#include "tools/race/HumanDriver.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
race::Line Oval()
{
    std::vector<race::Spot> way;
    for (int i = 0; i < 400; ++i)
    {
        const double angle = 2 * 3.14159265358979 * i / 400;
        way.push_back({300 + 200 * std::cos(angle), 300 + 120 * std::sin(angle)});
    }
    return race::Line(way);
}

world::Map GatesOn(const race::Line& line)
{
    world::Map map;
    for (int i = 0; i < 8; ++i)
    {
        const race::Spot& at = line.At(line.Count() * static_cast<std::size_t>(i + 1) / 8);
        map.Checkpoints.Items.push_back({static_cast<float>(at.X), 0, static_cast<float>(at.Z), 12});
    }
    return map;
}

// A car alone on the oval, moved by what the driver presses.
struct Alone : testing::Test
{
    race::Line Line = Oval();
    world::Map Map = GatesOn(Line);
    race::Sight Now;
    int Passed = 0;
    double Furthest = 0; // from the line

    Alone()
    {
        Now.Own = {Line.At(0), Line.Heading(0), 0};
        Now.Steering = 0.064;
        Now.Acceleration = 0.046;
        Now.Brake = 0.045;
        Now.TopSpeed = 5.25;
        Now.Released = true;
    }
    void Drive(race::HumanDriver& driver, int ticks)
    {
        for (int i = 0; i < ticks; ++i)
        {
            const world::HeldKeys keys = driver.Drive(Now);
            Now.Own = race::AfterTick(Now.Own, Now,
                                      keys.KeyLeft != 0    ? 1
                                      : keys.KeyRight != 0 ? -1
                                                           : 0,
                                      keys.KeyAccel != 0   ? 1
                                      : keys.KeyBrake != 0 ? -1
                                                           : 0);
            const world::Target& gate = Map.Checkpoints.Items[static_cast<std::size_t>(Now.NextCheckpoint)];
            if (race::Distance(Now.Own.Place, {gate.X, gate.Z}) < gate.R)
            {
                ++Passed;
                Now.NextCheckpoint = static_cast<std::int16_t>((Now.NextCheckpoint + 1) % 8);
            }
            Furthest = std::max(Furthest, race::Distance(Now.Own.Place, Line.At(Line.Nearest(Now.Own.Place))));
        }
    }
};
}

TEST_F(Alone, EverySkillGoesRoundAndStaysOnTheRoad)
{
    const race::Sight start = Now;
    for (const race::Skill& skill : race::Skills)
    {
        Now = start;
        Passed = 0;
        Furthest = 0;
        race::HumanDriver driver(Line, Map, skill, false, 3);
        Drive(driver, 2400); // a minute; the oval is about 1020 units long
        EXPECT_GE(Passed, 20) << skill.Name;
        EXPECT_LT(Furthest, 8) << skill.Name;
    }
}

TEST_F(Alone, ASeedIsADriver)
{
    race::HumanDriver one(Line, Map, race::Skills[1], false, 3), same(Line, Map, race::Skills[1], false, 3),
        other(Line, Map, race::Skills[1], false, 4);
    const race::Sight start = Now;
    Drive(one, 800);
    const race::Spot there = Now.Own.Place;
    Now = start;
    Drive(same, 800);
    EXPECT_EQ(Now.Own.Place.X, there.X);
    EXPECT_EQ(Now.Own.Place.Z, there.Z);
    Now = start;
    Drive(other, 800);
    EXPECT_NE(Now.Own.Place.X, there.X);
}

TEST_F(Alone, NothingIsDoneAboutWhatIsNotSeenYet)
{
    race::HumanDriver driver(Line, Map, race::Skills[1], false, 3);
    Drive(driver, 600);
    ASSERT_GT(Now.Own.Speed, 2);
    // A car stands right ahead from now on.
    race::Seen other;
    other.Place = Line.At(Line.Nearest(Now.Own.Place) + 14);
    race::HumanDriver twin = driver;
    race::Sight with = Now;
    with.Others.push_back(other);
    for (int tick = 0; tick < race::Skills[1].Reaction; ++tick)
    {
        const world::HeldKeys free = driver.Drive(Now), blocked = twin.Drive(with);
        EXPECT_EQ(free.KeyAccel, blocked.KeyAccel) << tick;
        EXPECT_EQ(free.KeyLeft, blocked.KeyLeft) << tick;
    }
    bool brakes = false;
    for (int tick = 0; tick < 8; ++tick)
        brakes = twin.Drive(with).KeyAccel == 0 || brakes;
    EXPECT_TRUE(brakes);
}

TEST(Fingers, HoldAKeyForAWhile)
{
    race::Fingers fingers(3);
    EXPECT_EQ(fingers.Press(1), 1);
    EXPECT_EQ(fingers.Press(0), 1);
    EXPECT_EQ(fingers.Press(-1), 1);
    EXPECT_EQ(fingers.Press(-1), -1);
    EXPECT_EQ(fingers.Press(-1), -1);
}

TEST(Wandering, StaysAboutItsSpread)
{
    base::Random random;
    random.Seed(5);
    race::Wandering wandering(2, 1);
    double squares = 0, most = 0;
    for (int i = 0; i < 40000; ++i)
    {
        const double value = wandering.Next(random);
        squares += value * value;
        most = std::max(most, std::fabs(value));
    }
    EXPECT_NEAR(std::sqrt(squares / 40000), 2, 0.2);
    EXPECT_LT(most, 12);
}

int CountBacks(race::Recovery& recovery, const race::Seen& seen, double acceleration, int ticks)
{
    int count = 0;
    for (int i = 0; i < ticks; ++i)
        count += recovery.Next(seen, acceleration, true).Backs ? 1 : 0;
    return count;
}

TEST(Recovery, BacksAfterAWhileAndLongerEachTime)
{
    race::Recovery recovery(9);
    const race::Seen stuck;
    EXPECT_EQ(CountBacks(recovery, stuck, 0.04, 29), 0);
    EXPECT_EQ(CountBacks(recovery, stuck, 0.04, 45), 45);
    EXPECT_EQ(CountBacks(recovery, stuck, 0.04, 30), 0);
    EXPECT_EQ(CountBacks(recovery, stuck, 0.04, 70), 70);
    race::Recovery waits(9);
    for (int i = 0; i < 100; ++i)
        EXPECT_FALSE(waits.Next(stuck, 0.04, false).Backs);
}

TEST(Recovery, KnowsThatADamagedCarIsSlow)
{
    race::Recovery recovery(9);
    race::Seen crawling;
    crawling.Speed = 0.03;
    EXPECT_EQ(CountBacks(recovery, crawling, 0.0025, 200), 0);
    crawling.Speed = 0;
    EXPECT_EQ(CountBacks(recovery, crawling, 0.0025, 29), 0);
    EXPECT_EQ(CountBacks(recovery, crawling, 0.0025, 180), 180) << "four times as long";
}

TEST(Recovery, GoesRoundWhatIsInTheWayOnEitherSideUntilTheCarGotAway)
{
    race::Recovery recovery(1);
    race::Seen seen;
    const auto asideAfterStuck = [&]
    {
        race::Manoeuvre way;
        for (int i = 0; i < 30; ++i)
            recovery.Next(seen, 0.04, true);
        do
            way = recovery.Next(seen, 0.04, true);
        while (way.Backs);
        return recovery.Next(seen, 0.04, true).Aside;
    };
    EXPECT_EQ(asideAfterStuck(), 0) << "at first as if nothing were in the way";
    const double left = asideAfterStuck(), right = asideAfterStuck();
    EXPECT_GT(left, 0.5);
    EXPECT_LT(right, -0.5);
    seen.Place = {100, 0};
    seen.Speed = 1;
    for (int i = 0; i < 20 * race::TicksASecond; ++i)
        recovery.Next(seen, 0.04, true);
    EXPECT_EQ(recovery.Next(seen, 0.04, true).Aside, 0) << "a way round ends";
    seen.Speed = 0;
    EXPECT_EQ(asideAfterStuck(), 0) << "elsewhere it begins anew";
}
