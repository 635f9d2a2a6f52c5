// SPDX-License-Identifier: Zlib
// shell/panels/AudioOptions.h: the panel of the audio options: music on and off, and how loud the engine is. The level
// of the music is shown and fixed.
#pragma once
#include "shell/Game.h"
#include "shell/panels/Panel.h"

namespace panels
{
class AudioOptions final : public Panel
{
public:
    // setMusic: called by the OK with whether music is wanted.
    AudioOptions(Board& board, shell::AudioSettings& settings, std::function<void(bool on)> setMusic);
    void Place(platform::Size client) override;

    void Open(); // with the present levels

    // The left button is held x pixels from the slider's left edge, of so many pixels' width: 20 to 100 per cent.
    void picEffVol_MouseMove(std::int32_t x, std::int32_t width);
    void cAudOptOK_Click();

private:
    void TakeAll();
    void DrawLevelBar(std::int16_t picture, float share); // 0 to 1, beyond it the nearer one

    shell::AudioSettings& Settings;
    std::function<void(bool on)> SetMusic;
    std::int16_t lblAudOpt, chkMusic, lblMusVol, picMusVol, lblEffVol, picEffVol, cAudOptOK;
};
}
