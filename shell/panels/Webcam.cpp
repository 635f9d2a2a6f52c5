// SPDX-License-Identifier: Zlib
#include "shell/panels/Webcam.h"

#include "shell/forms/Style.h"

#include <algorithm>
#include <array>

namespace panels
{
namespace
{
using forms::Align;
using forms::Look;

struct Stage
{
    const char* Text; // what the player is told
    base::Rgb Colour;
};

constexpr base::Rgb Done = {96, 208, 112};

constexpr std::array<Stage, 5> Stages = {{
    {"", forms::Muted},
    {"Esci dal campo visivo...", forms::Accent},
    {"Esci dal campo visivo...", forms::Accent},
    {"Fermo immagine: attendi...", forms::Accent},
    {"Configurazione completata", Done},
}};

const Stage& StageOf(std::uint8_t state)
{
    return state < Stages.size() ? Stages[state] : Stages[webcam::Idle];
}
}

Webcam::Webcam(Board& board, webcam::Webcam& webcam, shell::TickTimer& captureT, const render::Picture& backdrop,
               Verbs verbs)
    : Panel(board, "panelWebcam"), TheWebcam(webcam), CaptureT(captureT), Backdrop(backdrop), Ask(std::move(verbs)),
      lblWebcam(Heading("lblWebcam", "Webcam")), picWebcam(Picture("picWebcam")),
      lblCamState(Label("lblCamState", "", Look::Note)), lblCamClick(Label("lblCamClick", "Fai clic")),
      cStartCamConf(Label("cStartCamConf", "qui", Look::Link)), lblCamLeave(Label("lblCamLeave", ", poi esci dal")),
      lblCamWait(Label("lblCamWait", "campo visivo per qualche secondo per portare a termine la configurazione",
                       Look::Paragraph)),
      cWebcamOK(OK("cWebcamOK"))
{
    On.Does.OnClick(cStartCamConf, [this] { cStartCamConf_Click(); });
    On.Does.OnClick(cWebcamOK, [this] { cWebcamOK_Click(); });
    On.Does.OnPaint(picWebcam,
                    [this](forms::Canvas& canvas, const forms::Rect& place) { PaintPreview(canvas, place); });
}

// The preview, how far the calibration is, and the instruction, which reads as one sentence: three pieces on a line,
// the last one below them.
void Webcam::Place(platform::Size client)
{
    constexpr std::int32_t previewWidth = webcam::CaptureWidth, previewHeight = webcam::CaptureHeight;
    Layout layout(On.Form, client);
    const std::int32_t size = layout.Text * 9 / 10;
    const std::int32_t line = size * 3 / 2, below = 2 * line;
    const std::int32_t around = layout.HeadingHeight() + 3 * layout.Gap + 2 * line + below + layout.ButtonHeight();
    const std::int32_t room = layout.Client.Height - around - 4 * layout.Gap;
    const std::int32_t height = std::clamp(room, previewHeight / 2, previewHeight * 4);
    Card card(layout, 26, height + layout.Gap + 2 * line + below);
    card.Heading(lblWebcam);
    const std::int32_t width = std::min(card.Width, height * previewWidth / previewHeight);
    layout.Place(picWebcam, layout.Centred(card.Y, width, width * previewHeight / previewWidth), size);
    card.Y += height + layout.Gap / 2;
    layout.Place(lblCamState, {card.Left, card.Y, card.Width, line}, size, Align::Centre);
    card.Y += line + layout.Gap / 2;

    const std::int16_t pieces[] = {lblCamClick, cStartCamConf, lblCamLeave};
    const auto measure = [&](std::int16_t piece) { return forms::MeasureText(At(piece).Caption, size, 1) + 1; };
    const std::int32_t blank = size / 3;
    std::int32_t x = (layout.Client.Width - measure(pieces[0]) - blank - measure(pieces[1]) - measure(pieces[2])) / 2;
    for (const std::int16_t piece : pieces)
    {
        layout.Place(piece, {x, card.Y, measure(piece), line}, size);
        x += measure(piece) + (piece == pieces[0] ? blank : 0);
    }
    card.Y += line;
    layout.Place(lblCamWait, {card.Left, card.Y, card.Width, below}, size, Align::Centre);
    card.Y += below;
    card.OK(cWebcamOK);
}

void Webcam::Open()
{
    ShowCalibration();
    Show();
    if (Ask.Open())
        CaptureT.Enable(Ask.TickCount());
}

void Webcam::CaptureT_Tick()
{
    CaptureT.Tick();
    if (!Ask.TakeFrame())
        return;
    webcam::Calibrate(TheWebcam, Backdrop, Ask.TickCount());
    ShowCalibration();
    On.Repaint();
}

void Webcam::cStartCamConf_Click()
{
    TheWebcam.State = webcam::Asked;
    ShowCalibration();
}

void Webcam::cWebcamOK_Click()
{
    base::Trapped(On.Messages, "cWebcamOK_Click",
                  [this]
                  {
                      CaptureT.Disable(Ask.TickCount());
                      Ask.Close();
                      Hide();
                  });
}

void Webcam::ShowCalibration()
{
    At(lblCamState).Caption = StageOf(TheWebcam.State).Text;
}

void Webcam::PaintPreview(forms::Canvas& canvas, const forms::Rect& place) const
{
    forms::Stretch(canvas, place,
                   {TheWebcam.Frame.Bytes.data(), TheWebcam.Frame.RowBytes, TheWebcam.FrameHeader.biWidth,
                    TheWebcam.FrameHeader.biHeight});
    constexpr double around = 2;
    forms::OutlineRounded(canvas, {place.X - 2, place.Y - 2, place.W + 4, place.H + 4}, around, around,
                          StageOf(TheWebcam.State).Colour);
}
}
