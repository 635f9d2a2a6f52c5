// SPDX-License-Identifier: Zlib
#include "render/RowTables.h"

#include "tests/support/Scenes.h"

#include <gtest/gtest.h>

#include <limits>

using render::UpdateRowTables;
using render::UpdateSkyOffset;

namespace
{
int SkyOffsetAt(float yaw)
{
    support::View view(240, 200);
    view.Look(0, 1, 0, yaw, 0);
    UpdateSkyOffset(view.Camera, view.Screen);
    return view.Screen.SkyOffset;
}
}

TEST(SkyOffset, Scrolls131PixelsARadianAndWrapsAt820)
{
    EXPECT_EQ(SkyOffsetAt(0.0f), 0);
    EXPECT_EQ(SkyOffsetAt(1.0f), 689);    // -131 + 820
    EXPECT_EQ(SkyOffsetAt(-1.0f), 131);   // floor(-131) turned round
    EXPECT_EQ(SkyOffsetAt(-0.001f), 1);   // floor(-0.131) is -1
    EXPECT_EQ(SkyOffsetAt(0.001f), 0);    // floor(0.131) is 0
    EXPECT_EQ(SkyOffsetAt(7.0f), 723);    // -917 + 820 + 820
    EXPECT_EQ(SkyOffsetAt(-7.0f), 97);    // 917 - 820
    EXPECT_EQ(SkyOffsetAt(-100.0f), 800); // 13100 mod 820
}

TEST(SkyOffset, StaysInRangeWhateverTheYaw)
{
    const float inf = std::numeric_limits<float>::infinity();
    for (const float yaw : {1e6f, -1e6f, 1e30f, -1e30f, inf, -inf, std::numeric_limits<float>::quiet_NaN()})
    {
        EXPECT_GE(SkyOffsetAt(yaw), 0);
        EXPECT_LT(SkyOffsetAt(yaw), 820);
    }
}

// 240 x 200: centre row 100, zoom 200. Row 0 looks down by atan(0.5), so from height 1 the ground is 2 away and the ray
// the square root of 5 long.
TEST(RowTables, AnglesAndDistances)
{
    support::View view(240, 200);
    view.Look(0, 1, 0, 0, 0);
    UpdateRowTables(view.Camera, view.Screen);
    EXPECT_FLOAT_EQ(view.Screen.RowAngle[0], -0.463647609f);
    EXPECT_FLOAT_EQ(view.Screen.RowSlant[0], 2.23606798f);
    EXPECT_FLOAT_EQ(view.Screen.RowDist[0], 2.0f);
    EXPECT_EQ(view.Screen.RowAngle[100], 0.0f);
    EXPECT_FLOAT_EQ(view.Screen.RowAngle[199], 0.459639608f);
}

TEST(RowTables, RowsAtOrAboveTheHorizonKeepTheirOldEntries)
{
    support::View view(240, 200, 2);
    view.Look(0, 1, 0, 0, 0);
    view.Screen.RowSlant.assign(200, 7.0f);
    view.Screen.RowDist.assign(200, 8.0f);
    view.Screen.TapCount.assign(200, 9.0f);
    UpdateRowTables(view.Camera, view.Screen);
    // Row 98 looks down by atan(0.01), a little less than 0.01: sky. Row 97 is ground.
    EXPECT_EQ(view.Screen.RowSlant[98], 7.0f);
    EXPECT_EQ(view.Screen.RowDist[98], 8.0f);
    EXPECT_EQ(view.Screen.TapCount[98], 9.0f);
    EXPECT_NE(view.Screen.RowSlant[97], 7.0f);
    EXPECT_NE(view.Screen.RowDist[97], 8.0f);
    EXPECT_NE(view.Screen.TapCount[97], 9.0f);
}

TEST(RowTables, ARowAboveTheHorizonIsSkyEvenWithTheCameraFarDown)
{
    support::View view(240, 200);
    view.Look(0, 1, 0, 0, -0.45f);
    view.Screen.RowSlant.assign(200, 7.0f);
    UpdateRowTables(view.Camera, view.Screen);
    EXPECT_EQ(view.Screen.RowSlant[199], 7.0f); // atan(0.495) - 0.45 is above -0.01
    EXPECT_NE(view.Screen.RowSlant[190], 7.0f);
}

TEST(RowTables, LinearWeightGrowsToSevenEighths)
{
    support::View view(240, 200, 1);
    view.Look(0, 1, 0, 0, 0);
    UpdateRowTables(view.Camera, view.Screen);
    // (1.570796 - 0.463648) x 2.236068 / 200
    EXPECT_NEAR(view.Screen.BlurWeight[0], 0.0123783, 1e-6);
    EXPECT_LT(view.Screen.BlurWeight[50], 0.875f);
    view.Look(0, 100, 0, 0, 0);
    UpdateRowTables(view.Camera, view.Screen);
    EXPECT_EQ(view.Screen.BlurWeight[0], 0.875f);
}

TEST(RowTables, AnisotropicWidthIsTwiceTheStepToTheRowBelow)
{
    support::View view(240, 200, 2);
    view.Look(0, 1, 0, 0, 0);
    UpdateRowTables(view.Camera, view.Screen);
    EXPECT_EQ(view.Screen.TapCount[0], 0.0f);
    EXPECT_NEAR(view.Screen.TapCount[1], 2.0 * (200.0 / 99.0 - 2.0), 1e-6);
    view.Look(0, 100, 0, 0, 0);
    UpdateRowTables(view.Camera, view.Screen);
    EXPECT_EQ(view.Screen.TapCount[97], 14.0f);
}

TEST(RowTables, WithoutAFilterWeightsAndCountsStay)
{
    support::View view(240, 200, 0);
    view.Screen.BlurWeight.assign(200, 9.0f);
    view.Screen.TapCount.assign(200, 9.0f);
    view.Look(0, 1, 0, 0, 0);
    UpdateRowTables(view.Camera, view.Screen);
    EXPECT_EQ(view.Screen.BlurWeight[0], 9.0f);
    EXPECT_EQ(view.Screen.TapCount[0], 9.0f);
}

TEST(RowTables, WeightsAndCountsAreNeverNegativeNorNoNumber)
{
    base::Random random;
    random.Seed(3);
    const float odd[] = {0.0f,
                         -0.0f,
                         -5.0f,
                         1e-30f,
                         1e30f,
                         std::numeric_limits<float>::infinity(),
                         std::numeric_limits<float>::quiet_NaN()};
    for (const int filter : {1, 2})
        for (const float zoom : odd)
            for (const float height : odd)
                for (const float pitch : {0.0f, -1.5707964f, -3.2f, 2.0f, 1e30f, odd[6]})
                {
                    support::View view(240, 200, filter);
                    view.Look(0, height, 0, 0, pitch);
                    view.Camera.Zoom = zoom;
                    UpdateRowTables(view.Camera, view.Screen);
                    for (const float weight : view.Screen.BlurWeight)
                        ASSERT_TRUE(weight >= 0.0f && weight <= 0.875f);
                    for (const float count : view.Screen.TapCount)
                        ASSERT_TRUE(count >= 0.0f && count <= 14.0f);
                }
}
