// SPDX-License-Identifier: Zlib
#include "world/RowMarks.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{
std::vector<std::int32_t> Listed(const world::BodyList& list)
{
    return {list.Bodies().begin(), list.Bodies().end()};
}
}

TEST(RowMarks, RowsComeInOrderWithThoseTheyWereMarkedFor)
{
    world::RowMarks marks;
    marks.Reset(20);
    marks.Begin();
    EXPECT_EQ(marks.Next(0), 20u);
    marks.MarkFor(7, 12);
    marks.MarkFor(3, 12);
    marks.MarkFor(7, 9);
    marks.MarkFor(7, 12);
    marks.MarkFor(18, 19);
    world::BodyList bodies;
    EXPECT_EQ(marks.Next(0), 3u);
    EXPECT_TRUE(marks.Take(3, bodies));
    EXPECT_EQ(Listed(bodies), std::vector<std::int32_t>{12});
    EXPECT_EQ(marks.Next(0), 7u);
    EXPECT_EQ(marks.Next(7), 7u);
    EXPECT_TRUE(marks.Take(7, bodies));
    EXPECT_EQ(Listed(bodies), (std::vector<std::int32_t>{9, 12}));
    EXPECT_EQ(marks.Next(4), 18u);
    EXPECT_TRUE(marks.Take(18, bodies));
    EXPECT_EQ(Listed(bodies), std::vector<std::int32_t>{19});
    EXPECT_EQ(marks.Next(0), 20u);
    EXPECT_EQ(marks.Next(20), 20u);
    marks.Begin();
    marks.MarkFor(7, 8);
    EXPECT_TRUE(marks.Take(7, bodies));
    EXPECT_EQ(Listed(bodies), std::vector<std::int32_t>{8});
}

TEST(RowMarks, SaySoWhereTheyCannotRememberAll)
{
    constexpr std::size_t rows = 10;
    world::RowMarks marks;
    marks.Reset(rows);
    marks.Begin();
    world::BodyList bodies;
    bool complete = true;
    for (std::size_t note = 0; note < rows * rows && complete; ++note)
    {
        marks.MarkFor(0, static_cast<std::int32_t>(note));
        complete = marks.Take(0, bodies);
        EXPECT_EQ(bodies.Bodies().size(), complete ? 1u : 0u);
    }
    EXPECT_FALSE(complete);
    marks.MarkFor(4, 5);
    EXPECT_EQ(marks.Next(0), 4u); // is marked all the same
    EXPECT_FALSE(marks.Take(4, bodies));
    marks.Begin();
    marks.MarkFor(4, 5);
    EXPECT_TRUE(marks.Take(4, bodies));
}
