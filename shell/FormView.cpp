// SPDX-License-Identifier: Zlib
#include "shell/FormView.h"

#include <algorithm>

namespace shell
{
bool FormView::Click(forms::Control* control)
{
    if (TheGame.Run.Ended || control == nullptr || !HasClick(*control))
        return false;
    BeforeClick();
    Input.Release();
    Actions.ClickOf(Form.IndexOf(*control))();
    Repaint();
    return true;
}

bool FormView::PointAt(forms::Control* picture, std::int32_t x)
{
    if (TheGame.Run.Ended || picture == nullptr || !HasPointer(*picture))
        return false;
    Actions.PointOf(Form.IndexOf(*picture))(x, picture->Place.W);
    Repaint();
    return true;
}

bool FormView::HasClick(const forms::Control& control) const
{
    return Actions.ClickOf(Form.IndexOf(control)) != nullptr;
}

bool FormView::HasPointer(const forms::Control& picture) const
{
    return Actions.PointOf(Form.IndexOf(picture)) != nullptr;
}

void FormView::Clicked(const forms::Control& control)
{
    Click(&Form.Controls[static_cast<std::size_t>(Form.IndexOf(control))]);
}

void FormView::PointedAt(const forms::Control& picture, std::int32_t x)
{
    PointAt(&Form.Controls[static_cast<std::size_t>(Form.IndexOf(picture))], x);
}

void FormView::Appear()
{
    IsVisible = true;
    Window.Show(true);
}

bool FormView::IsAnyControlShown() const
{
    return std::any_of(Form.Controls.begin(), Form.Controls.end(),
                       [](const forms::Control& control)
                       { return control.Parent < 0 && control.Visible != base::False; });
}

// Before the race there is no frame to see; afterwards the suspended race shows behind everything.
void FormView::PaintBackground()
{
    const render::Screen& screen = TheGame.Screen;
    if (TheGame.Race.GameTime > 0 && !screen.Frame.Empty())
        forms::Stretch(Canvas, {0, 0, Canvas.Width, Canvas.Height}, render::FrameSurface(screen));
    else
        PaintMenuBackground(Canvas);
}

void FormView::RepaintIfDue()
{
    if (PaintDue)
        Repaint();
}

void FormView::Repaint()
{
    PaintDue = false;
    if (!IsVisible || TheGame.Run.Ended)
        return;
    const render::Screen& screen = TheGame.Screen;
    if (!IsAnyControlShown())
    {
        if (!screen.Frame.Empty())
            Window.Present(render::FrameSurface(screen));
        return;
    }
    const platform::Size client = Window.ClientSize();
    Canvas.Resize(client.Width, client.Height);
    PaintBackground();
    Input.Settle();
    PaintDue = false; // what has just settled is painted now
    forms::PaintForm(Canvas, Form, Input.Shown(), *this);
    Window.Present(Canvas.View());
}

void FormView::PaintPicture(forms::Canvas& canvas, const forms::Control& control, forms::Rect place)
{
    if (const panels::Actions::Paint& paint = Actions.PaintOf(Form.IndexOf(control)))
        paint(canvas, place);
}
}
