// SPDX-License-Identifier: Zlib
#include "world/NearGrid.h"

#include "base/Numbers.h"
#include "base/Random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace
{
using world::Disc;
using world::NearGrid;

constexpr float Infinite = std::numeric_limits<float>::infinity();
constexpr float NotANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float Largest = std::numeric_limits<float>::max();

std::vector<std::int32_t> Around(const NearGrid& grid, const Disc& at, std::int32_t after = -1)
{
    world::BodyList found;
    found.Add(12345); // is written over
    grid.Look(at, {after + 1, 32767}, found);
    found.Sort();
    return {found.Bodies().begin(), found.Bodies().end()};
}

// Whether the two are nearer than the sum of their radii, as the test of a pair has it.
bool AreNear(const Disc& a, const Disc& b)
{
    return std::hypot(static_cast<double>(a.X) - b.X, static_cast<double>(a.Z) - b.Z) <
           static_cast<double>(a.Radius) + b.Radius;
}

// How the bodies of a world are strewn.
struct Strewn
{
    double Size;   // of the world, about the origin
    double Radius; // at most
    int Odd;       // every so many-th disc is of some other scale
};

void PrintTo(const Strewn& strewn, std::ostream* out)
{
    *out << "radius " << strewn.Radius << " in " << strewn.Size << ", odd " << strewn.Odd;
}

Disc Draw(base::Random& random, const Strewn& strewn)
{
    const auto number = [&](double low, double high) { return static_cast<float>(low + (high - low) * random.Next()); };
    Disc disc = {number(-strewn.Size / 2, strewn.Size / 2), number(-strewn.Size / 2, strewn.Size / 2),
                 number(0, strewn.Radius)};
    if (strewn.Odd == 0 || base::Floor(random.Next() * strewn.Odd) != 0)
        return disc;
    const float odd[] = {-disc.Radius, 0, disc.Radius * 100, 1e6f, 3e6f, 1e30f, -1e30f, Largest, 1e-30f};
    float* const fields[] = {&disc.X, &disc.Z, &disc.Radius, &disc.Radius};
    *fields[base::Floor(random.Next() * 4)] = odd[base::Floor(random.Next() * 9)];
    return disc;
}

struct NearGridOver : testing::TestWithParam<Strewn>
{
};
}

INSTANTIATE_TEST_SUITE_P(Worlds, NearGridOver,
                         testing::Values(Strewn{100, 20, 0}, Strewn{768, 20, 5}, Strewn{3000, 20, 7},
                                         Strewn{20, 0.3, 0}, Strewn{20, 0.2, 11}, Strewn{3e6, 2e5, 0},
                                         Strewn{1e9, 20, 3}, Strewn{1e30, 1e28, 4}));

// The discs are moved by turns with the looks: those found are always those that are near, and hardly any other.
TEST_P(NearGridOver, FindsWhoIsNear)
{
    constexpr std::size_t Count = 300;
    base::Random random;
    random.Seed(7);
    NearGrid grid;
    grid.Reset(Count);
    std::vector<Disc> discs(Count);
    for (std::size_t n = 0; n < Count; ++n)
        grid.Put(n, discs[n] = Draw(random, GetParam()));
    std::size_t close = 0, candidates = 0;
    for (std::size_t a = 0; a < Count; ++a)
    {
        const auto moved = static_cast<std::size_t>(base::Floor(random.Next() * Count));
        grid.Put(moved, discs[moved] = Draw(random, GetParam()));
        const std::vector<std::int32_t> found = Around(grid, discs[a], static_cast<std::int32_t>(a));
        EXPECT_TRUE(found.empty() || found.front() > static_cast<std::int32_t>(a));
        std::vector<std::int32_t> near;
        for (std::size_t b = a + 1; b < Count; ++b)
            if (AreNear(discs[a], discs[b]))
                near.push_back(static_cast<std::int32_t>(b));
        EXPECT_TRUE(std::includes(found.begin(), found.end(), near.begin(), near.end())) << "around " << a;
        close += near.size();
        candidates += found.size();
    }
    EXPECT_GT(close, 5u);
    if (GetParam().Size < 1e18) // beyond it squares are as large as can be
    {
        EXPECT_LE(candidates, close + close / 20 + 20);
    }
}

