// SPDX-License-Identifier: Zlib
#include "base/Math.h"

#include <gtest/gtest.h>

#include <cmath>

// The C library is the judge, not the rule: it may differ in the last bit or two.
TEST(Math, AgreesWithTheLibraryToTheLastBits)
{
    for (int i = -200000; i <= 200000; ++i)
    {
        const double angle = i * 0.00037;
        EXPECT_NEAR(base::Sin(angle), std::sin(angle), 3e-16) << angle;
        EXPECT_NEAR(base::Cos(angle), std::cos(angle), 3e-16) << angle;
        EXPECT_NEAR(base::Atan(angle), std::atan(angle), 5e-16) << angle;
    }
}

TEST(Math, KnownValues)
{
    EXPECT_EQ(base::Sin(0.0), 0.0);
    EXPECT_EQ(base::Cos(0.0), 1.0);
    EXPECT_EQ(base::Atan(1.0), 0.78539816339744830962);
    EXPECT_EQ(base::Atan(0.0), 0.0);
    EXPECT_EQ(base::Atan(INFINITY), 1.57079632679489661923);
    EXPECT_EQ(base::Sqrt(2.25), 1.5);
}

TEST(Math, NoAngleNoValue)
{
    EXPECT_TRUE(std::isnan(base::Sin(NAN)));
    EXPECT_TRUE(std::isnan(base::Cos(INFINITY)));
    EXPECT_TRUE(std::isnan(base::Sin(1e12)));
    EXPECT_TRUE(std::isnan(base::Atan(NAN)));
}
