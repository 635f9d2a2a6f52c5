// SPDX-License-Identifier: Zlib
#include "webcam/Capture.h"

#include "base/Pixels.h"
#include "base/RuntimeError.h"

#include <algorithm>

namespace webcam
{
namespace
{
constexpr std::size_t CapturedBytes = 4; // a pixel of the webcam's
constexpr std::uint32_t WaitStep = 5;    // milliseconds
}

std::int32_t InitCapture(platform::Webcam& device, Capture& capture)
{
    if (capture.DeviceCount == 0)
        return ErrorNoDevice;
    if (capture.Open != base::False)
        device.DeinitCapture();
    capture.Open = base::False;
    platform::CaptureParams& params = capture.Params;
    capture.Buffer.resize(static_cast<std::size_t>(params.Width) * static_cast<std::size_t>(params.Height) *
                          CapturedBytes);
    params.Target = capture.Buffer.data();
    if (!device.InitCapture(params))
        return ErrorNotReady;
    capture.Open = base::True;
    device.DoCapture();
    return CaptureOK;
}

std::int32_t DeinitCapture(platform::Platform& platform, Capture& capture, std::int32_t timeout)
{
    platform::Webcam& device = platform.WebcamDevice();
    std::int32_t result = CaptureOK;
    const std::uint32_t start = platform.TickCount();
    while (timeout != 0 && capture.Open != base::False && !device.IsCaptureDone())
    {
        if (timeout > 0 && platform.TickCount() - start >= static_cast<std::uint32_t>(timeout))
        {
            result = ErrorTimeout;
            break;
        }
        platform.WaitEvents(WaitStep); // the window's events may close the device themselves
    }
    device.DeinitCapture();
    capture.Open = base::False;
    return result;
}

bool GetFrame(platform::Webcam& device, Capture& capture, std::int32_t left, std::int32_t top, std::int32_t width,
              std::int32_t height, render::PicArray2D& frame)
{
    if (capture.Open == base::False || !device.IsCaptureDone())
        return false;
    const platform::CaptureParams& params = capture.Params;
    const std::int32_t columns = std::min({width, params.Width - left, frame.RowBytes / base::PixelBytes});
    const std::int32_t rows = std::min({height, params.Height - top, frame.Rows});
    for (std::int32_t y = 0; y < rows; ++y)
    {
        const std::int32_t row = params.Height - 1 - top - y;
        const std::size_t first =
            static_cast<std::size_t>(row) * static_cast<std::size_t>(params.Width) + static_cast<std::size_t>(left);
        const std::uint8_t* from = capture.Buffer.data() + CapturedBytes * first;
        std::uint8_t* to = frame.Row(y);
        for (std::int32_t x = 0; x < columns; ++x, from += CapturedBytes, to += base::PixelBytes)
            base::CopyPixel(to, from);
    }
    device.DoCapture();
    return true;
}

std::string CaptureErrorText(std::int32_t number)
{
    switch (number)
    {
    case CaptureOK:
        return "Completato";
    case ErrorNoDevice:
        return "Nessuna periferica disponibile";
    case ErrorNotReady:
        return "Periferica non pronta o già in uso";
    case ErrorTimeout:
        return "Impossibile portare a termine l'operazione";
    default:
        return number >= ErrorNoDevice ? "Errore sconosciuto" : base::ErrorDescription(number);
    }
}
}
