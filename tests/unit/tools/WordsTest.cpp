// SPDX-License-Identifier: Zlib
#include "tools/drive/Words.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(Words, SplitAtBlanksAndTabs)
{
    drive::Words words("  poke \t labels[3].Text  two  blanks ");
    EXPECT_EQ(words.Next(), "poke");
    EXPECT_EQ(words.Next(), "labels[3].Text");
    EXPECT_EQ(words.Rest(), " two  blanks ");
    EXPECT_FALSE(words.AtEnd());
    EXPECT_EQ(words.Next(), "two");
    EXPECT_EQ(words.Next(), "blanks");
    EXPECT_TRUE(words.AtEnd());
    EXPECT_EQ(words.Next(), "");
    EXPECT_EQ(words.Rest(), "");
}

TEST(Words, WholeNumbersAreTheWholeWordAndFitTheirType)
{
    EXPECT_EQ(drive::ParseWhole<std::int16_t>("-32768"), -32768);
    EXPECT_EQ(drive::ParseWhole<std::int16_t>("32768"), std::nullopt);
    EXPECT_EQ(drive::ParseWhole<std::uint8_t>("255"), 255);
    EXPECT_EQ(drive::ParseWhole<std::uint8_t>("256"), std::nullopt);
    EXPECT_EQ(drive::ParseWhole<std::uint8_t>("-1"), std::nullopt);
    for (const char* word : {"", "x", "1x", "1.0", "+1", " 1", "0x10"})
        EXPECT_EQ(drive::ParseWhole<int>(word), std::nullopt) << word;
}

TEST(Words, FloatsAreDecimalAndWithinSinglePrecision)
{
    EXPECT_EQ(drive::ParseFloat("-0.05"), -0.05f);
    EXPECT_EQ(drive::ParseFloat(".5"), 0.5f);
    EXPECT_EQ(drive::ParseFloat("1e3"), 1000.0f);
    EXPECT_EQ(drive::ParseFloat("3.4028235e38"), 3.4028235e38f);
    EXPECT_EQ(drive::ParseFloat("3.5e38"), std::nullopt);
    EXPECT_EQ(drive::ParseFloat("-1e999"), std::nullopt);
    EXPECT_EQ(drive::ParseFloat("1e-60"), 0.0f);
    for (const char* word : {"", "-", "x", "1,5", "1.5f", "nan", "inf", "infinity", "+1", "0x1p3"})
        EXPECT_EQ(drive::ParseFloat(word), std::nullopt) << word;
}

TEST(Words, TheThreeNumbersThatAreNoneHaveNames)
{
    EXPECT_TRUE(std::isnan(drive::ParseFloat("NaN").value()));
    EXPECT_EQ(drive::ParseFloat("Infinity"), HUGE_VALF);
    EXPECT_EQ(drive::ParseFloat("-Infinity"), -HUGE_VALF);
    EXPECT_EQ(drive::ParseDouble("NaN"), std::nullopt);
}
