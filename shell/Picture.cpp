// What the window shows besides the race: the menu or a panel over the frame or the menu's background.
#include "shell/Design.h"
#include "shell/Form1.h"

#include <algorithm>

namespace shell
{
namespace
{
constexpr base::Rgb Night = {10, 12, 20};
}

void Form1::Form_Resize()
{
    const platform::Size client = TheForm.Client = TheWindow->ClientSize();
    LayoutControls(TheForm, client);
    const forms::Rect logo = TheForm.Get("imgLogo").Place;
    TheMenuPictures.ScaleTo({logo.W, logo.H}, client);
    Repaint();
}

void Form1::LayoutPanels()
{
    shell::LayoutPanels(TheForm, TheWindow->ClientSize());
}

void Form1::Show()
{
    IsVisible = true;
    TheWindow->Show(true);
    tmrLogo.Enable(ThePlatform.TickCount());
    Repaint();
}

void Form1::Resized()
{
    if (!HasEnded)
        Form_Resize();
}

void Form1::Paint()
{
    if (!HasEnded)
        Repaint();
}

bool Form1::IsAnyControlShown() const
{
    return std::any_of(TheForm.Controls.begin(), TheForm.Controls.end(),
                       [](const forms::Control& control)
                       { return control.Parent < 0 && control.Visible != base::False; });
}

// Before the race there is no frame to see; afterwards the suspended race shows behind everything.
void Form1::PaintBackground()
{
    const render::Screen& screen = TheGame.Screen;
    if (TheGame.Race.GameTime > 0 && !screen.Frame.Empty())
        return forms::Stretch(TheCanvas, {0, 0, TheCanvas.Width, TheCanvas.Height},
                              {screen.Frame.Bytes.data(), screen.Frame.RowBytes, screen.ScreenW, screen.ScreenH});
    const forms::Image& background = TheMenuPictures.Background;
    if (background.Width > 0)
        return forms::Draw(TheCanvas, background, (TheCanvas.Width - background.Width) / 2,
                           (TheCanvas.Height - background.Height) / 2);
    const forms::Rect all = {0, 0, TheCanvas.Width, TheCanvas.Height};
    forms::FillDownward(TheCanvas, all, {38, 30, 62}, 255, {196, 92, 40}, 255);
}

void Form1::Repaint()
{
    PaintDue = false;
    if (!IsVisible || HasEnded)
        return;
    const render::Screen& screen = TheGame.Screen;
    if (!IsAnyControlShown())
    {
        if (!screen.Frame.Empty())
            TheWindow->Present(screen.ScreenW, screen.ScreenH, screen.Frame.Bytes);
        return;
    }
    const platform::Size client = TheWindow->ClientSize();
    TheCanvas.Resize(client.Width, client.Height);
    PaintBackground();
    TheInteraction.Settle();
    PaintDue = false; // what has just settled is painted now
    forms::PaintForm(TheCanvas, TheForm, TheInteraction.Shown(), *this);
    TheWindow->Present(TheCanvas.Width, TheCanvas.Height, TheCanvas.Bytes);
}

void Form1::PaintPicture(forms::Canvas& canvas, const forms::Control& control, forms::Rect place)
{
    if (control.Name == "imgLogoBG")
    {
        // A shade in which title and entries can be read.
        const bool suspended = TheGame.Race.GameTime > 0;
        forms::FillDownward(canvas, place, Night, suspended ? 110 : 20, Night, suspended ? 190 : 150);
        return;
    }
    if (control.Name == "imgLogo")
        PaintLogo(canvas, place);
    else if (control.Name == "picWebcam")
        PaintPreview(canvas, place);
    else if (control.Name == "picMusVol" || control.Name == "picEffVol")
        // The music's level is fixed.
        forms::DrawLevel(canvas, place, control.Value / 100.0, control.Name == "picEffVol");
}

void Form1::PaintLogo(forms::Canvas& canvas, const forms::Rect& place) const
{
    const forms::Image& logo = TheMenuPictures.Logo;
    if (logo.Width > 0)
        forms::Draw(canvas, logo, place.X + (place.W - logo.Width) / 2, place.Y + (place.H - logo.Height) / 2);
    else
        forms::DrawText(canvas, place, "VELKAR", place.H * 0.8, 1.6, {255, 158, 54}, forms::Align::Centre);
}
}
