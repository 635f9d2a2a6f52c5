// The frame tick: the read-outs of the display, then one frame.
#include "render/RenderFrame.h"
#include "shell/Form1.h"
#include "shell/Hud.h"
#include "shell/Views.h"

namespace shell
{
namespace
{
// Deliberate: a statement of this tick that fails is passed over without a word, so that one bad read-out never stops
// the picture.
template <class Body> void CarryOn(Body&& body)
{
    try
    {
        body();
    }
    catch (...) // NOLINT(bugprone-empty-catch)
    {
    }
}
}

// Every 500 ms: the frames that were really drawn since the last measurement.
void Form1::MeasureFrameRate(std::uint32_t now)
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
    CarryOn([this] { ShowFrameRate(TheGame); });
    run.FpsNextTime = now + 500;
}

void Form1::RenderT_Tick()
{
    AdvanceTimers();
    TheGame.Timers.RenderT.Tick();
    MeasureFrameRate(ThePlatform.TickCount());
    if (TheGame.Settings.WebcamOn != base::False)
        CarryOn([this] { ShowInset(); });
    CarryOn([this] { ShowSpeed(TheGame); });
    CarryOn([this] { ShowGear(TheGame); });
    CarryOn([this] { ShowPlace(TheGame); });
    if (TheGame.Race.RaceOver == base::False)
    {
        CarryOn([this] { ShowLap(TheGame); });
        CarryOn([this] { PlaceLapsCaption(TheGame); });
    }
    CarryOn([this] { ShowCountdown(TheGame); });
    CarryOn([this] { ShowDamage(TheGame); });
    CarryOn([this] { ShowDebug(TheGame); });
    CarryOn([this] { FadeNotice(TheGame); });
    CarryOn([this] { ShowFrame(); });
}

void Form1::Draw()
{
    render::RenderFrame(TheGame.Scene, TheGame.Camera, TheGame.Screen, TheGame.GroundThreads);
}

// Draws a frame and shows it: as it is while nothing covers it, else with the controls over it.
void Form1::ShowFrame()
{
    Draw();
    const render::Screen& screen = TheGame.Screen;
    if (IsAnyControlShown())
        Repaint();
    else if (!screen.Frame.Empty())
        TheWindow->Present(screen.ScreenW, screen.ScreenH, screen.Frame.Bytes);
}

void Form1::PlaceCamera()
{
    PlaceView(TheGame.Camera, TheGame.Scene, TheGame.Race, TheGame.Keys, TheGame.Assets.ArrowObj);
}
}
