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
inline constexpr std::int32_t ErrorNoDevice = 513;
inline constexpr std::int32_t ErrorNotReady = 514;
inline constexpr std::int32_t ErrorTimeout = 1024;

struct Capture
{
    std::int32_t DeviceCount = 0;
    base::Flag Open = base::False;
    platform::CaptureParams Params{nullptr, CaptureWidth, CaptureHeight};
    std::vector<std::uint8_t> Buffer; // the target: 4 bytes a pixel, row 0 on top
};

// Opens the first device and asks for its first frame. An error number, 0 where it went well.
std::int32_t InitCapture(platform::Webcam& device, Capture& capture);

// Waits until the frame asked for has come, handling window events, then closes the device. timeout: milliseconds; -1
// without end, 0 not at all. ErrorTimeout where the time passed first; the device is closed then too.
std::int32_t DeinitCapture(platform::Platform& platform, Capture& capture, std::int32_t timeout);

// Where the frame asked for has come: turns the rectangle from (left, top), rows counted from the bottom, upside down
// into the picture and asks for the next one. False: it has not come.
bool GetFrame(platform::Webcam& device, Capture& capture, std::int32_t left, std::int32_t top, std::int32_t width,
              std::int32_t height, render::PicArray2D& frame);

std::string CaptureErrorText(std::int32_t number);
}

template <> struct base::FieldsOf<webcam::Capture>
{
    using C = webcam::Capture;
    static constexpr auto Table = std::make_tuple(Fixed{"DeviceCount", &C::DeviceCount}, Fixed{"Open", &C::Open});
};
