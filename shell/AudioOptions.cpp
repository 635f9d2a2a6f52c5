// The audio options: music on and off, and how loud the engine is.
#include "base/Numbers.h"
#include "shell/Form1.h"

#include <algorithm>

namespace shell
{
namespace
{
constexpr double FactorOfVolume = 25;
constexpr double LeastVolume = 20, MostVolume = 100; // per cent
}

void Form1::cAudOpt_Click(std::int16_t)
{
    // Deliberate: the volume is taken as a share also where it is a percentage; the bar is full then.
    DrawLevelBar("picEffVol", TheGame.Audio.EffectsVolume);
    DrawLevelBar("picMusVol", 1);
    ShowPanel("panelAudOpt", true);
}

void Form1::picEffVol_MouseMove(std::int32_t x, std::int32_t width)
{
    if (width <= 0)
        return;
    float& volume = TheGame.Audio.EffectsVolume;
    volume = static_cast<float>(std::clamp(static_cast<double>(x) / width * 100, LeastVolume, MostVolume));
    DrawLevelBar("picEffVol", volume / 100);
}

void Form1::DrawLevelBar(std::string_view name, float share)
{
    const float shown = share > 0 ? std::min(share, 1.0f) : 0.0f; // no number counts as nothing
    TheForm.Get(name).Value = base::ToInt16(shown * 100);
}

void Form1::cAudOptOK_Click(std::int16_t)
{
    base::Trapped(*TheWindow, "cAudOptOK_Click",
                  [this]
                  {
                      SetMusic(TheForm.Get("chkMusic").Value != 0);
                      AudioSettings& audio = TheGame.Audio;
                      audio.EffectsFactor = base::ToInt16(audio.EffectsVolume * FactorOfVolume);
                      ShowPanel("panelAudOpt", false);
                  });
}

void Form1::SetMusic(bool on)
{
    audio::Soundtrack& soundtrack = TheGame.Soundtrack;
    if (on == (soundtrack.MusicOn != base::False))
        return;
    if (on)
    {
        // Deliberate: skips to the next track, so the first one is that after the random start.
        SetMediaCommand("");
        soundtrack.Unplayable = 0;
        MMC_Done(platform::MediaSuccessful);
    }
    else
        SetMediaCommand("close");
    soundtrack.MusicOn = base::ToFlag(on);
}
}
