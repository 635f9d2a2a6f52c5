// SPDX-License-Identifier: Zlib
// The webcam back end on sources that every machine has: FFmpeg's synthetic ones.
#include "platform/sdl/FfmpegWebcam.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>
#include <vector>

namespace
{
using Clock = std::chrono::steady_clock;

struct FfmpegWebcamTest : testing::Test
{
    std::vector<std::uint8_t> Pixels = std::vector<std::uint8_t>(107 * 80 * 4, 1);

    platform::CaptureParams Params() { return {Pixels.data(), 107, 80}; }
    static bool Comes(platform::Webcam& webcam)
    {
        // Generous: only a frame that never comes fails.
        for (int i = 0; i < 2000 && !webcam.IsCaptureDone(); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        return webcam.IsCaptureDone();
    }
    const std::uint8_t* At(std::size_t x, std::size_t y) const { return &Pixels[(y * 107 + x) * 4]; }
    bool IsNear(std::size_t x, std::size_t y, int r, int g, int b) const
    {
        const std::uint8_t* pixel = At(x, y);
        return std::abs(pixel[0] - b) < 16 && std::abs(pixel[1] - g) < 16 && std::abs(pixel[2] - r) < 16;
    }
};
}

TEST_F(FfmpegWebcamTest, FramesComeWhenAskedForAndOnlyThen)
{
    sdl::FfmpegWebcam webcam({"lavfi", "color=red:size=320x240:rate=50"});
    EXPECT_EQ(webcam.SetupCapture(), 1);
    ASSERT_TRUE(webcam.InitCapture(Params()));
    EXPECT_FALSE(webcam.IsCaptureDone());
    EXPECT_EQ(Pixels[0], 1);
    for (int frame = 0; frame < 3; ++frame)
    {
        webcam.DoCapture();
        ASSERT_TRUE(Comes(webcam));
        EXPECT_TRUE(IsNear(0, 0, 255, 0, 0));
        EXPECT_TRUE(IsNear(106, 79, 255, 0, 0));
    }
    webcam.DeinitCapture();
    EXPECT_FALSE(webcam.IsCaptureDone());
    webcam.DeinitCapture();
}

// Twice as wide as high: the bars at both sides lie outside the middle part; a mark at the top stays at the top.
TEST_F(FfmpegWebcamTest, WideFramesAreCutAtBothSides)
{
    sdl::FfmpegWebcam webcam({"lavfi", "color=blue:size=320x160:rate=50,drawbox=0:0:50:160:red:fill,"
                                       "drawbox=270:0:50:160:red:fill,drawbox=0:0:320:40:lime:fill"});
    ASSERT_TRUE(webcam.InitCapture(Params()));
    webcam.DoCapture();
    ASSERT_TRUE(Comes(webcam));
    EXPECT_TRUE(IsNear(2, 60, 0, 0, 255));
    EXPECT_TRUE(IsNear(104, 60, 0, 0, 255));
    EXPECT_TRUE(IsNear(53, 4, 0, 255, 0));
    EXPECT_TRUE(IsNear(53, 30, 0, 0, 255));
}

TEST_F(FfmpegWebcamTest, HighFramesAreCutAboveAndBelow)
{
    sdl::FfmpegWebcam webcam({"lavfi", "color=blue:size=214x400:rate=50,drawbox=0:0:214:110:red:fill,"
                                       "drawbox=0:290:214:110:red:fill"});
    ASSERT_TRUE(webcam.InitCapture(Params()));
    webcam.DoCapture();
    ASSERT_TRUE(Comes(webcam));
    EXPECT_TRUE(IsNear(53, 2, 0, 0, 255));
    EXPECT_TRUE(IsNear(53, 77, 0, 0, 255));
}

TEST_F(FfmpegWebcamTest, EveryPixelFormatAndSizeIsTaken)
{
    for (const char* source :
         {"color=red:size=107x80:rate=50,format=gray", "color=red:size=33x17:rate=50,format=yuyv422",
          "color=red:size=1920x1080:rate=50,format=yuv420p", "color=red:size=2x2:rate=50,format=bgr24",
          "color=red:size=640x480:rate=50,format=nv12", "color=red:size=353x289:rate=50,format=rgb565le"})
    {
        sdl::FfmpegWebcam webcam({"lavfi", source});
        ASSERT_TRUE(webcam.InitCapture(Params())) << source;
        webcam.DoCapture();
        ASSERT_TRUE(Comes(webcam)) << source;
        const std::uint8_t* middle = At(53, 40);
        EXPECT_GT(middle[2], 60) << source; // in grey too
        EXPECT_GE(middle[2], middle[0]) << source;
    }
}

TEST_F(FfmpegWebcamTest, ASourceRunsAtItsOwnPace)
{
    sdl::FfmpegWebcam webcam({"lavfi", "testsrc=size=320x240:rate=25"});
    ASSERT_TRUE(webcam.InitCapture(Params()));
    const Clock::time_point start = Clock::now();
    for (int frame = 0; frame < 11; ++frame)
    {
        webcam.DoCapture();
        ASSERT_TRUE(Comes(webcam));
    }
    EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(350)) << "ten intervals of 40 ms lie between";
}

TEST_F(FfmpegWebcamTest, WhereTheSourceEndsTheLastPictureStays)
{
    sdl::FfmpegWebcam webcam({"lavfi", "color=lime:size=320x240:rate=50:duration=0.04"});
    ASSERT_TRUE(webcam.InitCapture(Params()));
    webcam.DoCapture();
    ASSERT_TRUE(Comes(webcam));
    // Two pictures are all there is: the next request, or the one after it, stays open.
    for (int frame = 0; frame < 3 && webcam.IsCaptureDone(); ++frame)
    {
        webcam.DoCapture();
        for (int i = 0; i < 200 && !webcam.IsCaptureDone(); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    EXPECT_FALSE(webcam.IsCaptureDone());
    webcam.DeinitCapture(); // before that the pixels are the webcam's
    EXPECT_TRUE(IsNear(50, 40, 0, 255, 0));
}

TEST_F(FfmpegWebcamTest, WhatCannotBeOpenedSaysSo)
{
    for (const sdl::WebcamSource& source :
         {sdl::WebcamSource{"lavfi", "nonsense"}, sdl::WebcamSource{"", "/nowhere/at/all"},
          sdl::WebcamSource{"no such format", "x"}, sdl::WebcamSource{"lavfi", "sine"}})
    {
        sdl::FfmpegWebcam webcam(source);
        EXPECT_FALSE(webcam.InitCapture(Params())) << source.Url;
        webcam.DoCapture();
        EXPECT_FALSE(webcam.IsCaptureDone());
        webcam.DeinitCapture();
    }
}

TEST_F(FfmpegWebcamTest, OpeningAgainStartsAnew)
{
    sdl::FfmpegWebcam webcam({"lavfi", "color=red:size=320x240:rate=50"});
    ASSERT_TRUE(webcam.InitCapture(Params()));
    webcam.DoCapture();
    ASSERT_TRUE(Comes(webcam));
    ASSERT_TRUE(webcam.InitCapture(Params()));
    EXPECT_FALSE(webcam.IsCaptureDone());
    webcam.DoCapture();
    EXPECT_TRUE(Comes(webcam));
}
