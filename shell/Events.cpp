// What the window tells: in a race keys drive, elsewhere they go to the controls; the mouse goes to the controls and
// drags the window by everything that does not react. The rebinding box takes the next key, whichever it is.
#include "shell/Form1.h"

namespace shell
{
namespace
{
constexpr int LeftButton = 1;
}

void Form1::KeyDown(std::int16_t code)
{
    if (HasEnded)
        return;
    // Not the key that is still down from the click on the binding.
    if (RecordsKey() && !TheInteraction.Holds(code))
    {
        TheInteraction.Hold(code); // its repeats are not meant for what comes next
        txtRecKey_KeyDown(code);
        Repaint();
    }
    else if (TheGame.Timers.RenderT.Enabled != base::False)
        Form_KeyDown(code);
    else
        TheInteraction.KeyDown(code);
    RepaintIfDue();
}

void Form1::KeyUp(std::int16_t code)
{
    if (HasEnded)
        return;
    TheInteraction.KeyUp(code);
    Form_KeyUp(code);
}

void Form1::KeyPress(std::uint8_t code)
{
    if (HasEnded)
        return;
    if (TheGame.Timers.RenderT.Enabled != base::False)
        Form_KeyPress(code);
    else
        TheInteraction.Character(code);
    RepaintIfDue();
}

void Form1::MouseDown(int button, platform::Point at)
{
    if (HasEnded || button != LeftButton)
        return;
    if (!TheInteraction.MouseDown(at, ThePlatform.TickCount()))
        DragStart(TheDrag, *TheWindow, TheGame.Settings.FullScreen != base::False);
    RepaintIfDue();
}

void Form1::MouseMove(int buttons, platform::Point at)
{
    if (HasEnded)
        return;
    const bool leftHeld = (buttons & LeftButton) != 0;
    if (leftHeld && TheDrag.Active)
        return DragMove(TheDrag, *TheWindow);
    TheInteraction.MouseMove(leftHeld, at);
    RepaintIfDue();
}

void Form1::MouseUp(int button, platform::Point at)
{
    if (HasEnded || button != LeftButton)
        return;
    TheDrag.Active = false;
    TheInteraction.MouseUp(at);
    RepaintIfDue();
}

void Form1::RepaintIfDue()
{
    if (PaintDue)
        Repaint();
}

bool Form1::HasClick(const forms::Control& control) const
{
    return FindHandler(control.Name) != nullptr;
}

bool Form1::HasPointer(const forms::Control& picture) const
{
    return FindPictureHandler(picture.Name) != nullptr;
}

void Form1::Clicked(const forms::Control& control)
{
    Click(control.Name, control.Index);
}

void Form1::PointedAt(const forms::Control& picture, std::int32_t x)
{
    PointAt(picture.Name, x);
}

// Something else was pressed: the rebinding box gives up.
void Form1::LostFocus(const forms::Control& control)
{
    if (control.Name == "txtRecKey")
        txtRecKey_LostFocus();
}

bool Form1::CloseAsked()
{
    return HasEnded || Form_Unload();
}
}
