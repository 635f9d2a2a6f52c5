// SPDX-License-Identifier: Zlib
// shell/panels/Webcam.h: the panel of the webcam: its preview, and the calibration that learns the empty scene.
#pragma once
#include "render/PicArray.h"
#include "shell/Game.h"
#include "shell/panels/Panel.h"
#include "webcam/Calibration.h"

namespace panels
{
class Webcam final : public Panel
{
public:
    struct Verbs
    {
        std::function<bool()> Open; // false: it could not be opened, and that has been said
        std::function<void()> Close;
        std::function<bool()> TakeFrame; // a new one has come
        std::function<std::uint32_t()> TickCount;
    };
    // backdrop: what is shown behind the player once the background is known.
    Webcam(Board& board, webcam::Webcam& webcam, shell::TickTimer& captureT, const render::Picture& backdrop,
           Verbs verbs);
    void Place(platform::Size client) override;

    void Open(); // and begins to film
    // A new frame is looked at, shown, and takes the calibration on.
    void CaptureT_Tick();

    void cStartCamConf_Click(); // the player asks for the calibration
    void cWebcamOK_Click();

private:
    void ShowCalibration();
    void PaintPreview(forms::Canvas& canvas, const forms::Rect& place) const;

    webcam::Webcam& TheWebcam;
    shell::TickTimer& CaptureT;
    const render::Picture& Backdrop;
    Verbs Ask;
    std::int16_t lblWebcam, picWebcam, lblCamState, lblCamClick, cStartCamConf, lblCamLeave, lblCamWait, cWebcamOK;
};
}
