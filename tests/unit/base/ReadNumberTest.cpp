// SPDX-License-Identifier: Zlib
#include "base/ReadNumber.h"
#include "base/Random.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace
{
std::optional<double> Typed(std::string_view text)
{
    return base::ReadNumber(text, base::TypedSeparators);
}

std::optional<double> FromFile(std::string_view text)
{
    return base::ReadNumber(text, base::DataSeparator);
}
}

TEST(ReadNumber, TakesSignsSeparatorsAndExponents)
{
    EXPECT_EQ(Typed("12"), 12);
    EXPECT_EQ(Typed("+1.5"), 1.5);
    EXPECT_EQ(Typed("-1,5"), -1.5);
    EXPECT_EQ(Typed(",5"), 0.5);
    EXPECT_EQ(Typed("1."), 1);
    EXPECT_EQ(Typed("2E-3"), 0.002);
    EXPECT_EQ(Typed("2e+3"), 2000);
    EXPECT_EQ(FromFile("2.5e1"), 25);
}

// What is written shortly is read by a quicker way: the same number to the last bit.
TEST(ReadNumber, ShortOrLongTheNearestDoubleIsRead)
{
    base::Random random;
    random.Seed(3);
    for (int round = 0; round < 20'000; ++round)
    {
        const int before = static_cast<int>(random.Next() * 12), behind = static_cast<int>(random.Next() * 12);
        std::string digits;
        for (int i = 0; i < before + behind; ++i)
            digits += static_cast<char>('0' + static_cast<int>(random.Next() * 10));
        if (digits.empty())
            continue;
        const std::string text =
            digits.substr(0, static_cast<std::size_t>(before)) + "." + digits.substr(static_cast<std::size_t>(before));
        const double expected = std::stod(text);
        ASSERT_EQ(FromFile(text), expected) << text;
        ASSERT_EQ(FromFile("-" + text), -expected) << text;
        ASSERT_EQ(FromFile(text + "e0"), expected) << text;
        ASSERT_EQ(FromFile(digits), std::stod(digits)) << digits;
    }
    EXPECT_TRUE(std::signbit(FromFile("-0").value()));
    EXPECT_EQ(FromFile("999999999999999"), 999999999999999.0);
    EXPECT_EQ(FromFile("9007199254740993"), 9007199254740992.0); // a whole number that no double holds
}

TEST(ReadNumber, ACommaSeparatesNothingInAFile)
{
    EXPECT_EQ(FromFile("1,5"), std::nullopt);
    EXPECT_EQ(FromFile(",5"), std::nullopt);
}

TEST(ReadNumber, EverythingElseIsNoNumber)
{
    for (const char* text :
         {"",    "+",   "-",  ".",  ",",   "-.",   "1.2.3", "1,2.3", "1..", " 1",   "1 ", "1 2", "--1",
          "+-1", "-+1", "e5", "1e", "1e+", "0x10", "&h10",  "inf",   "nan", "-inf", "1x", "5€",  "1'000"})
        EXPECT_EQ(Typed(text), std::nullopt) << text;
}

TEST(ReadNumber, WhatNoDoubleHoldsIsInfinityOrZero)
{
    EXPECT_EQ(Typed("1e400"), INFINITY);
    EXPECT_EQ(Typed("-1e99999999999999999999"), -INFINITY);
    EXPECT_EQ(Typed("1e-400"), 0);
    EXPECT_EQ(Typed("0e400"), 0);
    EXPECT_EQ(Typed(std::string(5000, '9')), INFINITY);
    EXPECT_EQ(Typed("0," + std::string(5000, '0') + "1"), 0);
}
