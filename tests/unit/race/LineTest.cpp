// SPDX-License-Identifier: Zlib
#include "tools/race/Course.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
constexpr double Pi = 3.14159265358979323846;

// Anticlockwise seen from above with z upward on the page: to the left all the way.
race::Line Circle(double radius)
{
    std::vector<race::Spot> way;
    for (int i = 0; i < 200; ++i)
        way.push_back({100 + radius * std::cos(2 * Pi * i / 200), 100 + radius * std::sin(2 * Pi * i / 200)});
    return race::Line(way);
}
}

TEST(Bearing, IsTheGamesAngle)
{
    EXPECT_NEAR(race::Bearing({0, 0}, {0, 5}), 0, 1e-9);
    EXPECT_NEAR(race::Bearing({0, 0}, {-5, 0}), Pi / 2, 1e-6);
    EXPECT_NEAR(race::Bearing({0, 0}, {5, 0}), -Pi / 2, 1e-6);
    EXPECT_EQ(race::Bearing({3, 3}, {3, 3}), 0);
    EXPECT_NEAR(race::Wrapped(3 * Pi / 2), -Pi / 2, 1e-6);
    EXPECT_NEAR(race::Wrapped(-5 * Pi / 2), -Pi / 2, 1e-6);
}

TEST(Line, ACircleIsBentAlikeAllTheWay)
{
    const race::Line line = Circle(50);
    EXPECT_NEAR(line.Length(), 2 * Pi * 50, 1);
    EXPECT_NEAR(line.Spacing(), 2, 0.05);
    for (std::size_t i = 0; i < line.Count(); ++i)
        EXPECT_NEAR(line.Curvature(i), 1.0 / 50, 0.002) << i;
}

TEST(Line, LeftOfItIsInside)
{
    const race::Line line = Circle(50);
    EXPECT_NEAR(race::Distance(line.Beside(10, 3), {100, 100}), 47, 0.6);
    EXPECT_NEAR(line.LeftOf(10, line.Beside(10, -4)), -4, 1e-9);
}

TEST(Line, TheNearestPointMayBeSoughtInAPart)
{
    const race::Line line = Circle(50);
    const std::size_t nearest = line.Nearest({100, 200});
    EXPECT_NEAR(line.At(nearest).Z, 150, 1);
    EXPECT_EQ(line.Nearest({100, 200}, line.Count() - 5, 8), 2u);
    EXPECT_EQ(line.Ahead(line.Count() - 5, 2), 7u);
}

TEST(Line, NothingIsAPoint)
{
    const race::Line line(std::vector<race::Spot>{});
    EXPECT_GT(line.Count(), 0u);
    EXPECT_EQ(line.Nearest({5, 5}) < line.Count(), true);
}

TEST(CornerSpeed, TakesAShareOfTheTightestCurve)
{
    // At speed 3 with steering 0.06 the radius is 3 × 4 / 0.24 = 50.
    EXPECT_NEAR(race::CornerSpeed(1.0 / 50, 0.06, 1), 3, 1e-6);
    EXPECT_NEAR(race::CornerSpeed(1.0 / 100, 0.06, 0.5), 3, 1e-6);
    EXPECT_GT(race::CornerSpeed(0, 0.06, 1), 100);
}
