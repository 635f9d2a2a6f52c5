// SPDX-License-Identifier: Zlib
// No tick and no frame allocates.
#include "tests/support/Allocations.h"
#include "tests/support/LoadedForm.h"

#include <gtest/gtest.h>

namespace
{
struct Allocation : testing::Test, support::LoadedForm
{
    // The machine keeps what it was shown; its own memory settles with the first frames.
    void Warm()
    {
        StartRace();
        Label(&shell::Hud::Debug).Visible = 1;
        Form.KeyDown(38);
        Pass(6000);
    }
};

TEST_F(Allocation, TheCounterCounts)
{
    const std::size_t before = support::Allocations();
    auto some = std::make_unique<int>(3);
    EXPECT_EQ(*some, 3);
    EXPECT_EQ(support::Allocations() - before, 1u);
}

TEST_F(Allocation, NoneInAGameTick)
{
    Warm();
    const std::size_t before = support::Allocations();
    for (int tick = 0; tick < 400; ++tick)
    {
        Machine.Clock += 25;
        Form.Race().GameT_Tick();
    }
    EXPECT_EQ(support::Allocations() - before, 0u);
    EXPECT_GT(Player(0).Speed, 1); // a real race went on
}

TEST_F(Allocation, NoneInAFrame)
{
    Warm();
    const std::size_t before = support::Allocations();
    for (int tick = 0; tick < 40; ++tick)
    {
        Machine.Clock += 50;
        Form.Race().RenderT_Tick();
    }
    EXPECT_EQ(support::Allocations() - before, 0u);
}

TEST_F(Allocation, NoneInAFilmedFrame)
{
    Machine.TheWebcam.Devices = 1;
    Warm();
    const std::vector<std::uint8_t> pixels(107 * 80 * 4, 50);
    const auto film = [&]
    {
        ASSERT_TRUE(Machine.TheWebcam.Complete(pixels));
        Machine.Clock += 50;
        Form.Race().RenderT_Tick();
    };
    film();
    const std::size_t before = support::Allocations();
    for (int tick = 0; tick < 40; ++tick)
        film();
    EXPECT_EQ(support::Allocations() - before, 0u);
}

TEST_F(Allocation, NoneInTheKeysOfARace)
{
    Warm();
    const std::size_t before = support::Allocations();
    for (const int code : {38, 40, 37, 39, 32, 66, 33, 34, 67, 49, 55, 80, 80})
        PressAndRelease(code);
    EXPECT_EQ(support::Allocations() - before, 0u);
}
}
