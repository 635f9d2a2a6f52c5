// SPDX-License-Identifier: Zlib
#include "shell/Application.h"
#include "platform/headless/Machine.h"
#include "tests/support/SmallWorld.h"

#include <gtest/gtest.h>

namespace
{
struct ApplicationTest : testing::Test
{
    support::SmallWorld World;
    headless::Machine Machine{World.Files()};
    shell::Application Application{Machine};
};

TEST_F(ApplicationTest, TheSplashShowsForASecondThenTheMainWindow)
{
    Application.Start();
    ASSERT_NE(Application.Main(), nullptr);
    auto& window = static_cast<headless::Window&>(Application.Main()->Window());
    EXPECT_FALSE(window.Visible);
    EXPECT_EQ(Application.NextTimer(), 1000u);
    Machine.Clock += 999;
    Application.RunTimers();
    EXPECT_FALSE(window.Visible);
    Machine.Clock += 1;
    Application.RunTimers();
    EXPECT_TRUE(window.Visible);
    EXPECT_EQ(Application.NextTimer(), 100u); // the title's timer alone
    EXPECT_FALSE(Application.Ended());
    EXPECT_EQ(Machine.Boxes.size(), 0u);
}

TEST_F(ApplicationTest, ASecondInstanceEndsWithoutAWord)
{
    Machine.FirstInstance = false;
    Application.Start();
    EXPECT_EQ(Application.Main(), nullptr);
    EXPECT_TRUE(Application.Ended());
    EXPECT_EQ(Machine.Boxes.size(), 0u);
    Application.RunTimers();
}

TEST_F(ApplicationTest, AFailedModuleEndsTheProgram)
{
    World.Remove("data/images/inside.bmp");
    Application.Start();
    EXPECT_TRUE(Application.Ended());
    EXPECT_EQ(Machine.Boxes.size(), 2u);
    Machine.Clock += 5000;
    Application.RunTimers();
    EXPECT_FALSE(static_cast<headless::Window&>(Application.Main()->Window()).Visible);
}

TEST_F(ApplicationTest, TheMenuEndsTheProgram)
{
    Application.Start();
    Machine.Clock += 1000;
    Application.RunTimers();
    Application.Main()->Click("cEXIT");
    EXPECT_TRUE(Application.Ended());
}
}
