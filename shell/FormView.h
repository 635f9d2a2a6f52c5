// SPDX-License-Identifier: Zlib
// shell/FormView.h: the form over the race: its controls, what they do, what mouse and keys do to them, and how it is
// painted onto the window's client area. Runs on the window's thread.
#pragma once
#include "platform/Platform.h"
#include "shell/forms/Control.h"
#include "shell/forms/Interaction.h"
#include "shell/forms/PaintForm.h"
#include "shell/Game.h"
#include "shell/panels/Actions.h"

#include <functional>
#include <string>

namespace shell
{
class FormView final : private forms::FormOwner, private forms::PicturePainter
{
public:
    forms::Form Form;
    panels::Actions Actions;
    forms::Interaction Input{Form, *this};

    // What is asked of the panels. Set before the first event.
    std::function<void(forms::Canvas&)> PaintMenuBackground; // what lies behind the menu before the first race
    std::function<void()> BeforeClick;                       // something is about to be clicked
    std::function<void(const forms::Control&)> ControlLostFocus;

    // game: its frame, whether a race has begun and whether the program has ended are read.
    FormView(const Game& game, platform::Window& window) : TheGame(game), Window(window) {}

    // Runs what a click on the control does, or the left button held x pixels from its left edge, and shows what came
    // of it. False where there is no such control or it does nothing.
    bool Click(forms::Control* control);
    bool PointAt(forms::Control* picture, std::int32_t x);

    void Appear(); // from now on the window shows what is painted
    bool IsAnyControlShown() const;
    // Shows the menu or a panel over the frame, or the frame alone where no control is shown.
    void Repaint();
    void RepaintIfDue(); // where a control has changed since

private:
    void PaintBackground();

    bool HasClick(const forms::Control& control) const override;
    bool HasPointer(const forms::Control& picture) const override;
    void Clicked(const forms::Control& control) override;
    void PointedAt(const forms::Control& picture, std::int32_t x) override;
    void LostFocus(const forms::Control& control) override { ControlLostFocus(control); }
    void Changed() override { PaintDue = true; }
    std::string ClipboardText() override { return Window.ClipboardText(); }
    void SetClipboardText(const std::string& text) override { Window.SetClipboardText(text); }
    void PaintPicture(forms::Canvas& canvas, const forms::Control& control, forms::Rect place) override;

    const Game& TheGame;
    platform::Window& Window;
    forms::Canvas Canvas;
    bool PaintDue = false;
    bool IsVisible = false;
};
}
