// SPDX-License-Identifier: Zlib
#include "shell/TickTimer.h"

#include <gtest/gtest.h>

#include <limits>

using shell::TickTimer;

TEST(TickTimer, TheFirstTickComesOneIntervalAfterEnabling)
{
    TickTimer timer;
    timer.interval = 25;
    timer.Enable(1000);
    EXPECT_FALSE(timer.IsDue());
    EXPECT_EQ(timer.UntilDue(), 25u);
    timer.Advance(1024);
    EXPECT_FALSE(timer.IsDue());
    timer.Advance(1025);
    EXPECT_TRUE(timer.IsDue());
    EXPECT_EQ(timer.UntilDue(), 0u);
}

TEST(TickTimer, LateTicksMergeAndThePhaseIsKept)
{
    TickTimer timer;
    timer.interval = 25;
    timer.Enable(0);
    timer.Advance(110);
    timer.Tick();
    EXPECT_FALSE(timer.IsDue());
    EXPECT_EQ(timer.Ticks, 1);
    EXPECT_EQ(timer.UntilDue(), 15u);
    EXPECT_EQ(timer.Elapsed, 110);
}

TEST(TickTimer, ElapsedCountsOnlyWhileEnabled)
{
    TickTimer timer;
    timer.Enable(0);
    timer.Disable(300);
    timer.Advance(9000);
    EXPECT_EQ(timer.Elapsed, 300);
    EXPECT_EQ(timer.UntilDue(), std::numeric_limits<std::uint32_t>::max());
    timer.Enable(10000);
    EXPECT_EQ(timer.Elapsed, 300);
    timer.Advance(10050);
    EXPECT_EQ(timer.Elapsed, 350);
}

TEST(TickTimer, TheClockMayWrap)
{
    TickTimer timer;
    timer.interval = 20;
    timer.Enable(0xFFFFFFF0u);
    timer.Advance(0x10u);
    EXPECT_EQ(timer.Elapsed, 32);
    EXPECT_TRUE(timer.IsDue());
}

TEST(TickTimer, TheShortestIntervalHolds)
{
    TickTimer timer;
    timer.interval = 0;
    timer.mininterval = 5;
    timer.Enable(0);
    EXPECT_EQ(timer.UntilDue(), 5u);
}
