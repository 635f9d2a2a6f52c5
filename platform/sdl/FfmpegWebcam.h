// SPDX-License-Identifier: Zlib
// platform/sdl/FfmpegWebcam.h: the webcam on FFmpeg's libraries: any device, pixel format and size, cropped at its
// middle to the shape of the target and scaled to it.
#pragma once
#include "platform/Webcam.h"

#include <memory>
#include <string>

namespace sdl
{
// Where frames come from. Empty: the first video4linux2 device. A film or a synthetic source ("lavfi", "testsrc") runs
// through the same calls at its own pace.
struct WebcamSource
{
    std::string Format; // FFmpeg's name of the input format; empty: by the file
    std::string Url;
};

class FfmpegWebcam final : public platform::Webcam
{
public:
    explicit FfmpegWebcam(WebcamSource source);
    ~FfmpegWebcam() override;
    FfmpegWebcam(const FfmpegWebcam&) = delete;
    FfmpegWebcam& operator=(const FfmpegWebcam&) = delete;

    std::int32_t SetupCapture() override;
    bool InitCapture(const platform::CaptureParams& params) override;
    void DoCapture() override;
    bool IsCaptureDone() override;
    void DeinitCapture() override;

private:
    class Stream;
    WebcamSource Source;
    std::unique_ptr<Stream> Open;
};
}
