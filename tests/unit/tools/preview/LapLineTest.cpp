// SPDX-License-Identifier: Zlib
#include "tools/preview/LapLine.h"
#include "tools/preview/Failure.h"

#include <gtest/gtest.h>

#include <array>

namespace
{
// A square of 50 units a side: up along z, then along x, and back.
constexpr std::array<world::Target, 4> Square = {
    {{100, 0, 100, 5}, {100, 0, 150, 5}, {150, 0, 150, 5}, {150, 0, 100, 5}}};
}

TEST(LapLine, PlacesAreEquallyFarApartAndHeadAlongTheLine)
{
    const preview::LapLine line(Square);
    EXPECT_DOUBLE_EQ(line.Length(), 200);
    const std::vector<preview::Place> places = line.Places(8);
    ASSERT_EQ(places.size(), 8u);
    EXPECT_DOUBLE_EQ(places[0].X, 100);
    EXPECT_DOUBLE_EQ(places[0].Z, 100);
    EXPECT_NEAR(places[0].AngleA, 0, 1e-5);
    EXPECT_EQ(places[0].Next, 1);
    EXPECT_DOUBLE_EQ(places[1].Z, 125);
    // Toward +x: a positive heading turns toward -x.
    EXPECT_DOUBLE_EQ(places[3].X, 125);
    EXPECT_DOUBLE_EQ(places[3].Z, 150);
    EXPECT_NEAR(places[3].AngleA, -1.5708, 1e-4);
    EXPECT_EQ(places[3].Next, 2);
    // On the way back to the first.
    EXPECT_DOUBLE_EQ(places[7].X, 125);
    EXPECT_DOUBLE_EQ(places[7].Z, 100);
    EXPECT_EQ(places[7].Next, 0);
    EXPECT_DOUBLE_EQ(places[7].Along, 175);
}

TEST(LapLine, ProgressFollowsWhatACarHasPassed)
{
    const preview::LapLine line(Square);
    EXPECT_DOUBLE_EQ(line.Progress(0, 100, 70), -30);
    EXPECT_DOUBLE_EQ(line.Progress(1, 100, 130), 30);
    EXPECT_DOUBLE_EQ(line.Progress(2, 120, 150), 70);
    // Farther off than the leg is long: no more is lost than the leg.
    EXPECT_DOUBLE_EQ(line.Progress(2, 0, 150), 50);
    EXPECT_DOUBLE_EQ(line.Progress(4, 110, 100), 190);
    EXPECT_DOUBLE_EQ(line.Progress(5, 100, 110), 200);
}

TEST(LapLine, WithoutTwoPlacesThereIsNoLap)
{
    EXPECT_THROW(preview::LapLine({}), preview::Failure);
    EXPECT_THROW(preview::LapLine(std::span(Square).first(1)), preview::Failure);
    constexpr std::array<world::Target, 2> same = {{{5, 0, 5, 1}, {5, 0, 5, 2}}};
    EXPECT_THROW(preview::LapLine{same}, preview::Failure);
}
