// platform/Webcam.h: what the game asks of its webcam: one device, one frame at a time. Runs on the window's thread; a
// back end that works elsewhere touches the target only between DoCapture and the IsCaptureDone that says so.
#pragma once
#include <cstdint>

namespace platform
{
struct CaptureParams
{
    std::uint8_t* Target =
        nullptr; // borrowed until DeinitCapture: 4 bytes a pixel: blue, green, red, unused; row 0 on top
    std::int32_t Width = 0, Height = 0;
};

struct Webcam
{
    virtual ~Webcam() = default;
    virtual std::int32_t SetupCapture() = 0;                   // number of devices; asked once, at start-up
    virtual bool InitCapture(const CaptureParams& params) = 0; // opens the first device; false where it cannot
    virtual void DoCapture() = 0;                              // asks for the next frame
    virtual bool IsCaptureDone() = 0;                          // the frame asked for is in the target
    virtual void DeinitCapture() = 0;                          // closes; nothing where none is open
};
}
