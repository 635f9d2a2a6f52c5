// SPDX-License-Identifier: Zlib
// platform/sdl/FramePicture.h: a decoded video frame becomes a picture of the requested size.
#pragma once
#include "platform/Webcam.h"

#include <vector>

struct AVFrame;
struct SwsContext;

namespace sdl
{
class FramePicture
{
public:
    explicit FramePicture(const platform::CaptureParams& params);
    ~FramePicture();
    FramePicture(const FramePicture&) = delete;
    FramePicture& operator=(const FramePicture&) = delete;

    // Crops the frame at its middle to the target's shape, scales it and writes the target. False: a frame that cannot
    // be converted. Allocates only where size or pixel format change.
    bool Take(AVFrame& frame);

private:
    platform::CaptureParams Params;
    SwsContext* Scaler = nullptr;
    std::vector<std::uint8_t> Scaled; // rows longer than the target's: the scaler writes whole vectors
};
}
