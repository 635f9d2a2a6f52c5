// SPDX-License-Identifier: Zlib
#include "tools/race/Passes.h"

#include <gtest/gtest.h>

namespace
{
struct Passes : testing::Test
{
    race::PassCounter Counter{3, 4};
    std::vector<race::Pass> Counted;

    void Take(const std::vector<int>& places, int ticks)
    {
        for (int i = 0; i < ticks; ++i)
            for (const race::Pass& pass : Counter.Take(places))
                Counted.push_back(pass);
    }
};
}

TEST_F(Passes, TheGridIsNoPass)
{
    Take({3, 1, 2}, 50);
    EXPECT_TRUE(Counted.empty());
}

TEST_F(Passes, AnOrderThatHoldsIsOne)
{
    Take({1, 2, 3}, 1);
    Take({2, 1, 3}, 3);
    EXPECT_TRUE(Counted.empty());
    Take({2, 1, 3}, 1);
    ASSERT_EQ(Counted.size(), 1u);
    EXPECT_EQ(Counted[0].Passer, 1u);
    EXPECT_EQ(Counted[0].Passed, 0u);
    Take({2, 1, 3}, 50);
    EXPECT_EQ(Counted.size(), 1u);
}

TEST_F(Passes, SideBySideNobodyPasses)
{
    Take({1, 2, 3}, 1);
    for (int i = 0; i < 20; ++i)
    {
        Take({2, 1, 3}, 3);
        Take({1, 2, 3}, 1);
    }
    EXPECT_TRUE(Counted.empty());
}

TEST_F(Passes, EqualPlacesSayNothing)
{
    Take({1, 1, 3}, 10);
    Take({2, 1, 3}, 10); // the first order that is known
    EXPECT_TRUE(Counted.empty());
    Take({1, 1, 3}, 10);
    EXPECT_TRUE(Counted.empty());
}

TEST_F(Passes, FromLastToFirstPassesEverybody)
{
    Take({1, 2, 3}, 1);
    Take({2, 3, 1}, 4);
    ASSERT_EQ(Counted.size(), 2u);
    for (const race::Pass& pass : Counted)
        EXPECT_EQ(pass.Passer, 2u);
}

TEST_F(Passes, BackAgainIsAnotherOne)
{
    Take({1, 2, 3}, 1);
    Take({2, 1, 3}, 4);
    Take({1, 2, 3}, 4);
    ASSERT_EQ(Counted.size(), 2u);
    EXPECT_EQ(Counted[1].Passer, 0u);
    EXPECT_EQ(Counted[1].Passed, 1u);
}
