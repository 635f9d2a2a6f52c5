// SPDX-License-Identifier: Zlib
#include "render/GroundThreads.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>
#include <vector>

using render::Band;
using render::GroundThreads;
using render::StopCheck;
using namespace std::chrono_literals;

namespace
{
constexpr auto Long = std::chrono::milliseconds(600000);

// Counts the visits of each band and who is drawing.
struct CountingJob
{
    mutable std::vector<std::atomic<int>> Visits;
    mutable std::atomic<int> Drawing{0};

    explicit CountingJob(std::size_t bands) : Visits(bands) {}
    void operator()(const Band& band, StopCheck&) const
    {
        ++Drawing;
        ++Visits[static_cast<std::size_t>(band.First)];
        --Drawing;
    }
};

// The bands from `From` on never end by themselves: they wait for the check to say stop, ten seconds at most.
struct StuckJob
{
    int From;
    mutable std::atomic<int> Ended{0}, Cut{0}, Drawing{0};

    explicit StuckJob(int from) : From(from) {}
    void operator()(const Band& band, StopCheck& check) const
    {
        ++Drawing;
        bool open = true;
        if (band.First >= From)
            for (const auto end = std::chrono::steady_clock::now() + 10s;
                 open && std::chrono::steady_clock::now() < end;)
                open = !check.MustStop();
        ++(open ? Ended : Cut);
        --Drawing;
    }
};

std::vector<Band> BandsOf(int count)
{
    std::vector<Band> bands;
    for (int i = 0; i < count; ++i)
        bands.push_back({i, i});
    return bands;
}
}

TEST(GroundThreads, EveryBandIsDrawnOnceAFrame)
{
    for (const int helpers : {0, 1, 3, 8})
    {
        GroundThreads threads(helpers);
        for (const int count : {0, 1, 3, 5, 16})
        {
            const std::vector<Band> bands = BandsOf(count);
            const CountingJob job(bands.size());
            constexpr int frames = 100;
            for (int frame = 0; frame < frames; ++frame)
            {
                ASSERT_TRUE(threads.Run(std::ref(job), bands, Long));
                ASSERT_EQ(job.Drawing, 0);
            }
            for (const std::atomic<int>& visits : job.Visits)
                ASSERT_EQ(visits, frames);
        }
    }
}

// Whoever meets the stuck bands, the calling thread or a helper: the pass ends, and only when nobody draws.
TEST(GroundThreads, APassThatOverrunsItsLimitIsCutOff)
{
    for (const int helpers : {0, 1, 3})
        for (const int from : {0, 2, 4})
        {
            GroundThreads threads(helpers);
            const std::vector<Band> bands = BandsOf(5);
            const StuckJob job(from);
            const auto start = std::chrono::steady_clock::now();
            EXPECT_FALSE(threads.Run(std::ref(job), bands, 30ms));
            EXPECT_GE(std::chrono::steady_clock::now() - start, 30ms);
            EXPECT_LT(std::chrono::steady_clock::now() - start, 9s);
            EXPECT_EQ(job.Drawing, 0);
            EXPECT_EQ(job.Cut, 5 - from);
            EXPECT_EQ(job.Ended, from);
            // The next frame is whole again.
            const CountingJob next(bands.size());
            EXPECT_TRUE(threads.Run(std::ref(next), bands, Long));
            for (const std::atomic<int>& visits : next.Visits)
                EXPECT_EQ(visits, 1);
        }
}

// The calling thread may do something else first, and what it leaves is drawn when it comes.
TEST(GroundThreads, HelpersBeginBeforeTheCallingThreadComes)
{
    GroundThreads threads(1);
    const std::vector<Band> bands = BandsOf(3);
    for (int frame = 1; frame <= 50; ++frame)
    {
        const CountingJob job(bands.size());
        GroundThreads::Pass pass(threads, std::ref(job), bands);
        while (job.Visits[2] == 0)
            std::this_thread::yield();
        EXPECT_TRUE(pass.Finish(Long));
        for (const std::atomic<int>& visits : job.Visits)
            ASSERT_EQ(visits, 1);
    }
}

TEST(GroundThreads, APassThatNobodyFinishesEnds)
{
    for (const int helpers : {0, 1, 3})
    {
        GroundThreads threads(helpers);
        const std::vector<Band> bands = BandsOf(5);
        const StuckJob job(0);
        {
            const GroundThreads::Pass pass(threads, std::ref(job), bands);
        }
        EXPECT_EQ(job.Drawing, 0);
        EXPECT_EQ(job.Ended, 0);
        const CountingJob next(bands.size());
        EXPECT_TRUE(threads.Run(std::ref(next), bands, Long));
    }
}

TEST(GroundThreads, WithoutTimeTheCheckSaysStopFromTheStart)
{
    GroundThreads threads(2);
    const StuckJob job(0);
    EXPECT_FALSE(threads.Run(std::ref(job), BandsOf(5), 0ms));
    EXPECT_EQ(job.Cut, 5);
}

TEST(GroundThreads, TheyEndWithTheirOwnerAlsoUnused)
{
    for (int i = 0; i < 20; ++i)
        const GroundThreads threads(4);
}

// From one number to another and back: every pass is whole.
TEST(GroundThreads, TheirNumberMayChangeBetweenPasses)
{
    GroundThreads threads;
    const std::vector<Band> bands = BandsOf(5);
    const CountingJob job(bands.size());
    int passes = 0;
    for (const int helpers : {2, 0, 6, 6, 1})
    {
        threads.Resize(helpers);
        EXPECT_TRUE(threads.Run(std::ref(job), bands, Long));
        ++passes;
        for (const std::atomic<int>& visits : job.Visits)
            EXPECT_EQ(visits, passes);
    }
}
