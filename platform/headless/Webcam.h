// SPDX-License-Identifier: Zlib
// platform/headless/Webcam.h: a webcam that a script plays the part of.
#pragma once
#include "platform/Webcam.h"

#include <cstdint>
#include <span>

namespace headless
{
class Webcam final : public platform::Webcam
{
public:
    std::int32_t SetupCapture() override { return Devices; }
    bool InitCapture(const platform::CaptureParams& params) override;
    void DoCapture() override;
    bool IsCaptureDone() override { return Open && Done; }
    void DeinitCapture() override;

    // The requested frame comes: its pixels as the target has them. False: none was requested.
    bool Complete(std::span<const std::uint8_t> pixels);

    std::int32_t Devices = 0;
    bool Fails = false; // opening does

private:
    platform::CaptureParams Params;
    bool Open = false, Requested = false, Done = false;
};
}
