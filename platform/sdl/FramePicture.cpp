// SPDX-License-Identifier: Zlib
#include "platform/sdl/FramePicture.h"

#include "base/Pixels.h"

#include <algorithm>
#include <cstring>
#include <memory>

extern "C"
{
#include <libavutil/frame.h>
#include <libswscale/swscale.h>
}

namespace sdl
{
namespace
{
constexpr std::int32_t TargetPixelBytes = 4;
constexpr std::int32_t Alignment = 64; // bytes

std::int32_t AlignedRow(std::int32_t width)
{
    return (width * TargetPixelBytes + 2 * Alignment - 1) / Alignment * Alignment;
}

// Formats that share colours between neighbours must not be cut between them.
std::size_t Even(std::int64_t size)
{
    return static_cast<std::size_t>(size / 2 * 2);
}

// The largest part around the middle that has the target's shape.
void CropToShape(AVFrame& frame, std::int32_t width, std::int32_t height)
{
    const std::int64_t frameWidth = frame.width, frameHeight = frame.height;
    const std::int64_t columns = std::min(frameWidth, frameHeight * width / height);
    const std::int64_t rows = std::min(frameHeight, frameWidth * height / width);
    frame.crop_left = Even((frameWidth - columns) / 2);
    frame.crop_right = static_cast<std::size_t>(frameWidth - columns) - frame.crop_left;
    frame.crop_top = Even((frameHeight - rows) / 2);
    frame.crop_bottom = static_cast<std::size_t>(frameHeight - rows) - frame.crop_top;
}
}

FramePicture::FramePicture(const platform::CaptureParams& params) : Params(params)
{
    Scaled.resize(static_cast<std::size_t>(AlignedRow(params.Width)) * static_cast<std::size_t>(params.Height) +
                  Alignment);
}

FramePicture::~FramePicture()
{
    sws_freeContext(Scaler);
}

bool FramePicture::Take(AVFrame& frame)
{
    if (frame.width < 1 || frame.height < 1)
        return false;
    CropToShape(frame, Params.Width, Params.Height);
    if (av_frame_apply_cropping(&frame, AV_FRAME_CROP_UNALIGNED) < 0)
        return false;
    Scaler = sws_getCachedContext(Scaler, frame.width, frame.height, static_cast<AVPixelFormat>(frame.format),
                                  Params.Width, Params.Height, AV_PIX_FMT_BGR0, SWS_AREA, nullptr, nullptr, nullptr);
    if (Scaler == nullptr)
        return false;
    void* start = Scaled.data();
    std::size_t space = Scaled.size();
    auto* const aligned = static_cast<std::uint8_t*>(std::align(Alignment, Scaled.size() - Alignment, start, space));
    std::uint8_t* const planes[4] = {aligned, nullptr, nullptr, nullptr};
    const int strides[4] = {AlignedRow(Params.Width), 0, 0, 0};
    if (sws_scale(Scaler, frame.data, frame.linesize, 0, frame.height, planes, strides) != Params.Height)
        return false;
    const std::int32_t rowBytes = Params.Width * TargetPixelBytes;
    const base::ConstSurface from = {aligned, strides[0], Params.Width, Params.Height};
    const base::Surface to = {Params.Target, rowBytes, Params.Width, Params.Height};
    for (std::int32_t y = 0; y < Params.Height; ++y)
        std::memcpy(to.Row(y), from.Row(y), static_cast<std::size_t>(rowBytes));
    return true;
}
}
