// SPDX-License-Identifier: Zlib
// The webcam through the capture library of the tests (webcam/Camera.h).
#include "platform/win32/EscapiWebcam.h"
#include "tests/support/TempFolder.h"
#include "tests/windows/webcam/Camera.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <thread>
#include <vector>

namespace
{
constexpr std::int32_t Width = 107, Height = 80;

// Beside this program.
std::filesystem::path LibraryFolder()
{
    std::array<wchar_t, 32768> name = {};
    const DWORD length = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    return std::filesystem::path(name.data(), name.data() + length).parent_path() / "webcam";
}

struct EscapiWebcam : testing::Test
{
    std::vector<std::uint8_t> Target = std::vector<std::uint8_t>(Width * Height * 4 + 4, std::uint8_t{0x5C});
    support::TempFolder Folder;

    ~EscapiWebcam() override { SetEnvironmentVariableA("VELKAR_WEBCAM", nullptr); }
    static void Be(const char* kind) { SetEnvironmentVariableA("VELKAR_WEBCAM", kind); }
    platform::CaptureParams Params() { return {Target.data(), Width, Height}; }
    void Copy(const char* library, const char* name) const
    {
        std::filesystem::copy_file(LibraryFolder() / library, Folder.Path / name);
    }
    static bool AwaitFrame(win32::EscapiWebcam& webcam)
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (!webcam.IsCaptureDone())
        {
            if (std::chrono::steady_clock::now() > end)
                return false;
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
        return true;
    }
    void ExpectPixel(std::int32_t x, std::int32_t y, camera::Colour colour) const
    {
        const std::uint8_t* at = Target.data() + 4 * (y * Width + x);
        EXPECT_EQ(at[0], colour.Blue) << x << ", " << y;
        EXPECT_EQ(at[1], colour.Green) << x << ", " << y;
        EXPECT_EQ(at[2], colour.Red) << x << ", " << y;
    }
    // The whole frame of that number.
    void ExpectFrame(std::int32_t number) const
    {
        const std::int32_t left = camera::SquareAt(number, Width), top = (Height - camera::Square) / 2;
        for (std::int32_t y = 0; y < Height && !HasFailure(); ++y)
            for (std::int32_t x = 0; x < Width && !HasFailure(); ++x)
            {
                const bool white = x >= left && x < left + camera::Square && y >= top && y < top + camera::Square;
                ExpectPixel(x, y, white ? camera::Colour{255, 255, 255} : camera::BackgroundAt(x, y));
            }
        for (std::size_t i = Target.size() - 4; i < Target.size(); ++i)
            EXPECT_EQ(Target[i], 0x5C); // nothing behind it
    }
    static void ExpectNoDevice(win32::EscapiWebcam& webcam, const platform::CaptureParams& params)
    {
        EXPECT_EQ(webcam.SetupCapture(), 0);
        EXPECT_FALSE(webcam.InitCapture(params));
        webcam.DoCapture();
        EXPECT_FALSE(webcam.IsCaptureDone());
        webcam.DeinitCapture();
    }
};

TEST_F(EscapiWebcam, FramesComeOneAfterAnother)
{
    win32::EscapiWebcam webcam(LibraryFolder());
    ASSERT_EQ(webcam.SetupCapture(), 1);
    ASSERT_TRUE(webcam.InitCapture(Params()));
    EXPECT_FALSE(webcam.IsCaptureDone()); // none was asked for
    for (std::int32_t number = 0; number < 4; ++number)
    {
        webcam.DoCapture();
        EXPECT_FALSE(webcam.IsCaptureDone());
        ASSERT_TRUE(AwaitFrame(webcam));
        ExpectFrame(number);
    }
    webcam.DeinitCapture();
    EXPECT_FALSE(webcam.IsCaptureDone());
}

TEST_F(EscapiWebcam, OpensAgain)
{
    win32::EscapiWebcam webcam(LibraryFolder());
    ASSERT_EQ(webcam.SetupCapture(), 1);
    for (int round = 0; round < 3; ++round)
    {
        ASSERT_TRUE(webcam.InitCapture(Params()));
        EXPECT_FALSE(webcam.IsCaptureDone());
        webcam.DoCapture();
        ASSERT_TRUE(AwaitFrame(webcam));
        ExpectFrame(0);
        webcam.DoCapture();
        if (round != 1) // once without closing before
            webcam.DeinitCapture();
    }
}

TEST_F(EscapiWebcam, WithoutSetupNothingOpens)
{
    win32::EscapiWebcam webcam(LibraryFolder());
    EXPECT_FALSE(webcam.InitCapture(Params()));
    webcam.DeinitCapture();
}

TEST_F(EscapiWebcam, NoLibraryMeansNoDevice)
{
    win32::EscapiWebcam webcam(Folder.Path);
    ExpectNoDevice(webcam, Params());
}

TEST_F(EscapiWebcam, OneLibraryAloneMeansNoDevice)
{
    Copy("escapi.dll", "escapi.dll");
    win32::EscapiWebcam webcam(Folder.Path);
    ExpectNoDevice(webcam, Params());
}

TEST_F(EscapiWebcam, AMissingFunctionMeansNoDevice)
{
    Copy("escapi.dll", "escapi.dll");
    Copy("escapi.dll", "escapivb.dll");
    win32::EscapiWebcam webcam(Folder.Path);
    ExpectNoDevice(webcam, Params());
}

TEST_F(EscapiWebcam, AFileThatIsNoLibraryMeansNoDevice)
{
    Folder.Write("escapi.dll", "MZ");
    Folder.Write("escapivb.dll", "Tanti auguri");
    win32::EscapiWebcam webcam(Folder.Path);
    ExpectNoDevice(webcam, Params());
}

TEST_F(EscapiWebcam, TheFolderMayHaveAnItalianName)
{
    const std::filesystem::path folder = Folder.Path / L"La citt\u00E0 pi\u00F9 bella";
    std::filesystem::create_directories(folder);
    for (const char* name : {"escapi.dll", "escapivb.dll"})
        std::filesystem::copy_file(LibraryFolder() / name, folder / name);
    win32::EscapiWebcam webcam(folder);
    EXPECT_EQ(webcam.SetupCapture(), 1);
}

TEST_F(EscapiWebcam, TheLibraryFindsNoDevice)
{
    Be("none");
    win32::EscapiWebcam webcam(LibraryFolder());
    ExpectNoDevice(webcam, Params());
}

TEST_F(EscapiWebcam, ADeviceInUseDoesNotOpen)
{
    Be("busy");
    win32::EscapiWebcam webcam(LibraryFolder());
    EXPECT_EQ(webcam.SetupCapture(), 1);
    EXPECT_FALSE(webcam.InitCapture(Params()));
    webcam.DoCapture();
    EXPECT_FALSE(webcam.IsCaptureDone());
    Be(nullptr);
    EXPECT_TRUE(webcam.InitCapture(Params())); // later
}

TEST_F(EscapiWebcam, ADeviceThatNeverAnswersCloses)
{
    Be("silent");
    win32::EscapiWebcam webcam(LibraryFolder());
    EXPECT_EQ(webcam.SetupCapture(), 1);
    ASSERT_TRUE(webcam.InitCapture(Params()));
    webcam.DoCapture();
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_FALSE(webcam.IsCaptureDone());
    webcam.DeinitCapture();
    EXPECT_EQ(Target[0], 0x5C);
}
}
