// SPDX-License-Identifier: Zlib
#include "tools/race/Variation.h"

#include <gmock/gmock.h>

TEST(Variation, AValuePutsMultipliesOrAdds)
{
    using Change = race::Setting::Change;
    const race::Setting put = race::ParseSetting("labels[3].Text=a=b");
    EXPECT_EQ(put.Path, "labels[3].Text");
    EXPECT_EQ(put.How, Change::Put);
    EXPECT_EQ(put.Value, "a=b");
    const race::Setting times = race::ParseSetting("players[*].Brake=*0.5");
    EXPECT_EQ(times.How, Change::Times);
    EXPECT_EQ(times.Operand, 0.5);
    EXPECT_EQ(race::ParseSetting("camera.CamX=+-2").Operand, -2);
    EXPECT_EQ(race::ParseSetting("camera.CamX=-2").How, Change::Put);
    EXPECT_EQ(times.Text(), "players[*].Brake=*0.5");
}

TEST(Variation, WhatIsNoSettingIsMisuse)
{
    for (const char* text : {"", "=", "=3", "path", "path=", "path=*", "path=*x", "path=+", "path=+1,5"})
        EXPECT_THROW(race::ParseSetting(text), race::Misuse) << text;
    for (const char* text : {"path", "path=", "path=,", "path=1,", "path=,1", "path=1,*"})
        EXPECT_THROW(race::ParseAxis(text), race::Misuse) << text;
}

TEST(Variation, EveryCombinationTheLastAxisQuickest)
{
    const std::vector<race::Settings> product =
        race::CrossProduct({race::ParseAxis("a=1,2"), {race::ParseSetting("b=9")}, race::ParseAxis("c=*3,*4")});
    std::vector<std::string> texts;
    for (const race::Settings& settings : product)
        texts.push_back(Describe(settings));
    EXPECT_THAT(texts, testing::ElementsAre("a=1 b=9 c=*3", "a=1 b=9 c=*4", "a=2 b=9 c=*3", "a=2 b=9 c=*4"));
}

TEST(Variation, WithoutAxesThereIsOneAsItIs)
{
    const std::vector<race::Settings> product = race::CrossProduct({});
    ASSERT_EQ(product.size(), 1u);
    EXPECT_EQ(Describe(product[0]), "as it is");
}
