// SPDX-License-Identifier: Zlib
#include "shell/Application.h"

#include "base/Numbers.h"
#include "shell/forms/Style.h"
#include "shell/panels/MenuPictures.h"
#include "shell/TickTimer.h"

#include <algorithm>

namespace shell
{
// frmLogo: shown while Form1 loads, and for a second at least.
class Application::Splash final : public platform::WindowEvents
{
public:
    explicit Splash(platform::Platform& platform) : TheWindow(platform.MakeWindow(*this, {600, 312}))
    {
        Picture = panels::LoadOptionalPicture(*TheWindow, platform.DataFiles(), "data\\images\\splash.bmp");
        if (Picture.Info.Width > 0)
            TheWindow->SetClientSize(
                {std::min(Picture.Info.Width, MostWidth), std::min(Picture.Info.Height, MostHeight)});
        TheWindow->SetTitle(base::DefaultTitle);
        Timer1.interval = 1000;
    }

    void Show(std::uint32_t now)
    {
        TheWindow->Show(true);
        Paint();
        Timer1.Enable(now);
    }
    void Hide() { TheWindow->Show(false); }

    void Resized() override { Paint(); }
    void Paint() override;
    bool CloseAsked() override { return false; } // it closes itself

    TickTimer Timer1;

private:
    static constexpr std::int32_t MostWidth = 1200, MostHeight = 900;
    std::unique_ptr<platform::Window> TheWindow;
    render::Picture Picture;
    forms::Canvas Canvas;
};

void Application::Splash::Paint()
{
    const platform::Size client = TheWindow->ClientSize();
    Canvas.Resize(client.Width, client.Height);
    const forms::Rect all = {0, 0, Canvas.Width, Canvas.Height};
    if (Picture.Info.Width > 0)
        forms::Stretch(Canvas, all, render::MakeSurface(Picture));
    else
    {
        forms::FillDownward(Canvas, all, {14, 16, 26}, 255, {58, 30, 26}, 255);
        forms::DrawText(Canvas, all, "VELKAR", Canvas.Height * 0.3, 1.6, forms::Accent, forms::Align::Centre);
    }
    TheWindow->Present(Canvas.View());
}

Application::Application(platform::Platform& platform) : ThePlatform(platform) {}
Application::~Application() = default;

void Application::Start(std::vector<double> draws)
{
    if (!ThePlatform.IsFirstInstance())
    {
        IsSecondInstance = true;
        return;
    }
    TheSplash = std::make_unique<Splash>(ThePlatform);
    TheSplash->Show(ThePlatform.TickCount());
    ThePlatform.PumpEvents();
    TheForm1 = std::make_unique<Form1>(ThePlatform);
    TheForm1->State().Random.Script = std::move(draws);
    TheForm1->Form_Load();
}

std::uint32_t Application::NextTimer()
{
    std::uint32_t next = TheForm1 ? TheForm1->NextTimer() : std::numeric_limits<std::uint32_t>::max();
    if (TheSplash)
    {
        TheSplash->Timer1.Advance(ThePlatform.TickCount());
        next = std::min(next, TheSplash->Timer1.UntilDue());
    }
    return next;
}

void Application::RunTimers()
{
    if (Ended() || !TheForm1)
        return;
    if (TheSplash)
    {
        TheSplash->Timer1.Advance(ThePlatform.TickCount());
        if (TheSplash->Timer1.IsDue())
        {
            TheSplash->Hide();
            TheForm1->Show();
            TheSplash.reset();
        }
    }
    TheForm1->RunTimers();
}

bool Application::Ended()
{
    return IsSecondInstance || (TheForm1 && TheForm1->Ended());
}
}