TEST(NearGrid, WhoHasMovedIsFoundWhereItIs)
{
    NearGrid grid;
    grid.Reset(3);
    grid.Put(0, {10, 10, 2});
    grid.Put(1, {100, 10, 2});
    grid.Put(2, {12, 11, 2});
    using List = std::vector<std::int32_t>;
    EXPECT_EQ(Around(grid, {10, 10, 2}), (List{0, 2}));
    EXPECT_EQ(Around(grid, {10, 10, 2}, 0), List{2});
    EXPECT_EQ(Around(grid, {10, 10, 2}, 2), List{});
    grid.Put(1, {12, 9, 2});
    EXPECT_EQ(Around(grid, {10, 10, 2}, 0), (List{1, 2}));
    EXPECT_EQ(Around(grid, {100, 10, 2}), List{});
    grid.Put(1, {12, 9, 200}); // it has grown
    EXPECT_EQ(Around(grid, {100, 10, 2}), List{1});
    grid.Remove(1);
    grid.Remove(1);
    EXPECT_EQ(Around(grid, {100, 10, 2}), List{});
    grid.Reset(1);
    EXPECT_EQ(Around(grid, {10, 10, 2}), List{});
    grid.Reset(0);
    EXPECT_EQ(Around(grid, {10, 10, 2}), List{});
}

TEST(NearGrid, TellsWhereABodyWasPut)
{
    NearGrid grid;
    grid.Reset(2);
    EXPECT_TRUE(std::isnan(grid.At(1).Radius));
    grid.Put(1, {10, 20, 2});
    grid.Put(1, {10.5f, 21, 3}); // in the same cell
    EXPECT_EQ(grid.At(1).X, 10.5f);
    EXPECT_EQ(grid.At(1).Z, 21);
    EXPECT_EQ(grid.At(1).Radius, 3);
    EXPECT_TRUE(std::isnan(grid.At(0).Radius));
    grid.Remove(1);
    EXPECT_TRUE(std::isnan(grid.At(1).Radius));
    grid.Put(1, {10, 20, 2});
    grid.Put(1, {NotANumber, 20, 2});
    EXPECT_TRUE(std::isnan(grid.At(1).Radius));
    EXPECT_EQ(Around(grid, grid.At(1)), std::vector<std::int32_t>{});
}

TEST(NearGrid, WhatIsNoNumberIsNowhere)
{
    NearGrid grid;
    grid.Reset(2);
    grid.Put(0, {1, 1, 5});
    for (const Disc& odd : {Disc{NotANumber, 0, 5}, Disc{0, NotANumber, 5}, Disc{0, 0, NotANumber},
                            Disc{Infinite, 0, 5}, Disc{0, -Infinite, 5}, Disc{0, 0, -Infinite}})
    {
        grid.Put(1, {0, 0, 5});
        EXPECT_EQ(Around(grid, {1, 1, 5}, 0).size(), 1u);
        grid.Put(1, odd);
        EXPECT_EQ(Around(grid, {1, 1, 5}, 0).size(), 0u);
        EXPECT_EQ(Around(grid, odd, -1).size(), 0u);
    }
}

TEST(NearGrid, HugeRadiiReachEverywhere)
{
    const float places[] = {0, 1e6f, -1e6f, 3e7f, -1e30f, Largest};
    for (const float radius : {Largest, Infinite})
    {
        NearGrid grid;
        grid.Reset(std::size(places) + 1);
        for (std::size_t n = 0; n < std::size(places); ++n)
            grid.Put(n, {places[n], 0, 1});
        // Nobody is farther away than the largest number, but for the place that is that number itself.
        EXPECT_GE(Around(grid, {0, 1e6f, radius}).size(), std::size(places) - (radius == Largest ? 1 : 0));
        grid.Put(std::size(places), {0, 1e6f, radius});
        for (std::size_t n = 0; n + 1 < std::size(places); ++n)
            EXPECT_TRUE(std::ranges::binary_search(Around(grid, {places[n], 0, 1}), std::int32_t{6})) << n;
    }
}

TEST(NearGrid, ANegativeRadiusIsTakenFromTheOther)
{
    NearGrid grid;
    grid.Reset(2);
    grid.Put(0, {0, 0, -3});
    grid.Put(1, {100, 0, -3});
    EXPECT_EQ(Around(grid, {5, 0, 9}).size(), 1u);
    EXPECT_EQ(Around(grid, {5, 0, 7}).size(), 0u);
    EXPECT_EQ(Around(grid, {100, 0, 2}).size(), 0u);
    EXPECT_EQ(Around(grid, {100, 0, -3}).size(), 0u);
}
