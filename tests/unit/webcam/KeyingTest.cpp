// SPDX-License-Identifier: Zlib
// The image routines of the webcam, against numbers worked out by hand.
#include "webcam/Keying.h"
#include "tests/support/Allocations.h"

#include <gtest/gtest.h>

#include <functional>

namespace
{
using render::PicArray2D;

struct Shot
{
    render::PicHeader Header;
    PicArray2D Pixels;

    Shot(std::int32_t width, std::int32_t height, std::uint8_t value = 0)
    {
        Header.biWidth = width;
        Header.biHeight = height;
        Pixels.Allocate(height, base::PaddedRow(width));
        for (std::int32_t y = 0; y < height; ++y)
            std::fill_n(Pixels.Row(y), 3 * width, value);
    }
    std::uint8_t* At(std::int32_t x, std::int32_t y) { return Pixels.Row(y) + 3 * x; }
};

render::Picture Backdrop(std::int32_t width, std::int32_t height, std::uint8_t value)
{
    Shot shot(width, height, value);
    return {{width, height, shot.Pixels.RowBytes, 1, 24}, shot.Pixels};
}

struct Keying : testing::Test
{
    webcam::Background Model;
    Shot Empty{7, 5, 100};
    render::Picture Behind = Backdrop(7, 5, 9);

    Keying() { webcam::SetBackground(Model, Empty.Pixels, Empty.Header); }
    void Key(Shot& shot) { webcam::ReplaceBackground(Model, shot.Pixels, Behind); }
};
}

TEST(Motion, TheFirstFrameOfASizeAlwaysMoves)
{
    webcam::MotionDetector detector;
    Shot shot(107, 80, 50);
    EXPECT_EQ(webcam::MotionAmount(detector, shot.Pixels, shot.Header), 2147483647);
    // The second is compared with black: 107 x 80 x 3 x 50 over 80 + 321.
    EXPECT_EQ(webcam::MotionAmount(detector, shot.Pixels, shot.Header), 107 * 80 * 3 * 50 / 401);
    EXPECT_EQ(webcam::MotionAmount(detector, shot.Pixels, shot.Header), 0);
    Shot other(107, 79, 50);
    EXPECT_EQ(webcam::MotionAmount(detector, other.Pixels, other.Header), 2147483647);
}

TEST(Motion, EveryByteCountsUpAndDownAndThePaddingDoesNot)
{
    webcam::MotionDetector detector;
    Shot shot(5, 2, 100); // rows of 15 bytes, padded to 16
    webcam::MotionAmount(detector, shot.Pixels, shot.Header);
    webcam::MotionAmount(detector, shot.Pixels, shot.Header);
    shot.At(0, 0)[0] = 110;
    shot.At(4, 1)[2] = 90;
    shot.At(2, 1)[1] = 114;
    shot.Pixels.Row(0)[15] = 255;
    EXPECT_EQ(webcam::MotionAmount(detector, shot.Pixels, shot.Header), 2); // 34 over 2 + 15
    EXPECT_EQ(webcam::MotionAmount(detector, shot.Pixels, shot.Header), 0);
}

TEST_F(Keying, ASumOf699IsBackgroundAndOf700ThePlayer)
{
    for (const int sum : {699, 700})
    {
        Shot shot(7, 5, 100);
        // One pixel differs: the sum of every block around it is its difference.
        std::uint8_t* pixel = shot.At(3, 2);
        pixel[0] = 255;
        pixel[1] = 255;
        pixel[2] = 255; // 465 so far
        shot.At(2, 2)[0] = static_cast<std::uint8_t>(100 + (sum - 465) / 2);
        shot.At(4, 2)[0] = static_cast<std::uint8_t>(100 + (sum - 465 + 1) / 2);
        const std::uint8_t before = shot.At(3, 2)[1];
        Key(shot);
        EXPECT_EQ(shot.At(3, 2)[1], sum == 700 ? before : 9) << sum;
    }
}

TEST_F(Keying, DifferencesCountInBothDirectionsAndInAllColours)
{
    Shot shot(7, 5, 100);
    // 9 pixels of 78: 702.
    for (std::int32_t y = 1; y <= 3; ++y)
        for (std::int32_t x = 2; x <= 4; ++x)
        {
            shot.At(x, y)[0] = 126;
            shot.At(x, y)[1] = 74;
            shot.At(x, y)[2] = 126;
        }
    Key(shot);
    EXPECT_EQ(shot.At(3, 2)[0], 126);
    EXPECT_EQ(shot.At(2, 2)[0], 9); // only two columns of three reach it
}

