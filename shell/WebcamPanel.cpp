// The webcam: its panel with preview and calibration, and the player's picture in the race view.
#include "base/Numbers.h"
#include "shell/Form1.h"

#include <array>

namespace shell
{
namespace
{
constexpr std::int32_t CloseTimeout = 1000;                          // milliseconds
constexpr std::int32_t InsetSize = 70, InsetLeft = 10, InsetTop = 5; // pixels of the captured frame

struct Stage
{
    const char* Text; // what the player is told
    base::Rgb Colour;
};

constexpr base::Rgb Muted = {160, 156, 150}, Amber = {255, 158, 54}, Green = {96, 208, 112};

constexpr std::array<Stage, 5> Stages = {{
    {"", Muted},
    {"Esci dal campo visivo...", Amber},
    {"Esci dal campo visivo...", Amber},
    {"Fermo immagine: attendi...", Amber},
    {"Configurazione completata", Green},
}};

const Stage& StageOf(std::uint8_t state)
{
    return state < Stages.size() ? Stages[state] : Stages[webcam::Idle];
}
}

bool Form1::TakeFrame()
{
    webcam::Webcam& webcam = TheGame.Webcam;
    return webcam::GetFrame(ThePlatform.WebcamDevice(), webcam.Capture, 0, 0, webcam::CaptureWidth,
                            webcam::CaptureHeight, webcam.Frame);
}

// False: what went wrong has been shown.
bool Form1::OpenWebcam()
{
    const std::int32_t error = webcam::InitCapture(ThePlatform.WebcamDevice(), TheGame.Webcam.Capture);
    if (error != webcam::CaptureOK)
        TheWindow->ShowMessage(base::Icon::Critical, base::DefaultTitle, webcam::CaptureErrorText(error));
    return error == webcam::CaptureOK;
}

void Form1::CloseWebcam()
{
    webcam::DeinitCapture(ThePlatform, TheGame.Webcam.Capture, CloseTimeout);
}

void Form1::cCamConfig_Click(std::int16_t)
{
    if (TheForm.Get("chkWebcam").Value == 0)
        return;
    ShowCalibration();
    ShowPanel("panelWebcam", true);
    if (OpenWebcam())
        TheGame.Timers.CaptureT.Enable(ThePlatform.TickCount());
}

void Form1::cStartCamConf_Click(std::int16_t)
{
    TheGame.Webcam.State = webcam::Asked;
    ShowCalibration();
}

void Form1::cWebcamOK_Click(std::int16_t)
{
    base::Trapped(*TheWindow, "cWebcamOK_Click",
                  [this]
                  {
                      TheGame.Timers.CaptureT.Disable(ThePlatform.TickCount());
                      CloseWebcam();
                      ShowPanel("panelWebcam", false);
                  });
}

void Form1::CaptureT_Tick()
{
    AdvanceTimers();
    TheGame.Timers.CaptureT.Tick();
    if (!TakeFrame())
        return;
    webcam::Calibrate(TheGame.Webcam, TheGame.Pictures.Inside, ThePlatform.TickCount());
    ShowCalibration();
    Repaint();
}

void Form1::ShowCalibration()
{
    TheForm.Get("lblCamState").Caption = StageOf(TheGame.Webcam.State).Text;
}

void Form1::PaintPreview(forms::Canvas& canvas, const forms::Rect& place) const
{
    const webcam::Webcam& webcam = TheGame.Webcam;
    forms::Stretch(
        canvas, place,
        {webcam.Frame.Bytes.data(), webcam.Frame.RowBytes, webcam.FrameHeader.biWidth, webcam.FrameHeader.biHeight});
    constexpr double around = 2;
    forms::OutlineRounded(canvas, {place.X - 2, place.Y - 2, place.W + 4, place.H + 4}, around, around,
                          StageOf(webcam.State).Colour);
}

// The crop trembles with the car: within its shake, and to both sides once that is strong.
void Form1::ShowInset()
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
