#include "world/NearStrips.h"

#include "base/Random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace
{
using world::Footprint;
using world::FootprintOf;
using world::NearStrips;

struct Disc
{
    float X, Z, R;
};

bool Contains(const std::vector<std::size_t>& list, std::size_t body)
{
    return std::find(list.begin(), list.end(), body) != list.end();
}
}

TEST(NearStrips, EveryPairThatIsNearIsACandidateInAscendingOrder)
{
    base::Random random;
    random.Seed(7);
    for (const double world : {100.0, 768.0, 3000.0})
    {
        std::vector<Disc> discs(300);
        for (std::size_t n = 0; n < discs.size(); ++n)
            discs[n] = {static_cast<float>((random.Next() - 0.5) * world),
                        static_cast<float>((random.Next() - 0.5) * world),
                        static_cast<float>(random.Next() * 20.0 * (n % 5 == 0 ? -4.0 : 1.0))};
        NearStrips strips;
        strips.Reset(discs.size());
        for (std::size_t n = 0; n < discs.size(); ++n)
            strips.Add(n, FootprintOf(discs[n].X, discs[n].Z, discs[n].R));
        std::size_t close = 0;
        std::size_t candidates = 0;
        for (std::size_t a = 0; a < discs.size(); ++a)
        {
            std::vector<std::size_t> list;
            strips.Look(FootprintOf(discs[a].X, discs[a].Z, discs[a].R), a);
            for (std::size_t b = strips.Next(a); b < discs.size(); b = strips.Next(b))
                list.push_back(b);
            EXPECT_TRUE(std::is_sorted(list.begin(), list.end()));
            candidates += list.size();
            for (std::size_t b = a + 1; b < discs.size(); ++b)
                if (std::hypot(discs[a].X - discs[b].X, discs[a].Z - discs[b].Z) < discs[a].R + discs[b].R)
                {
                    ++close;
                    EXPECT_TRUE(Contains(list, b)) << world << ": " << a << ", " << b;
                }
        }
        EXPECT_GT(close, 5u);
        EXPECT_LT(candidates, 300u * 299 / 2);
    }
}

TEST(NearStrips, FarBodiesAreNoCandidates)
{
    NearStrips strips;
    strips.Reset(3);
    strips.Add(0, FootprintOf(10, 10, 2));
    strips.Add(1, FootprintOf(100, 10, 2));
    strips.Add(2, FootprintOf(12, 11, 2));
    strips.Look(FootprintOf(10, 10, 2), 0);
    EXPECT_EQ(strips.Next(0), 2u);
    EXPECT_EQ(strips.Next(2), 3u);
    strips.Add(1, FootprintOf(12, 9, 2)); // it has moved
    strips.Look(FootprintOf(10, 10, 2), 0);
    EXPECT_EQ(strips.Next(0), 1u);
}

TEST(NearStrips, NumbersOffEveryScaleReachEverywhere)
{
    const double huge = std::numeric_limits<float>::max();
    for (const double odd : {huge, -huge, 1e7, double(INFINITY), double(NAN)})
    {
        for (const Footprint& at : {FootprintOf(odd, 0, 1), FootprintOf(0, odd, 1), FootprintOf(0, 0, odd)})
        {
            EXPECT_EQ(at.CountX, NearStrips::StripCount) << odd;
            EXPECT_EQ(at.CountZ, NearStrips::StripCount) << odd;
        }
    }
}

TEST(NearStrips, BodiesBeyondOneWordOfBits)
{
    NearStrips strips;
    strips.Reset(200);
    for (const std::size_t body : {0u, 63u, 64u, 127u, 199u})
        strips.Add(body, FootprintOf(0, 0, 1));
    const Footprint at = FootprintOf(0.5, 0.5, 1);
    strips.Look(at, 0);
    EXPECT_EQ(strips.Next(0), 63u);
    EXPECT_EQ(strips.Next(63), 64u);
    EXPECT_EQ(strips.Next(64), 127u);
    EXPECT_EQ(strips.Next(127), 199u);
    EXPECT_EQ(strips.Next(199), 200u);
    strips.Look(at, 127);
    EXPECT_EQ(strips.Next(127), 199u);
    strips.Look(at, 199);
    EXPECT_EQ(strips.Next(199), 200u);
    strips.Reset(200);
    strips.Look(at, 0);
    EXPECT_EQ(strips.Next(0), 200u);
    strips.Reset(0);
    strips.Look(at, 0);
    EXPECT_EQ(strips.Next(0), 0u);
}
