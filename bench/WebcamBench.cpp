// SPDX-License-Identifier: Zlib
// A frame of the webcam from the device's buffer to the inset: taken, keyed, cropped.
#include "platform/headless/Webcam.h"
#include "webcam/Calibration.h"

#include <benchmark/benchmark.h>

namespace
{
struct Filmed
{
    headless::Webcam Device;
    webcam::Webcam Camera;
    render::Picture Backdrop;
    render::PicArray2D Inset;
    std::vector<std::uint8_t> Pixels = std::vector<std::uint8_t>(107 * 80 * 4);

    Filmed()
    {
        Device.Devices = Camera.Capture.DeviceCount = 1;
        Camera.FrameHeader.biWidth = webcam::CaptureWidth;
        Camera.FrameHeader.biHeight = webcam::CaptureHeight;
        Camera.Frame.Allocate(webcam::CaptureHeight, 324);
        Inset.Allocate(70, 212);
        Backdrop.Info = {107, 80, 324, 1, 24};
        Backdrop.Pixels = Camera.Frame;
        webcam::SetBackground(Camera.Background, Camera.Frame, Camera.FrameHeader);
        webcam::InitCapture(Device, Camera.Capture);
        for (std::size_t i = 0; i < Pixels.size(); ++i)
            Pixels[i] = static_cast<std::uint8_t>(i * 7919 >> 5); // half of it looks like the background
    }
};

void CaptureAndKey(benchmark::State& state)
{
    Filmed filmed;
    webcam::Webcam& camera = filmed.Camera;
    for (auto _ : state)
    {
        filmed.Device.Complete(filmed.Pixels);
        webcam::GetFrame(filmed.Device, camera.Capture, 0, 0, 107, 80, camera.Frame);
        webcam::ReplaceBackground(camera.Background, camera.Frame, filmed.Backdrop);
        webcam::CopyInset(camera.Frame, 10, 5, 70, 70, filmed.Inset);
        benchmark::DoNotOptimize(filmed.Inset.Bytes.data());
    }
}

void Motion(benchmark::State& state)
{
    Filmed filmed;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            webcam::MotionAmount(filmed.Camera.Motion, filmed.Camera.Frame, filmed.Camera.FrameHeader));
}
}

BENCHMARK(CaptureAndKey)->Unit(benchmark::kMicrosecond);
BENCHMARK(Motion)->Unit(benchmark::kMicrosecond);
