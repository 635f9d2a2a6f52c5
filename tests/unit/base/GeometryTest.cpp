// SPDX-License-Identifier: Zlib
#include "base/Geometry.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
using base::DistanceToSegment;

TEST(Geometry, BesideASegmentTheDistanceIsTheOneToItsLine)
{
    EXPECT_EQ(DistanceToSegment(3, 5, 0, 1, 10, 1), 4);
    EXPECT_EQ(DistanceToSegment(3, 1, 0, 1, 10, 1), 0);
    EXPECT_EQ(DistanceToSegment(7, 2, 4, -3, 4, 9), 3);
}

TEST(Geometry, BeyondItsEndsTheEndIsNearest)
{
    EXPECT_EQ(DistanceToSegment(-3, 5, 0, 1, 10, 1), 5);
    EXPECT_EQ(DistanceToSegment(13, -3, 0, 1, 10, 1), 5);
}

TEST(Geometry, ASegmentWithoutLengthIsAPoint)
{
    EXPECT_EQ(DistanceToSegment(3, 4, 0, 0, 0, 0), 5);
}

TEST(Geometry, WhatIsNoNumberStaysNone)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_NE(DistanceToSegment(none, 0, 0, 0, 1, 1), DistanceToSegment(none, 0, 0, 0, 1, 1));
}
}
