// SPDX-License-Identifier: Zlib
#include "base/Numbers.h"
#include "base/Random.h"
#include "base/RuntimeError.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(Numbers, HalvesGoToTheEvenNeighbour)
{
    EXPECT_EQ(base::RoundEven(0.5), 0);
    EXPECT_EQ(base::RoundEven(1.5), 2);
    EXPECT_EQ(base::RoundEven(2.5), 2);
    EXPECT_EQ(base::RoundEven(-0.5), 0);
    EXPECT_EQ(base::RoundEven(-1.5), -2);
    EXPECT_EQ(base::RoundEven(2.4999999), 2);
    EXPECT_EQ(base::RoundEven(2147483646.5), 2147483646);
}

TEST(Numbers, WhatDoesNotFitIsOutOfRange)
{
    EXPECT_EQ(base::RoundEven(2147483648.0), base::OutOfRange);
    EXPECT_EQ(base::RoundEven(-1e300), base::OutOfRange);
    EXPECT_EQ(base::RoundEven(NAN), base::OutOfRange);
    EXPECT_EQ(base::Floor(INFINITY), base::OutOfRange);
}

TEST(Numbers, FloorGoesDownAlsoBelowZero)
{
    EXPECT_EQ(base::Floor(-0.36), -1);
    EXPECT_EQ(base::Floor(2.99), 2);
    EXPECT_EQ(base::Floor(-3.0), -3);
}

TEST(Numbers, BytesAreLimited)
{
    EXPECT_EQ(base::RoundByte(-4.0), 0);
    EXPECT_EQ(base::RoundByte(254.5), 254);
    EXPECT_EQ(base::RoundByte(1e9), 255);
    EXPECT_EQ(base::RoundByte(NAN), 0);
}

TEST(Numbers, CheckedConversionsOverflow)
{
    EXPECT_EQ(base::ToInt16(32767.4), 32767);
    EXPECT_EQ(base::ToInt32(-2147483648.0), -2147483647 - 1);
    try
    {
        base::ToByte(300.0);
        FAIL() << "300 fits no byte";
    }
    catch (const base::RuntimeError& error)
    {
        EXPECT_EQ(error.Number, 6);
        EXPECT_EQ(error.Description, "Overflow");
    }
    EXPECT_THROW(base::ToInt16(-32768.6), base::RuntimeError);
    EXPECT_THROW(base::ToInt32(NAN), base::RuntimeError);
}

TEST(Numbers, SixteenBitProductsWrap)
{
    EXPECT_EQ(base::Wrap16(127 * 2500), static_cast<std::int16_t>(317500 & 0xFFFF));
}

TEST(Random, ScriptedDrawsCycleAndASeedEndsThem)
{
    base::Random random;
    random.Script = {0.25, 0.75};
    EXPECT_EQ(random.Next(), 0.25);
    EXPECT_EQ(random.Next(), 0.75);
    EXPECT_EQ(random.Next(), 0.25);
    random.Seed(1);
    const double first = random.Next();
    random.Seed(1);
    EXPECT_EQ(random.Next(), first);
    for (int i = 0; i < 1000; ++i)
    {
        const double draw = random.Next();
        EXPECT_GE(draw, 0.0);
        EXPECT_LT(draw, 1.0);
    }
}
