// Where the option panels stand.
#include "shell/forms/Paint.h"
#include "shell/Layout.h"

#include <algorithm>

namespace shell
{
using forms::Align;

namespace
{
void Options(Layout& layout)
{
    constexpr std::int32_t entries = 4;
    Card card(layout, 18, entries * (layout.ButtonHeight() + layout.Gap / 2));
    card.Heading("lblOption");
    for (const char* name : {"cGameOpt", "cVidOpt", "cAudOpt", "cCtrOpt"})
        card.Button(name);
    card.OK("cOptOK");
}

void GameOptions(Layout& layout)
{
    Card card(layout, 20, layout.Row + layout.Gap * 5 / 2);
    card.Heading("lblGameOpt");
    card.Y += layout.Gap;
    card.Field("lblLap", "txtLap");
    card.Y += layout.Gap;
    card.OK("cGameOptOK");
}

void VideoOptions(Layout& layout)
{
    constexpr std::int32_t lines = 6;
    Card card(layout, 28, lines * (layout.Row + layout.Gap / 2));
    card.Heading("lblVidOpt");
    card.Field("lblFreq", "txtFreq");
    card.Field("lblRes", "txtRes");
    card.Field("lblFilter", "lblTxtFilter", Align::Centre);
    card.Field("lblEffects", "lblEffQ", Align::Centre);
    card.Check("chkFS");
    card.Check("chkWebcam", "cCamConfig");
    card.OK("cVidOptOK");
}

void AudioOptions(Layout& layout)
{
    constexpr std::int32_t lines = 3;
    Card card(layout, 26, lines * (layout.Row + layout.Gap / 2));
    card.Heading("lblAudOpt");
    card.Check("chkMusic");
    card.Field("lblMusVol", "picMusVol");
    card.Field("lblEffVol", "picEffVol");
    card.OK("cAudOptOK");
}

// The preview, how far the calibration is, and the instruction, which reads as one sentence: three pieces on a line,
// the last one below them.
void WebcamOptions(Layout& layout)
{
    constexpr std::int32_t previewWidth = 107, previewHeight = 80;
    const std::int32_t size = layout.Text * 9 / 10;
    const std::int32_t line = size * 3 / 2, below = 2 * line;
    const std::int32_t around = layout.HeadingHeight() + 3 * layout.Gap + 2 * line + below + layout.ButtonHeight();
    const std::int32_t room = layout.Client.Height - around - 4 * layout.Gap;
    const std::int32_t height = std::clamp(room, previewHeight / 2, previewHeight * 4);
    Card card(layout, 26, height + layout.Gap + 2 * line + below);
    card.Heading("lblWebcam");
    const std::int32_t width = std::min(card.Width, height * previewWidth / previewHeight);
    layout.Place("picWebcam", layout.Centred(card.Y, width, width * previewHeight / previewWidth), size);
    card.Y += height + layout.Gap / 2;
    layout.Place("lblCamState", {card.Left, card.Y, card.Width, line}, size, Align::Centre);
    card.Y += line + layout.Gap / 2;

    constexpr const char* pieces[] = {"lblCamClick", "cStartCamConf", "lblCamLeave"};
    const auto measure = [&](const char* name)
    { return forms::MeasureText(layout.Form.Get(name).Caption, size, 1) + 1; };
    const std::int32_t blank = size / 3;
    std::int32_t x = (layout.Client.Width - measure(pieces[0]) - blank - measure(pieces[1]) - measure(pieces[2])) / 2;
    for (const char* piece : pieces)
    {
        layout.Place(piece, {x, card.Y, measure(piece), line}, size);
        x += measure(piece) + (piece == pieces[0] ? blank : 0);
    }
    card.Y += line;
    layout.Place("lblCamWait", {card.Left, card.Y, card.Width, below}, size, Align::Centre);
    card.Y += below;
    card.OK("cWebcamOK");
}
}

void LayoutOptions(Layout& layout)
{
    Options(layout);
    GameOptions(layout);
    VideoOptions(layout);
    AudioOptions(layout);
    WebcamOptions(layout);
}
}
