// SPDX-License-Identifier: Zlib
// webcam/Capture.h: fetching frames from the webcam, one request outstanding at a time. Runs on the window's thread.
#pragma once
#include "base/Fields.h"
#include "base/Numbers.h"
#include "platform/Platform.h"
#include "render/PicArray.h"

#include <cstdint>
#include <string>
#include <vector>

namespace webcam
{
inline constexpr std::int32_t CaptureWidth = 107, CaptureHeight = 80; // pixels

// What goes wrong, by number.
inline constexpr std::int32_t CaptureOK = 0;
inline constexpr std::int32_t ErrorNoDevice = 513; // none was found at start-up
inline constexpr std::int32_t ErrorNotReady = 514; // it is there and does not open
inline constexpr std::int32_t ErrorTimeout = 1024; // no frame came in time

struct Capture
{
    std::int32_t DeviceCount = 0;  // as SetupCapture found at start-up; 0: there is no webcam
    base::Flag Open = base::False; // then one frame is always asked for and has not been taken
    platform::CaptureParams Params{nullptr, CaptureWidth, CaptureHeight};
    // The target: 4 bytes a pixel, blue, green, red, unused, row 0 on top. The device writes into it while it is open.
    std::vector<std::uint8_t> Buffer;
};

// Opens the first device, anew where it is open, and asks for its first frame. An error number, 0 where it went well.
std::int32_t InitCapture(platform::Webcam& device, Capture& capture);

// Waits until the frame asked for has come, handling window events, then closes the device. timeout: milliseconds; -1
// without end, 0 not at all. ErrorTimeout where the time passed first; the device is closed then too.
std::int32_t DeinitCapture(platform::Platform& platform, Capture& capture, std::int32_t timeout);

// Where the frame asked for has come: turns the rectangle from (left, top), rows counted from the bottom, upside down
// into the picture, as far as both have room, and asks for the next one. False: it has not come, or nothing is open.
bool GetFrame(platform::Webcam& device, Capture& capture, std::int32_t left, std::int32_t top, std::int32_t width,
              std::int32_t height, render::PicArray2D& frame);

// What the player reads: of the numbers above, or of a run-time error below them.
std::string CaptureErrorText(std::int32_t number);
}

template <> struct base::FieldsOf<webcam::Capture>
{
    using C = webcam::Capture;
    static constexpr auto Table = std::make_tuple(Fixed{"DeviceCount", &C::DeviceCount}, Fixed{"Open", &C::Open});
};
