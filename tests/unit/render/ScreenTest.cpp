// SPDX-License-Identifier: Zlib
#include "render/Screen.h"

#include "render/RenderFrame.h"
#include "tests/support/Scenes.h"

#include <gtest/gtest.h>

TEST(ApplyResolution, DerivesEverythingFromTheSize)
{
    const support::View view(601, 313, 0, 5);
    const render::Screen& screen = view.Screen;
    EXPECT_EQ(screen.ScreenMaxX, 600);
    EXPECT_EQ(screen.ScreenMaxY, 312);
    EXPECT_EQ(screen.CenterX, 300.0f); // cut, not rounded
    EXPECT_EQ(screen.CenterY, 156.0f);
    EXPECT_EQ(view.Camera.MinZoom, 156.0f);
    EXPECT_EQ(view.Camera.Zoom, 312.0f);
    EXPECT_EQ(screen.Header.biWidth, 601);
    EXPECT_EQ(screen.Header.biHeight, 313);
    EXPECT_EQ(screen.Frame.RowBytes, 1804); // padded to four bytes
    EXPECT_EQ(screen.Frame.Rows, 313);
    EXPECT_EQ(screen.Depth.Cells.size(), 601u * 313u);
    EXPECT_EQ(screen.RowAngle.size(), 313u);
    EXPECT_EQ(screen.Bands.size(), 5u);
    EXPECT_TRUE(view.Messages.Boxes.empty());
}

TEST(ApplyResolution, TheNarrowSideGivesTheZoom)
{
    const support::View view(240, 900);
    EXPECT_EQ(view.Camera.MinZoom, 120.0f);
}

TEST(ApplyResolution, ANewSizeReplacesTheOldOne)
{
    support::View view(240, 200);
    render::ApplyResolution(view.Messages, view.Screen, view.Camera, 600, 312);
    EXPECT_EQ(view.Screen.Frame.Rows, 312);
    EXPECT_EQ(view.Screen.RowDist.size(), 312u);
    EXPECT_EQ(view.Screen.Bands.back().Last, 599);
}

TEST(ApplyResolution, AnImpossibleSizeIsReportedAndDrawsNothing)
{
    for (const int width : {0, -3, 100000000})
    {
        support::View view(width, 200);
        EXPECT_EQ(view.Messages.Boxes.size(), 1u);
        EXPECT_EQ(view.Screen.ScreenW, 0);
        render::RenderFrame(render::Scene(), view.Camera, view.Screen, view.Threads);
    }
}
