// SPDX-License-Identifier: Zlib
#include "tools/preview/DrivenLines.h"
#include "tests/support/TempFolder.h"
#include "tools/preview/Failure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
constexpr const char* Header = "tick,car,x,z,speed,heading,damage\n";

std::vector<preview::DrivenLine> Read(const std::string& text)
{
    const support::TempFolder folder;
    folder.Write("lines.csv", text);
    return preview::ReadDrivenLines(folder.Path / "lines.csv");
}

std::string WhyRefused(const std::string& text)
{
    try
    {
        Read(text);
    }
    catch (const preview::Failure& failure)
    {
        return failure.Why;
    }
    return "it is not refused";
}
}

TEST(DrivenLines, AreOneACarAndBeginAnewWithTheTicks)
{
    const std::vector<preview::DrivenLine> lines = Read(std::string(Header) + "0,3,10,20,0,0,0\n"
                                                                              "0,1,-1.5,2e1,0,0,0\r\n"
                                                                              "1,3,11,21,1,0.5,0\n"
                                                                              "0,3,50,60,1,0.5,0");
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].Car, 1);
    EXPECT_EQ(lines[0].Drives.at(0).at(0).X, -1.5);
    EXPECT_EQ(lines[0].Drives.at(0).at(0).Y, 20);
    EXPECT_EQ(lines[1].Car, 3);
    ASSERT_EQ(lines[1].Drives.size(), 2u);
    EXPECT_EQ(lines[1].Drives[0].size(), 2u);
    EXPECT_EQ(lines[1].Drives[1].at(0).X, 50);
}

TEST(DrivenLines, WhatIsBrokenIsRefusedWithItsLine)
{
    using testing::HasSubstr;
    const std::string header = Header;
    EXPECT_THAT(WhyRefused(""), HasSubstr("lines.csv:1: the first line must be tick,car"));
    EXPECT_THAT(WhyRefused("tick,car,x,z\n0,0,0,0\n"), HasSubstr(":1:"));
    EXPECT_THAT(WhyRefused(header), HasSubstr("no line below"));
    EXPECT_THAT(WhyRefused(header + "0,0,1,2,0,0,0\n1,0,one,2,0,0,0\n"), HasSubstr(":3: 'one' is no number"));
    EXPECT_THAT(WhyRefused(header + "0,0,1,2,0,0\n"), HasSubstr(":2: there must be seven columns"));
    EXPECT_THAT(WhyRefused(header + "0,0,1,2,0,0,0,0\n"), HasSubstr(":2: there must be seven columns"));
    EXPECT_THAT(WhyRefused(header + "0,0,1,2,0,0,0\n\n"), HasSubstr(":3: there must be seven columns"));
    EXPECT_THAT(WhyRefused(header + "0,-1,1,2,0,0,0\n"), HasSubstr(":2: a car is a whole number"));
    EXPECT_THAT(WhyRefused(header + "0,1e300,1,2,0,0,0\n"), HasSubstr(":2: a car is a whole number"));
    EXPECT_THAT(WhyRefused(header + "0,0,1e999,2,0,0,0\n"), HasSubstr(":2: '1e999' is no number"));
    EXPECT_THROW(preview::ReadDrivenLines("no_such_file.csv"), preview::Failure);
}
