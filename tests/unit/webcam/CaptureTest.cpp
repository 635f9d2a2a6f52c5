// SPDX-License-Identifier: Zlib
// Frames from the device: opening, one request at a time, closing with its time-out.
#include "webcam/Capture.h"
#include "platform/headless/Machine.h"

#include <gtest/gtest.h>

namespace
{
struct CaptureTest : testing::Test
{
    headless::Machine Machine{base::Files()};
    webcam::Capture Capture;
    render::PicArray2D Frame;

    CaptureTest()
    {
        Machine.TheWebcam.Devices = 1;
        Capture.DeviceCount = 1;
        Frame.Allocate(80, 324);
    }
    std::int32_t Init() { return webcam::InitCapture(Machine.WebcamDevice(), Capture); }
    bool Get(std::int32_t left = 0, std::int32_t top = 0, std::int32_t width = 107, std::int32_t height = 80)
    {
        return webcam::GetFrame(Machine.WebcamDevice(), Capture, left, top, width, height, Frame);
    }
    // Blue is the column, green the row from the top, red their sum.
    bool Film()
    {
        std::vector<std::uint8_t> pixels;
        for (int y = 0; y < 80; ++y)
            for (int x = 0; x < 107; ++x)
                for (const int byte : {x, y, x + y, 77})
                    pixels.push_back(static_cast<std::uint8_t>(byte));
        return Machine.TheWebcam.Complete(pixels);
    }
};
}

TEST_F(CaptureTest, WithoutADeviceTheErrorIs513)
{
    Capture.DeviceCount = 0;
    EXPECT_EQ(Init(), 513);
    EXPECT_EQ(Capture.Open, base::False);
}

TEST_F(CaptureTest, ADeviceThatCannotBeOpenedIsError514)
{
    Machine.TheWebcam.Fails = true;
    EXPECT_EQ(Init(), 514);
    EXPECT_EQ(Capture.Open, base::False);
    EXPECT_FALSE(Get());
}

TEST_F(CaptureTest, OpeningAsksForTheFirstFrame)
{
    EXPECT_EQ(Init(), 0);
    EXPECT_NE(Capture.Open, base::False);
    EXPECT_EQ(Capture.Buffer.size(), 107u * 80 * 4);
    EXPECT_FALSE(Get()) << "it has not come";
    EXPECT_TRUE(Film());
    EXPECT_FALSE(Film()) << "one request at a time";
    EXPECT_TRUE(Get());
    EXPECT_FALSE(Get()) << "the next one has not come";
    EXPECT_TRUE(Film()) << "but was asked for";
}

TEST_F(CaptureTest, TheRowsAreTurnedUpsideDown)
{
    Init();
    Film();
    ASSERT_TRUE(Get());
    const std::uint8_t* bottom = Frame.Row(0) + 3 * 5;
    EXPECT_EQ(bottom[0], 5);
    EXPECT_EQ(bottom[1], 79);
    EXPECT_EQ(bottom[2], 84);
    EXPECT_EQ(Frame.Row(79)[1], 0);
    EXPECT_EQ(Frame.Row(0)[321], 0) << "the padding";
}

TEST_F(CaptureTest, ARectangleCountsItsRowsFromTheBottom)
{
    Init();
    Film();
    ASSERT_TRUE(Get(10, 5, 20, 30));
    EXPECT_EQ(Frame.Row(0)[0], 10);
    EXPECT_EQ(Frame.Row(0)[1], 74);
    EXPECT_EQ(Frame.Row(29)[3 * 19], 29);
    EXPECT_EQ(Frame.Row(29)[3 * 19 + 1], 45);
    EXPECT_EQ(Frame.Row(30)[0], 0);
}

TEST_F(CaptureTest, ARectangleBeyondTheFrameIsCut)
{
    Init();
    Film();
    ASSERT_TRUE(Get(100, 70, 107, 80));
    EXPECT_EQ(Frame.Row(9)[3 * 6], 106);
    EXPECT_EQ(Frame.Row(10)[0], 0);
}

TEST_F(CaptureTest, ClosingWaitsForTheFrameThatWasAskedFor)
{
    Init();
    Film();
    EXPECT_EQ(webcam::DeinitCapture(Machine, Capture, 1000), 0);
    EXPECT_EQ(Machine.Clock, 0u) << "it had come";
    EXPECT_EQ(Capture.Open, base::False);
    EXPECT_FALSE(Get());
}

TEST_F(CaptureTest, AFrameThatNeverComesEndsInError1024AndAClosedDevice)
{
    Init();
    EXPECT_EQ(webcam::DeinitCapture(Machine, Capture, 1000), 1024);
    EXPECT_GE(Machine.Clock, 1000u);
    EXPECT_LE(Machine.Clock, 1050u);
    EXPECT_EQ(Capture.Open, base::False);
    EXPECT_EQ(webcam::DeinitCapture(Machine, Capture, 1000), 0) << "nothing is open: nothing to wait for";
}

TEST_F(CaptureTest, ATimeoutOfZeroDoesNotWait)
{
    Init();
    EXPECT_EQ(webcam::DeinitCapture(Machine, Capture, 0), 0);
    EXPECT_EQ(Machine.Clock, 0u);
    EXPECT_EQ(Capture.Open, base::False);
}

TEST_F(CaptureTest, TheTimeoutHoldsWhereTheClockWraps)
{
    Machine.Clock = 0xFFFFFF00u;
    Init();
    EXPECT_EQ(webcam::DeinitCapture(Machine, Capture, 1000), 1024);
    EXPECT_LT(Machine.Clock - 0xFFFFFF00u, 1050u);
}

TEST_F(CaptureTest, OpeningTwiceStartsAnew)
{
    Init();
    Film();
    EXPECT_EQ(Init(), 0);
    EXPECT_FALSE(Get());
    EXPECT_TRUE(Film());
    EXPECT_TRUE(Get());
}

TEST(CaptureErrorText, HasATextForEveryNumber)
{
    using webcam::CaptureErrorText;
    EXPECT_EQ(CaptureErrorText(0), "Completato");
    EXPECT_EQ(CaptureErrorText(513), "Nessuna periferica disponibile");
    EXPECT_EQ(CaptureErrorText(514), "Periferica non pronta o già in uso");
    EXPECT_EQ(CaptureErrorText(1024), "Impossibile portare a termine l'operazione");
    for (const int number : {515, 1023, 1025, 2000000000})
        EXPECT_EQ(CaptureErrorText(number), "Errore sconosciuto") << number;
    EXPECT_EQ(CaptureErrorText(6), "Overflow");
    EXPECT_EQ(CaptureErrorText(53), "Impossibile trovare il file");
    EXPECT_EQ(CaptureErrorText(512), CaptureErrorText(-1));
}
