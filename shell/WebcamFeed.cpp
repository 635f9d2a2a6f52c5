// SPDX-License-Identifier: Zlib
#include "shell/WebcamFeed.h"

#include "base/Numbers.h"
#include "webcam/Calibration.h"

namespace shell
{
namespace
{
constexpr std::int32_t CloseTimeout = 1000;                          // milliseconds
constexpr std::int32_t InsetSize = 70, InsetLeft = 10, InsetTop = 5; // pixels of the captured frame
}

WebcamFeed::~WebcamFeed()
{
    Platform.WebcamDevice().DeinitCapture(); // it writes into the game's buffer
}

bool WebcamFeed::OpenWebcam()
{
    const std::int32_t error = webcam::InitCapture(Platform.WebcamDevice(), TheGame.Webcam.Capture);
    if (error != webcam::CaptureOK)
        Messages.ShowMessage(base::Icon::Critical, base::DefaultTitle, webcam::CaptureErrorText(error));
    return error == webcam::CaptureOK;
}

void WebcamFeed::CloseWebcam()
{
    webcam::DeinitCapture(Platform, TheGame.Webcam.Capture, CloseTimeout);
}

bool WebcamFeed::TakeFrame()
{
    webcam::Webcam& webcam = TheGame.Webcam;
    return webcam::GetFrame(Platform.WebcamDevice(), webcam.Capture, 0, 0, webcam::CaptureWidth, webcam::CaptureHeight,
                            webcam.Frame);
}

// The crop trembles with the car: within its shake, and to both sides once that is strong.
void WebcamFeed::ShowInset()
{
    const std::int16_t inset = TheGame.Hud.Webcam;
    if (!TakeFrame() || !TheGame.Scene.Pics.Has(inset))
        return;
    const double shake = TheGame.Run.Shake;
    const auto place = [&](std::int32_t middle)
    {
        const double draw = TheGame.Random.Next();
        return base::RoundEven((shake <= 1 ? draw : draw - 0.5) * shake + middle);
    };
    const std::int32_t left = place(InsetLeft), top = place(InsetTop);
    webcam::Webcam& webcam = TheGame.Webcam;
    webcam::ReplaceBackground(webcam.Background, webcam.Frame, TheGame.Pictures.Inside);
    webcam::CopyInset(webcam.Frame, left, top, InsetSize, InsetSize, TheGame.Scene.Pics.At(inset).Pic.Pixels);
}
}
