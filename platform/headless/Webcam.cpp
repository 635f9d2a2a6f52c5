// SPDX-License-Identifier: Zlib
#include "platform/headless/Webcam.h"

#include <algorithm>

namespace headless
{
bool Webcam::InitCapture(const platform::CaptureParams& params)
{
    DeinitCapture();
    if (Fails || Devices <= 0)
        return false;
    Params = params;
    Open = true;
    return true;
}

void Webcam::DoCapture()
{
    Requested = Open;
    Done = false;
}

void Webcam::DeinitCapture()
{
    Open = Requested = Done = false;
}

bool Webcam::Complete(std::span<const std::uint8_t> pixels)
{
    const auto size = static_cast<std::size_t>(Params.Width) * static_cast<std::size_t>(Params.Height) * 4;
    if (!Open || !Requested || Done || pixels.size() != size)
        return false;
    std::copy(pixels.begin(), pixels.end(), Params.Target);
    Done = true;
    return true;
}
}
