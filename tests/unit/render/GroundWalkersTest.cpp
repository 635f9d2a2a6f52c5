#include "render/GroundWalkers.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

using render::Band;
using render::GroundWalkers;
using render::WalkGate;
using namespace std::chrono_literals;

namespace
{
constexpr auto Long = std::chrono::milliseconds(600000);

// Counts the visits of each band and who is walking.
struct CountingWalk : render::BandWalk
{
    mutable std::vector<std::atomic<int>> Visits;
    mutable std::atomic<int> Walking{0};

    explicit CountingWalk(std::size_t bands) : Visits(bands) {}
    void Walk(const Band& band, WalkGate&) const override
    {
        ++Walking;
        ++Visits[static_cast<std::size_t>(band.First)];
        --Walking;
    }
};

// The bands from `From` on never end by themselves: they wait for the gate to close, ten seconds at most.
struct StuckWalk : render::BandWalk
{
    int From;
    mutable std::atomic<int> Ended{0}, Cut{0}, Walking{0};

    explicit StuckWalk(int from) : From(from) {}
    void Walk(const Band& band, WalkGate& gate) const override
    {
        ++Walking;
        bool open = true;
        if (band.First >= From)
            for (const auto end = std::chrono::steady_clock::now() + 10s;
                 open && std::chrono::steady_clock::now() < end;)
                open = gate.MayGoOn();
        ++(open ? Ended : Cut);
        --Walking;
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

TEST(GroundWalkers, EveryBandIsWalkedOnceAFrame)
{
    for (const int helpers : {0, 1, 3, 8})
    {
        GroundWalkers walkers(helpers);
        for (const int count : {0, 1, 3, 5, 16})
        {
            const std::vector<Band> bands = BandsOf(count);
            const CountingWalk walk(bands.size());
            constexpr int frames = 100;
            for (int frame = 0; frame < frames; ++frame)
            {
                ASSERT_TRUE(walkers.Run(walk, bands, Long));
                ASSERT_EQ(walk.Walking, 0);
            }
            for (const std::atomic<int>& visits : walk.Visits)
                ASSERT_EQ(visits, frames);
        }
    }
}

// Whoever meets the stuck bands, the calling thread or a helper: the pass ends, and only when nobody walks.
TEST(GroundWalkers, APassThatOverrunsItsLimitIsCutOff)
{
    for (const int helpers : {0, 1, 3})
        for (const int from : {0, 2, 4})
        {
            GroundWalkers walkers(helpers);
            const std::vector<Band> bands = BandsOf(5);
            const StuckWalk walk(from);
            const auto start = std::chrono::steady_clock::now();
            EXPECT_FALSE(walkers.Run(walk, bands, 30ms));
            EXPECT_GE(std::chrono::steady_clock::now() - start, 30ms);
            EXPECT_LT(std::chrono::steady_clock::now() - start, 9s);
            EXPECT_EQ(walk.Walking, 0);
            EXPECT_EQ(walk.Cut, 5 - from);
            EXPECT_EQ(walk.Ended, from);
            // The next frame is whole again.
            const CountingWalk next(bands.size());
            EXPECT_TRUE(walkers.Run(next, bands, Long));
            for (const std::atomic<int>& visits : next.Visits)
                EXPECT_EQ(visits, 1);
        }
}

TEST(GroundWalkers, WithoutTimeTheGateIsClosedFromTheStart)
{
    GroundWalkers walkers(2);
    const StuckWalk walk(0);
    EXPECT_FALSE(walkers.Run(walk, BandsOf(5), 0ms));
    EXPECT_EQ(walk.Cut, 5);
}

TEST(GroundWalkers, TheyEndWithTheirOwnerAlsoUnused)
{
    for (int i = 0; i < 20; ++i)
        const GroundWalkers walkers(4);
}
