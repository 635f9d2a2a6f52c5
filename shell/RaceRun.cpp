// SPDX-License-Identifier: Zlib
#include "shell/RaceRun.h"

#include "render/Primitives.h"
#include "render/RenderFrame.h"
#include "shell/Hud.h"
#include "shell/HudElements.h"
#include "shell/Views.h"
#include "world/Tick.h"

namespace shell
{
namespace
{
void SetLabelVisible(render::Scene& scene, std::int16_t label, bool visible)
{
    if (scene.Labels.Has(label))
        scene.Labels.At(label).Visible = visible ? 1 : 0;
}

void SetPicVisible(render::Scene& scene, std::int16_t pic, bool visible)
{
    if (scene.Pics.Has(pic))
        scene.Pics.At(pic).Visible = visible ? 1 : 0;
}
}

void RaceRun::StartProcess()
{
    base::Trapped(Window, "StartProcess", [this] { Start(); });
}

void RaceRun::Start()
{
    if (RaceShows(TheGame))
        return;
    Timers& timers = TheGame.Timers;
    const std::uint32_t now = Platform.TickCount();
    timers.tmrLogo.Disable(now);
    const bool filmed = TheGame.Settings.WebcamOn != base::False && Feed.OpenWebcam();
    SetPicVisible(TheGame.Scene, TheGame.Hud.Webcam, filmed);
    Window.ShowCursor(false);
    timers.GameT.Enable(now);
    SetLabelVisible(TheGame.Scene, TheGame.Hud.Pause, false); // the race runs, paused before or not
    TheGame.Run.FpsLastTime = TheGame.Run.FpsNextTime = now;
    timers.RenderT.Ticks = 0;
    timers.RenderT.Enable(now);
    TheSound.StartEngine();
}

void RaceRun::StopProcess()
{
    base::Trapped(Window, "StopProcess", [this] { Stop(); });
}

void RaceRun::Stop()
{
    if (!RaceShows(TheGame))
        return;
    const std::uint32_t now = Platform.TickCount();
    TheGame.Timers.GameT.Disable(now);
    TheGame.Timers.RenderT.Disable(now);
    Window.ShowCursor(true);
    TheSound.StopEngine();
    if (TheGame.Settings.WebcamOn != base::False)
        Feed.CloseWebcam();
}

void RaceRun::TogglePause()
{
    TickTimer& game = TheGame.Timers.GameT;
    const std::uint32_t now = Platform.TickCount();
    const bool pauses = game.Enabled != base::False;
    if (pauses)
        game.Disable(now);
    else
        game.Enable(now);
    SetLabelVisible(TheGame.Scene, TheGame.Hud.Pause, pauses);
}

// The message is shown, the lap read-outs vanish.
void RaceRun::Finished(const std::string& message)
{
    render::Scene& scene = TheGame.Scene;
    const Hud& hud = TheGame.Hud;
    if (scene.Labels.Has(hud.Message))
        render::SetLabelText(scene, hud.Message, message);
    SetLabelVisible(scene, hud.Message, true);
    SetLabelVisible(scene, hud.LapsCaption, false);
    SetLabelVisible(scene, hud.LapCounter, false);
}

world::Simulation RaceRun::MakeSimulation()
{
    Game& game = TheGame;
    return {game.Scene,
            game.Race,
            game.Camera,
            game.Keys,
            game.Assets,
            game.Random,
            game.Scratch,
            game.Settings.EffQuality,
            game.Settings.WebcamOn != base::False,
            game.Run.Shake,
            game.Run.InBox};
}

void RaceRun::GameT_Tick(base::PhaseClock* clock)
{
    TheGame.Timers.Advance(Platform.TickCount());
    TheGame.Timers.GameT.Tick();
    TheGame.Race.GameTime = TheGame.Timers.GameT.Elapsed;
    TheSound.SetEngineSound(); // of the speed that the car has between two steps
    world::Simulation simulation = MakeSimulation();
    simulation.Clock = clock;
    world::GameTick(simulation, *this);
    SetPicVisible(TheGame.Scene, TheGame.Hud.Repair, TheGame.Run.InBox);
    base::EnterPhase(clock, "camera");
    PlaceCamera();
    base::LeavePhase(clock);
}

// Every 500 ms: the frames that were really drawn since the last measurement.
void RaceRun::MeasureFrameRate(std::uint32_t now)
{
    RunState& run = TheGame.Run;
    // Signed differences stay right where the clock wraps.
    if (static_cast<std::int32_t>(now - run.FpsNextTime) < 0)
        return;
    TickTimer& timer = TheGame.Timers.RenderT;
    const std::uint32_t passed = now - run.FpsLastTime;
    if (passed != 0)
        run.Fps = static_cast<std::int32_t>(static_cast<std::int64_t>(timer.Ticks) * 1000 / passed);
    timer.Ticks = 0;
    run.FpsLastTime = now;
    base::Attempted([this] { ShowFrameRate(TheGame); });
    run.FpsNextTime = now + 500;
}

// Deliberate: a statement of this tick that fails is passed over without a word, so that one bad read-out never stops
// the picture.
void RaceRun::RenderT_Tick()
{
    TheGame.Timers.Advance(Platform.TickCount());
    TheGame.Timers.RenderT.Tick();
    MeasureFrameRate(Platform.TickCount());
    if (TheGame.Settings.WebcamOn != base::False)
        base::Attempted([this] { Feed.ShowInset(); });
    for (void (*const show)(Game&) : {ShowSpeed, ShowGear, ShowPlace})
        base::Attempted([&] { show(TheGame); });
    if (TheGame.Race.RaceOver == base::False)
        for (void (*const show)(Game&) : {ShowLap, PlaceLapsCaption})
            base::Attempted([&] { show(TheGame); });
    for (void (*const show)(Game&) : {ShowCountdown, ShowDamage, ShowDebug, FadeNotice})
        base::Attempted([&] { show(TheGame); });
    base::Attempted([this] { ShowFrame(); });
}

void RaceRun::Draw(base::PhaseClock* clock)
{
    render::RenderFrame(TheGame.Scene, TheGame.Camera, TheGame.Screen, TheGame.GroundThreads, clock);
}

void RaceRun::ShowFrame(base::PhaseClock* clock)
{
    Draw(clock);
    base::EnterPhase(clock, "present");
    if (View.IsAnyControlShown())
        View.Repaint();
    else if (!TheGame.Screen.Frame.Empty())
        Window.Present(render::FrameSurface(TheGame.Screen));
    base::LeavePhase(clock);
}

void RaceRun::PlaceCamera()
{
    PlaceView(TheGame.Camera, TheGame.Scene, TheGame.Race, TheGame.Keys, TheGame.Assets.ArrowObj);
}

void RaceRun::ApplyResolution(std::int32_t width, std::int32_t height)
{
    render::Screen& screen = TheGame.Screen;
    if (width == screen.ScreenW && height == screen.ScreenH)
        return;
    render::ApplyResolution(Window, screen, TheGame.Camera, width, height);
    PlaceHud(TheGame.Scene, TheGame.Hud, width, height);
    if (TheGame.Race.GameTime > 0)
        ShowFrame(); // the view behind the menu has the new size
}
}
