// The race run: started, suspended and resumed from the menu; the timers that carry it.
#include "render/Primitives.h"
#include "shell/Form1.h"

#include <algorithm>

namespace shell
{
namespace
{
void SetLabelVisible(render::Scene& scene, std::int16_t label, bool visible)
{
    if (scene.Labels.Has(label))
        scene.Labels.At(label).Visible = visible ? 1 : 0;
}
}

void Form1::StartProcess()
{
    base::Trapped(*TheWindow, "StartProcess",
                  [this]
                  {
                      Timers& timers = TheGame.Timers;
                      RunState& run = TheGame.Run;
                      render::Scene& scene = TheGame.Scene;
                      if (timers.RenderT.Enabled != base::False)
                          return;
                      const std::uint32_t now = ThePlatform.TickCount();
                      tmrLogo.Disable(now);
                      const bool filmed = TheGame.Settings.WebcamOn != base::False && OpenWebcam();
                      if (scene.Pics.Has(TheGame.Hud.Webcam))
                          scene.Pics.At(TheGame.Hud.Webcam).Visible = filmed ? 1 : 0;
                      TheWindow->ShowCursor(false);
                      timers.GameT.Enable(now);
                      SetLabelVisible(scene, TheGame.Hud.Pause, false); // the race runs, paused before or not
                      run.StartTick = now;
                      run.FpsLastTime = run.FpsNextTime = now;
                      timers.RenderT.Ticks = 0;
                      timers.RenderT.Enable(now);
                      if (run.AudioReady == base::True)
                      {
                          audio::Stream stream = MakeStream();
                          audio::StartStream(stream);
                      }
                  });
}

void Form1::StopProcess()
{
    base::Trapped(*TheWindow, "StopProcess",
                  [this]
                  {
                      Timers& timers = TheGame.Timers;
                      if (timers.RenderT.Enabled == base::False)
                          return;
                      const std::uint32_t now = ThePlatform.TickCount();
                      timers.GameT.Disable(now);
                      timers.RenderT.Disable(now);
                      TheWindow->ShowCursor(true);
                      if (TheGame.Run.AudioReady == base::True)
                      {
                          audio::Stream stream = MakeStream();
                          audio::StopStream(stream);
                      }
                      if (TheGame.Settings.WebcamOn != base::False)
                          CloseWebcam();
                  });
}

void Form1::TogglePause()
{
    TickTimer& game = TheGame.Timers.GameT;
    const std::uint32_t now = ThePlatform.TickCount();
    const bool pauses = game.Enabled != base::False;
    if (pauses)
        game.Disable(now);
    else
        game.Enable(now);
    SetLabelVisible(TheGame.Scene, TheGame.Hud.Pause, pauses);
}

// The user's car has finished: the message is shown, the lap read-outs vanish.
void Form1::Finished(const std::string& message)
{
    render::Scene& scene = TheGame.Scene;
    const Hud& hud = TheGame.Hud;
    if (scene.Labels.Has(hud.Message))
        render::SetLabelText(scene, hud.Message, message);
    SetLabelVisible(scene, hud.Message, true);
    SetLabelVisible(scene, hud.LapsCaption, false);
    SetLabelVisible(scene, hud.LapCounter, false);
}

void Form1::AdvanceTimers()
{
    const std::uint32_t now = ThePlatform.TickCount();
    for (TickTimer* timer : {&TheGame.Timers.GameT, &TheGame.Timers.RenderT, &TheGame.Timers.CaptureT, &tmrLogo})
        timer->Advance(now);
}

void Form1::RunTimers()
{
    AdvanceTimers();
    if (!HasEnded && TheGame.Timers.GameT.IsDue())
        GameT_Tick();
    if (!HasEnded && TheGame.Timers.RenderT.IsDue())
        RenderT_Tick();
    if (!HasEnded && TheGame.Timers.CaptureT.IsDue())
        CaptureT_Tick();
    if (!HasEnded && tmrLogo.IsDue())
    {
        tmrLogo.Tick();
        tmrLogo_Timer();
    }
}

std::uint32_t Form1::NextTimer()
{
    AdvanceTimers();
    return std::min({TheGame.Timers.GameT.UntilDue(), TheGame.Timers.RenderT.UntilDue(),
                     TheGame.Timers.CaptureT.UntilDue(), tmrLogo.UntilDue()});
}
}
