// How a setting that has passed its checks takes effect.
#include "shell/Form1.h"
#include "shell/HudElements.h"

namespace shell
{
void Form1::ApplyLaps(std::int16_t laps)
{
    TheGame.Race.Laps = laps;
}

void Form1::ApplyFrameRate(std::int16_t fps)
{
    TheGame.Settings.TargetFps = fps;
    TheGame.Timers.RenderT.interval = 1000 / fps;
}

void Form1::ApplyResolution(std::int32_t width, std::int32_t height)
{
    Mod3D::Screen& screen = TheGame.Screen;
    if (width == screen.ScreenW && height == screen.ScreenH)
        return;
    Mod3D::ApplyResolution(*TheWindow, screen, TheGame.Camera, width, height);
    PlaceHud(TheGame.Scene, TheGame.Hud, width, height);
    // The view behind the menu shows the new size.
    if (TheGame.Race.GameTime > 0)
        ShowFrame();
}

void Form1::ApplyFullScreen(bool on)
{
    TheGame.Settings.FullScreen = base::ToFlag(on);
    TheWindow->SetFullScreen(on);
    if (!on)
        TheWindow->SetClientSize({TheGame.Screen.ScreenW, TheGame.Screen.ScreenH});
    Form_Resize();
}
}
