// SPDX-License-Identifier: Zlib
#include "console/ShowNumber.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
using console::ShowCoordinate;
using console::ShowNumber;

TEST(ShowNumber, HasACommaAndNoNeedlessDigits)
{
    EXPECT_EQ(ShowNumber(12.5f), "12,5");
    EXPECT_EQ(ShowNumber(0.1f), "0,1");
    EXPECT_EQ(ShowNumber(-0.25f), "-0,25");
    EXPECT_EQ(ShowNumber(4.0f), "4");
    EXPECT_EQ(ShowNumber(0.0f), "0");
    EXPECT_EQ(ShowNumber(-0.0f), "0");
}

TEST(ShowNumber, HasSevenSignificantDigits)
{
    EXPECT_EQ(ShowNumber(3.14159274f), "3,141593");
    EXPECT_EQ(ShowNumber(1.0f / 3.0f), "0,3333333");
    EXPECT_EQ(ShowNumber(1234.5678f), "1234,568");
    EXPECT_EQ(ShowNumber(1234567.0f), "1234567");
    EXPECT_EQ(ShowNumber(9999999.0f), "9999999");
    EXPECT_EQ(ShowNumber(0.99999994f), "0,9999999");
}

TEST(ShowNumber, TiesOfTheLastDigitGoToTheEvenOne)
{
    EXPECT_EQ(ShowNumber(262144.125f), "262144,1"); // nearest, no tie
    EXPECT_EQ(ShowNumber(262144.25f), "262144,2");  // exactly between 2 and 3
    EXPECT_EQ(ShowNumber(262144.75f), "262144,8");  // exactly between 7 and 8
}

TEST(ShowNumber, SmallAndLargeValuesHaveExponents)
{
    EXPECT_EQ(ShowNumber(0.0001f), "0,0001");
    EXPECT_EQ(ShowNumber(0.00012345f), "0,00012345");
    EXPECT_EQ(ShowNumber(0.00001f), "1E-05");
    EXPECT_EQ(ShowNumber(-0.000025f), "-2,5E-05");
    EXPECT_EQ(ShowNumber(10000000.0f), "1E+07");
    EXPECT_EQ(ShowNumber(-15000000.0f), "-1,5E+07");
    EXPECT_EQ(ShowNumber(std::numeric_limits<float>::max()), "3,402823E+38");
    EXPECT_EQ(ShowNumber(1e-45f), "1,401298E-45");
}

TEST(ShowNumber, NamesWhatIsNoNumber)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(ShowNumber(infinity), "Infinito");
    EXPECT_EQ(ShowNumber(-infinity), "-Infinito");
    EXPECT_EQ(ShowNumber(std::numeric_limits<float>::quiet_NaN()), "Non un numero");
    EXPECT_EQ(ShowCoordinate(infinity), "Infinito");
}

TEST(ShowNumber, WholeNumbersArePlain)
{
    EXPECT_EQ(ShowNumber(0), "0");
    EXPECT_EQ(ShowNumber(std::numeric_limits<std::int32_t>::min()), "-2147483648");
    EXPECT_EQ(ShowNumber(10000000), "10000000");
    EXPECT_EQ(ShowNumber(std::int16_t{-32768}), "-32768");
    EXPECT_EQ(ShowNumber(std::uint8_t{255}), "255");
}

TEST(ShowCoordinate, HasThreeDecimalsHalvesToEven)
{
    EXPECT_EQ(ShowCoordinate(1.2345f), "1,235"); // the single lies above the half
    EXPECT_EQ(ShowCoordinate(0.0625f), "0,062"); // exactly between
    EXPECT_EQ(ShowCoordinate(0.1875f), "0,188"); // exactly between
    EXPECT_EQ(ShowCoordinate(-0.0625f), "-0,062");
    EXPECT_EQ(ShowCoordinate(-0.0003f), "0");
    EXPECT_EQ(ShowCoordinate(0.0005f), "0,001"); // the single lies above the half
    EXPECT_EQ(ShowCoordinate(100.0f), "100");
    EXPECT_EQ(ShowCoordinate(1234.56789f), "1234,568");
}

TEST(ShowCoordinate, LargeOnesKeepTheirSevenDigits)
{
    EXPECT_EQ(ShowCoordinate(16384.123f), "16384,12");
    EXPECT_EQ(ShowCoordinate(2097151.9f), "2097152");
    EXPECT_EQ(ShowCoordinate(3000000.5f), "3000000"); // exactly between, to the even one
    EXPECT_EQ(ShowCoordinate(-1e20f), "-1E+20");
}
}
