// SPDX-License-Identifier: Zlib
// shell/panels/VideoOptions.h: the panel of the video options: frame rate, resolution, texture filter, quality of the
// effects, full screen, webcam. The OK checks what was typed in a fixed order; the first text that is wrong is named in
// a message and stays in its box, and what was right before it is in force already.
#pragma once
#include "render/Screen.h"
#include "shell/Game.h"
#include "shell/panels/Panel.h"

#include <string>

namespace panels
{
class VideoOptions final : public Panel
{
public:
    struct Verbs
    {
        std::function<void(std::int32_t width, std::int32_t height)> ApplyResolution;
        std::function<void(bool on)> ApplyFullScreen;
        std::function<void()> ConfigureWebcam;
    };
    // Writes TargetFps, EffQuality and WebcamOn of the settings, TxtFilter of the screen, the interval of renderT.
    VideoOptions(Board& board, shell::Settings& settings, render::Screen& screen, shell::TickTimer& renderT,
                 Verbs verbs);
    void Place(platform::Size client) override;

    // Shows the panel with the present filter and quality.
    void Open();
    // How many webcams there are decides whether one can be ticked.
    void OfferWebcam(std::int32_t devices);
    // The text of the box, as if typed; it takes effect with the OK.
    void TypeFrameRate(std::int32_t fps);

    void lblTxtFilter_Click(); // the next filter, at once
    void lblEffQ_Click();      // the next quality, at once
    void cCamConfig_Click();   // where the webcam is ticked
    void cVidOptOK_Click();

private:
    void TakeAll();
    bool TakeFrameRate(); // false: refused
    bool TakeResolution();

    shell::Settings& Settings;
    render::Screen& Screen;
    shell::TickTimer& RenderT;
    Verbs Ask;
    std::int16_t lblVidOpt, lblFreq, txtFreq, lblRes, txtRes, lblFilter, lblTxtFilter, lblEffects, lblEffQ;
    std::int16_t chkFS, chkWebcam, cCamConfig, cVidOptOK;
};

// The names under which the panel shows its cycling settings.
std::string FilterName(std::int16_t txtFilter); // 0 to 2; any other: empty
std::string QualityName(float effQuality);      // each bound belongs to the lower name; above 1: empty

// What a click makes of them.
std::int16_t NextFilter(std::int16_t txtFilter);
float NextQuality(float effQuality); // above 1: unchanged
}
