// What the window tells: keys go to the control with the focus, the mouse clicks what can be clicked and drags the
// window by everything else.
#include "shell/Form1.h"

namespace shell
{
namespace
{
constexpr int LeftButton = 1;
constexpr std::int16_t KeyEnter = 13, KeyUpArrow = 38, KeyDownArrow = 40;
}

void Form1::KeyDown(std::int16_t code)
{
    if (HasEnded)
        return;
    if (RecordsKey())
    {
        ConsumedKey = code;
        txtRecKey_KeyDown(code);
        Repaint();
    }
    else if (!MenuKeyDown(code))
        Form_KeyDown(code);
}

void Form1::KeyUp(std::int16_t code)
{
    if (HasEnded)
        return;
    if (code == ConsumedKey)
        ConsumedKey = 0;
    Form_KeyUp(code);
}

// Menu and race are driven by key codes: typed characters are for the console alone.
void Form1::KeyPress(std::uint8_t code)
{
    if (!HasEnded)
        Form_KeyPress(code);
}

// While the menu or a panel shows: up and down walk over what can be clicked, Enter clicks it.
bool Form1::MenuKeyDown(std::int16_t code)
{
    if (TheGame.Timers.RenderT.Enabled != base::False)
        return false;
    if (code == ConsumedKey)
        return true; // a repeat of the key that was bound, or of the Enter that has clicked
    if (code == KeyUpArrow || code == KeyDownArrow)
    {
        StepHot(code == KeyDownArrow ? 1 : -1);
        return true;
    }
    if (code != KeyEnter || Hot < 0)
        return false;
    ClickOn(TheForm.Controls[static_cast<std::size_t>(Hot)]);
    ConsumedKey = code;
    return true;
}

void Form1::StepHot(int step)
{
    const auto count = static_cast<std::int32_t>(TheForm.Controls.size());
    std::int32_t at = Hot < 0 && step < 0 ? 0 : Hot;
    for (std::int32_t tries = 0; tries < count; ++tries)
    {
        at = (at + step + count) % count;
        const forms::Control& control = TheForm.Controls[static_cast<std::size_t>(at)];
        const forms::Rect place = TheForm.PlaceOf(control);
        // What a panel covers is not under its own middle.
        if (IsClickable(control) && TheForm.IsShown(control) &&
            TheForm.At(place.X + place.W / 2, place.Y + place.H / 2) == &control)
            return SetHot(static_cast<std::int16_t>(at));
    }
}

bool Form1::IsClickable(const forms::Control& control) const
{
    return control.Enabled != base::False && FindHandler(control.Name) != nullptr;
}

void Form1::SetHot(std::int16_t control)
{
    if (Hot == control)
        return;
    Hot = control;
    Repaint();
}

// A click moves panels about, so what lies under the pointer afterwards is highlighted only when it moves again.
void Form1::ClickOn(const forms::Control& control)
{
    const std::string name = control.Name;
    const std::int16_t index = control.Index;
    Hot = -1;
    Click(name, index);
}

void Form1::MouseDown(int button, platform::Point at)
{
    if (HasEnded || button != LeftButton)
        return;
    const forms::Control* control = TheForm.At(at.X, at.Y);
    const bool clickable = control != nullptr && IsClickable(*control);
    Pressed = clickable ? TheForm.IndexOf(*control) : std::int16_t{-1};
    if (!clickable)
    {
        LoseFocus();
        modWinDrag::DragStart(TheDrag, *TheWindow, TheGame.Settings.FullScreen != base::False);
    }
}

void Form1::MouseMove(int buttons, platform::Point at)
{
    if (HasEnded)
        return;
    const bool leftHeld = (buttons & LeftButton) != 0;
    if (leftHeld && TheDrag.Active)
        return modWinDrag::DragMove(TheDrag, *TheWindow);
    const forms::Control* control = TheForm.At(at.X, at.Y);
    SetHot(control != nullptr && IsClickable(*control) ? TheForm.IndexOf(*control) : std::int16_t{-1});
}

void Form1::MouseUp(int button, platform::Point at)
{
    if (HasEnded || button != LeftButton)
        return;
    TheDrag.Active = false;
    const forms::Control* control = TheForm.At(at.X, at.Y);
    const std::int16_t pressed = Pressed;
    Pressed = -1;
    if (control != nullptr && pressed >= 0 && TheForm.IndexOf(*control) == pressed)
        ClickOn(*control);
}

// Something else was clicked: the rebinding box gives up.
void Form1::LoseFocus()
{
    if (!RecordsKey())
        return;
    txtRecKey_LostFocus();
    Repaint();
}

bool Form1::CloseAsked()
{
    return HasEnded || Form_Unload();
}
}