TEST_F(Keying, TheBorderIsAlwaysBackground)
{
    Shot shot(7, 5, 255);
    Key(shot);
    for (std::int32_t x = 0; x < 7; ++x)
        for (std::int32_t y = 0; y < 5; ++y)
        {
            const bool border = x == 0 || x == 6 || y == 0 || y == 4;
            EXPECT_EQ(shot.At(x, y)[1], border ? 9 : 255) << x << ", " << y;
        }
}

TEST_F(Keying, TheGreatestDifferencesDoNotWrap)
{
    Shot black(7, 5, 0), white(7, 5, 255);
    webcam::SetBackground(Model, black.Pixels, black.Header);
    Key(white);
    EXPECT_EQ(Model.Sum.At(3, 2), 9 * 765);
    EXPECT_EQ(white.At(3, 2)[0], 255);
}

TEST_F(Keying, WhereTheBackdropEndsTheFrameStays)
{
    Behind = Backdrop(3, 2, 9);
    Shot shot(7, 5, 100);
    Key(shot);
    EXPECT_EQ(shot.At(2, 1)[0], 9);
    EXPECT_EQ(shot.At(3, 1)[0], 100);
    EXPECT_EQ(shot.At(2, 2)[0], 100);
    Behind = {};
    Key(shot);
    EXPECT_EQ(shot.At(3, 1)[0], 100);
}

TEST(KeyingFresh, BeforeTheFirstCalibrationNothingIsReplaced)
{
    webcam::Background model;
    Shot shot(7, 5, 100);
    webcam::ReplaceBackground(model, shot.Pixels, Backdrop(7, 5, 9));
    EXPECT_EQ(shot.At(3, 2)[0], 100);
}

TEST_F(Keying, AFrameSmallerThanTheModelIsLeftAlone)
{
    Shot shot(6, 5, 100);
    Key(shot);
    EXPECT_EQ(shot.At(3, 2)[0], 100);
}

TEST(Inset, IsTheBlockFromThatColumnAndRowOn)
{
    Shot frame(10, 8), inset(4, 3);
    for (std::int32_t y = 0; y < 8; ++y)
        for (std::int32_t x = 0; x < 10; ++x)
            frame.At(x, y)[2] = static_cast<std::uint8_t>(10 * y + x);
    webcam::CopyInset(frame.Pixels, 3, 2, 4, 3, inset.Pixels);
    EXPECT_EQ(inset.At(0, 0)[2], 23);
    EXPECT_EQ(inset.At(3, 2)[2], 46);
}

TEST(Inset, WhatLiesOutsideTheFrameIsNotCopied)
{
    Shot frame(10, 8, 50), inset(4, 3, 7);
    webcam::CopyInset(frame.Pixels, 8, 7, 4, 3, inset.Pixels);
    EXPECT_EQ(inset.At(1, 0)[0], 50);
    EXPECT_EQ(inset.At(2, 0)[0], 7);
    EXPECT_EQ(inset.At(0, 1)[0], 7);
    webcam::CopyInset(frame.Pixels, 100, 100, 4, 3, inset.Pixels);
    webcam::CopyInset(frame.Pixels, -1, 0, 4, 3, inset.Pixels);
    EXPECT_EQ(inset.At(3, 2)[0], 7);
}

TEST(KeyingMemory, NothingIsTakenAfterTheFirstFrame)
{
    webcam::Background model;
    webcam::MotionDetector detector;
    Shot shot(107, 80, 50), inset(70, 70);
    const render::Picture behind = Backdrop(107, 80, 9);
    webcam::SetBackground(model, shot.Pixels, shot.Header);
    webcam::MotionAmount(detector, shot.Pixels, shot.Header);
    const std::size_t before = support::Allocations();
    webcam::MotionAmount(detector, shot.Pixels, shot.Header);
    webcam::SetBackground(model, shot.Pixels, shot.Header);
    webcam::ReplaceBackground(model, shot.Pixels, behind);
    webcam::CopyInset(shot.Pixels, 10, 5, 70, 70, inset.Pixels);
    EXPECT_EQ(support::Allocations(), before);
}
