// SPDX-License-Identifier: Zlib
// platform/Webcam.h: the webcam as the game uses it: one device, one frame at a time. All calls are made on the
// window's thread; a back end that works elsewhere touches the target only between DoCapture and the IsCaptureDone that
// says so.
#pragma once
#include <cstdint>

namespace platform
{
struct CaptureParams
{
    // Borrowed until DeinitCapture. 4 bytes a pixel: blue, green, red, unused; rows not padded, row 0 on top.
    std::uint8_t* Target = nullptr;
    std::int32_t Width = 0, Height = 0; // pixels; the back end crops and scales what comes
};

struct Webcam
{
    virtual ~Webcam() = default;
    virtual std::int32_t SetupCapture() = 0;                   // number of devices; called once, at start-up
    virtual bool InitCapture(const CaptureParams& params) = 0; // opens the first device; false where it cannot
    virtual void DoCapture() = 0;                              // requests the next frame; returns at once
    virtual bool IsCaptureDone() = 0;                          // the requested frame is in the target
    virtual void DeinitCapture() = 0;                          // closes; nothing where none is open
};
}
