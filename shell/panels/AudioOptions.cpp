// SPDX-License-Identifier: Zlib
#include "shell/panels/AudioOptions.h"

#include "base/Numbers.h"
#include "shell/forms/PaintForm.h"

#include <algorithm>

namespace panels
{
namespace
{
constexpr double FactorOfVolume = 25;
constexpr double LeastVolume = 20, MostVolume = 100; // per cent
}

AudioOptions::AudioOptions(Board& board, shell::AudioSettings& settings, std::function<void(bool on)> setMusic)
    : Panel(board, "panelAudOpt"), Settings(settings), SetMusic(std::move(setMusic)),
      lblAudOpt(Heading("lblAudOpt", "Opzioni audio")), chkMusic(Check("chkMusic", "Musica", true)),
      lblMusVol(Label("lblMusVol", "Volume musica:")), picMusVol(Picture("picMusVol")),
      lblEffVol(Label("lblEffVol", "Volume effetti:")), picEffVol(Picture("picEffVol")), cAudOptOK(OK("cAudOptOK"))
{
    On.Does.OnPoint(picEffVol, [this](std::int32_t x, std::int32_t width) { picEffVol_MouseMove(x, width); });
    On.Does.OnClick(cAudOptOK, [this] { cAudOptOK_Click(); });
    for (const std::int16_t picture : {picMusVol, picEffVol})
        On.Does.OnPaint(picture, [this, picture](forms::Canvas& canvas, const forms::Rect& place)
                        { forms::DrawLevel(canvas, place, At(picture).Value / 100.0, picture == picEffVol); });
}

void AudioOptions::Place(platform::Size client)
{
    constexpr std::int32_t lines = 3;
    Layout layout(On.Form, client);
    Card card(layout, 26, lines * (layout.Row + layout.Gap / 2));
    card.Heading(lblAudOpt);
    card.Check(chkMusic);
    card.Field(lblMusVol, picMusVol);
    card.Field(lblEffVol, picEffVol);
    card.OK(cAudOptOK);
}

void AudioOptions::Open()
{
    // Deliberate: the volume is taken as a share also where it is a percentage; the bar is full then.
    DrawLevelBar(picEffVol, Settings.EffectsVolume);
    DrawLevelBar(picMusVol, 1);
    Show();
}

void AudioOptions::picEffVol_MouseMove(std::int32_t x, std::int32_t width)
{
    if (width <= 0)
        return;
    float& volume = Settings.EffectsVolume;
    volume = static_cast<float>(std::clamp(static_cast<double>(x) / width * 100, LeastVolume, MostVolume));
    DrawLevelBar(picEffVol, volume / 100);
}

void AudioOptions::DrawLevelBar(std::int16_t picture, float share)
{
    const float shown = share > 0 ? std::min(share, 1.0f) : 0.0f; // no number counts as nothing
    At(picture).Value = base::ToInt16(shown * 100);
}

void AudioOptions::cAudOptOK_Click()
{
    base::Trapped(On.Messages, "cAudOptOK_Click", [this] { TakeAll(); });
}

void AudioOptions::TakeAll()
{
    SetMusic(At(chkMusic).Value != 0);
    Settings.EffectsFactor = base::ToInt16(Settings.EffectsVolume * FactorOfVolume);
    Hide();
}
}
