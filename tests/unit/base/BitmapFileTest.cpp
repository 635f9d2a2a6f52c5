// SPDX-License-Identifier: Zlib
#include "base/BitmapFile.h"

#include <gtest/gtest.h>

#include <array>

TEST(BitmapFile, HeaderThenRowsAsTheyAre)
{
    const std::array<std::uint8_t, 8> row = {1, 2, 3, 4, 5, 6, 0, 0};
    const std::string file = base::BitmapFile(2, 1, row);
    ASSERT_EQ(file.size(), 62u);
    EXPECT_EQ(file.substr(0, 2), "BM");
    EXPECT_EQ(file.substr(2, 4), std::string("\x3E\0\0\0", 4));
    EXPECT_EQ(file.substr(10, 4), std::string("\x36\0\0\0", 4));
    EXPECT_EQ(file.substr(14, 16), std::string("\x28\0\0\0\x02\0\0\0\x01\0\0\0\x01\0\x18\0", 16));
    EXPECT_EQ(file.substr(54), std::string("\x01\x02\x03\x04\x05\x06\0\0", 8));
}

TEST(BitmapFile, WhatIsMissingIsBlack)
{
    const std::array<std::uint8_t, 2> some = {7, 8};
    EXPECT_EQ(base::BitmapFile(1, 2, some).substr(54), std::string("\x07\x08\0\0\0\0\0\0", 8));
}
