// SPDX-License-Identifier: Zlib
// Time by phase.
#include "base/PhaseClock.h"

#include <gtest/gtest.h>

namespace
{
using Clock = base::PhaseClock::Clock;

// Until the clock has gone on.
void Work()
{
    for (const Clock::time_point start = Clock::now(); Clock::now() == start;)
        ;
}

TEST(PhaseClock, ListsPhasesInTheOrderOfTheirFirstEntering)
{
    base::PhaseClock clock;
    EXPECT_TRUE(clock.Phases().empty());
    for (const char* name : {"ground", "objects", "ground", "display"})
        clock.Enter(name);
    clock.Leave();
    ASSERT_EQ(clock.Phases().size(), 3u);
    EXPECT_STREQ(clock.Phases()[0].Name, "ground");
    EXPECT_STREQ(clock.Phases()[1].Name, "objects");
    EXPECT_STREQ(clock.Phases()[2].Name, "display");
}

TEST(PhaseClock, AddsUpTheTimesOfAPhase)
{
    base::PhaseClock clock;
    clock.Enter("ground");
    Work();
    clock.Leave();
    const Clock::duration once = clock.Phases()[0].Time;
    EXPECT_GT(once.count(), 0);
    clock.Enter("ground");
    Work();
    clock.Leave();
    EXPECT_GT(clock.Phases()[0].Time, once);
}

TEST(PhaseClock, CountsNothingBetweenPhases)
{
    base::PhaseClock clock;
    clock.Leave(); // of none
    clock.Enter("ground");
    clock.Leave();
    const Clock::duration once = clock.Phases()[0].Time;
    Work();
    clock.Leave();
    EXPECT_EQ(clock.Phases()[0].Time, once);
}

TEST(PhaseClock, WorkWithoutAClockIsNotMeasured)
{
    base::EnterPhase(nullptr, "ground");
    base::LeavePhase(nullptr);
    base::PhaseClock clock;
    base::EnterPhase(&clock, "ground");
    base::LeavePhase(&clock);
    EXPECT_EQ(clock.Phases().size(), 1u);
}
}
