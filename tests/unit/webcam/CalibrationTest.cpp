// SPDX-License-Identifier: Zlib
// From the click to the known background.
#include "webcam/Calibration.h"

#include <gtest/gtest.h>

namespace
{
struct CalibrationTest : testing::Test
{
    webcam::Webcam Camera;
    render::Picture Backdrop;
    std::uint32_t Now = 5000;

    CalibrationTest()
    {
        Camera.FrameHeader.biWidth = 107;
        Camera.FrameHeader.biHeight = 80;
        Camera.Frame.Allocate(80, 324);
        Backdrop.Info = {107, 80, 324, 1, 24};
        Backdrop.Pixels = Camera.Frame;
        std::fill(Backdrop.Pixels.Bytes.begin(), Backdrop.Pixels.Bytes.end(), std::uint8_t{9});
    }
    // A frame of one shade after so many milliseconds; the state it leads to.
    int Film(std::uint32_t after, std::uint8_t shade)
    {
        Now += after;
        std::fill(Camera.Frame.Bytes.begin(), Camera.Frame.Bytes.end(), shade);
        webcam::Calibrate(Camera, Backdrop, Now);
        return Camera.State;
    }
    void UntilKeyed()
    {
        Camera.State = webcam::Asked;
        for (int i = 0; i < 100 && Film(100, 50) != webcam::Keyed; ++i)
        {
        }
    }
};
}

TEST_F(CalibrationTest, IdleLeavesTheFrameAlone)
{
    EXPECT_EQ(Film(40, 50), 0);
    EXPECT_EQ(Film(10000, 50), 0);
    EXPECT_EQ(Camera.Frame.Row(3)[3], 50);
}

TEST_F(CalibrationTest, ASecondToLeaveThenOneAndAHalfOfStillness)
{
    Camera.State = webcam::Asked;
    EXPECT_EQ(Film(40, 50), 2);
    EXPECT_EQ(Film(999, 50), 2);
    EXPECT_EQ(Film(1, 50), 3);
    // The first look always sees movement, the second compares with black: each grants a second more.
    EXPECT_EQ(Film(40, 50), 3);
    EXPECT_EQ(Film(40, 50), 3);
    EXPECT_EQ(Film(999, 50), 3);
    EXPECT_EQ(Film(1, 50), 4);
    EXPECT_EQ(Camera.Background.Width, 107);
    EXPECT_EQ(Film(40, 50), 4);
    EXPECT_EQ(Camera.Frame.Row(3)[3], 9) << "keyed";
}

TEST_F(CalibrationTest, AStillSceneWaitsOneAndAHalfSeconds)
{
    // The detector knows this scene already.
    Film(0, 50);
    webcam::MotionAmount(Camera.Motion, Camera.Frame, Camera.FrameHeader);
    webcam::MotionAmount(Camera.Motion, Camera.Frame, Camera.FrameHeader);
    Camera.State = webcam::Asked;
    EXPECT_EQ(Film(0, 50), 2);
    EXPECT_EQ(Film(1000, 50), 3);
    EXPECT_EQ(Film(1499, 50), 3);
    EXPECT_EQ(Film(1, 50), 4);
}

TEST_F(CalibrationTest, MovementPutsItOff)
{
    Camera.State = webcam::Asked;
    Film(0, 50);
    Film(1000, 50);
    Film(40, 50);
    for (int i = 0; i < 30; ++i)
        EXPECT_EQ(Film(200, i % 2 == 0 ? 70 : 50), 3) << "20 a byte is more than 600";
    EXPECT_EQ(Film(999, 50), 3);
    EXPECT_EQ(Film(1, 50), 4);
}

TEST_F(CalibrationTest, AskingAgainStartsAgainAndKeepsTheOldBackgroundMeanwhile)
{
    UntilKeyed();
    ASSERT_EQ(Camera.State, 4);
    Camera.State = webcam::Asked;
    EXPECT_EQ(Film(40, 90), 2);
    EXPECT_EQ(Camera.Background.Frame.Row(3)[3], 50);
    EXPECT_EQ(Camera.Frame.Row(3)[3], 90) << "not keyed while it calibrates";
}

TEST_F(CalibrationTest, TheDeadlinesHoldWhereTheClockWraps)
{
    Now = 0xFFFFFF00u;
    Camera.State = webcam::Asked;
    EXPECT_EQ(Film(0, 50), 2);
    EXPECT_EQ(Film(500, 50), 2);
    EXPECT_EQ(Film(500, 50), 3);
}
