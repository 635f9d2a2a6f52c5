// SPDX-License-Identifier: Zlib
#include "world/Settled.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace
{
using List = std::vector<std::int32_t>;

// Three balls, of which the last is driven, and between them something that is only to be seen.
struct SettledOver : testing::Test
{
    support::World World;
    world::Settled Rest;
    std::vector<render::Obj>& Objects = World.Scene.Objects.Items;

    void SetUp() override
    {
        World.AddBall(0, 0, 1, 1);
        render::MakeObj(World.Scene, {5, 0, 5, 0, 0}, 1, 0, 1, 1);
        World.AddBall(9, 0, 1, 1);
        World.AddBall(18, 0, 1, 1);
        EXPECT_EQ(Stirred(), (List{0, 2, 3}));
        EXPECT_TRUE(Rest.IsOtherList());
    }
    // Of the next comparison.
    List Stirred(const List& cars = {})
    {
        Rest.Compare(Objects, cars);
        List list = Rest.StirredAtFirst();
        std::sort(list.begin(), list.end());
        for (std::int32_t object = 0; object < World.Scene.Objects.Size(); ++object)
            EXPECT_EQ(Rest.IsStirred(static_cast<std::size_t>(object)),
                      std::binary_search(list.begin(), list.end(), object));
        return list;
    }
};
}

TEST_F(SettledOver, NobodyIsStirredWhereNothingHasChanged)
{
    EXPECT_EQ(Stirred(), List{});
    EXPECT_FALSE(Rest.IsOtherList());
    Objects[1].X = 7; // nobody touches it
    EXPECT_EQ(Stirred(), List{});
    EXPECT_FALSE(Rest.IsBody(1));
    EXPECT_TRUE(Rest.IsBody(2));
}

TEST_F(SettledOver, EveryNumberOfABodyCounts)
{
    float* const numbers[] = {&Objects[2].X,          &Objects[2].Y,          &Objects[2].Z,
                              &Objects[2].AngleA,     &Objects[2].AngleB,     &Objects[2].Radius,
                              &Objects[2].Sfere[0].X, &Objects[2].Sfere[0].Y, &Objects[2].Sfere[0].Z,
                              &Objects[2].Sfere[0].R};
    for (float* const number : numbers)
        for (const float value : {1.5f, -0.0f, 0.0f, std::numeric_limits<float>::quiet_NaN()})
        {
            *number = value;
            EXPECT_EQ(Stirred(), List{2}) << number - numbers[0];
            EXPECT_EQ(Stirred(), List{}) << number - numbers[0];
        }
}

TEST_F(SettledOver, WhoIsMovedOrDrivenIsStirredOnceMore)
{
    Rest.Stir(0);
    EXPECT_TRUE(Rest.IsStirred(0));
    EXPECT_EQ(Stirred({3}), List{0});
    EXPECT_EQ(Stirred({3}), List{3});
    EXPECT_EQ(Stirred(), List{3}); // it was driven
    EXPECT_EQ(Stirred(), List{});
}

TEST_F(SettledOver, WhoBecomesABodyOrCeasesToBeOneIsStirred)
{
    const auto has = [](const List& list, std::int32_t object)
    { return std::find(list.begin(), list.end(), object) != list.end(); };
    Objects[1].Sfere.push_back({0, 0, 0, 1});
    EXPECT_TRUE(has(Stirred(), 1));
    EXPECT_TRUE(Rest.IsBody(1));
    Objects[1].Free = 1;
    EXPECT_TRUE(has(Stirred(), 1));
    EXPECT_FALSE(Rest.IsBody(1));
    Objects[0].Sfere.push_back({0, 0, 0, 1});
    EXPECT_TRUE(has(Stirred(), 0));
    Objects[0].Sfere.clear();
    EXPECT_TRUE(has(Stirred(), 0));
    EXPECT_FALSE(Rest.IsBody(0));
    EXPECT_EQ(Stirred(), List{});
}

TEST_F(SettledOver, AnotherNumberOfObjectsIsAnotherList)
{
    World.AddBall(30, 0, 1, 1);
    EXPECT_EQ(Stirred(), (List{0, 2, 3, 4}));
    EXPECT_TRUE(Rest.IsOtherList());
    Objects.pop_back();
    EXPECT_EQ(Stirred(), (List{0, 2, 3}));
    EXPECT_TRUE(Rest.IsOtherList());
}
