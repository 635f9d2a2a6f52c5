// SPDX-License-Identifier: Zlib
// The keys and typed characters: Interaction's keyboard events. Characters are typed text and what goes by them
// (Backspace, Ctrl+A, C, V, X); everything else goes by key codes.
#include "platform/Keys.h"
#include "shell/forms/Interaction.h"

#include <algorithm>

namespace forms
{
namespace
{
constexpr std::int32_t LevelStep = 5; // per cent
}

void Interaction::SetModifier(std::int16_t code, bool down)
{
    if (code == platform::KeyShift)
        Shift = down;
    else if (code == platform::KeyCtrl)
        Ctrl = down;
    else if (code == platform::KeyAlt)
        Alt = down;
}

void Interaction::KeyUp(std::int16_t code)
{
    if (Holds(code))
        Release();
    SetModifier(code, false);
}

void Interaction::KeyDown(std::int16_t code)
{
    Settle();
    SetModifier(code, true);
    if (Holds(code) || (TheList.IsOpen() && ListKey(code)))
        return;
    Control* focus = Focused();
    if (focus != nullptr && IsEdited(*focus) && BoxKey(*focus, code))
        return TextEdited();
    if (focus != nullptr && LevelKey(*focus, code))
        return;
    switch (code)
    {
    case platform::KeyTab:
        return StepFocus(Shift ? -1 : 1);
    case platform::KeyUp:
        return StepFocus(-1);
    case platform::KeyDown:
        return StepFocus(1);
    case platform::KeyEnter:
    case platform::KeySpace:
        return Activate(code);
    case platform::KeyEsc:
        ClickDefault();
        return Hold(code);
    default:
        return;
    }
}

// Walks over what can take the focus, in the order of the controls, round at both ends; from the pointed control where
// nothing has the focus.
void Interaction::StepFocus(int step)
{
    const auto count = static_cast<std::int32_t>(TheForm.Controls.size());
    const bool hasFocus = Focused() != nullptr && CanFocus(*Focused());
    std::int32_t at = hasFocus ? TheForm.Focus : TheMarks.Hot;
    if (at < 0 && step < 0)
        at = 0;
    for (std::int32_t tries = 0; tries < count; ++tries)
    {
        at = (at + step + count) % count;
        if (!CanFocus(TheForm.Controls[static_cast<std::size_t>(at)]))
            continue;
        TheMarks.Hot = -1;
        SetFocus(static_cast<std::int16_t>(at));
        return Owner.Changed();
    }
}

// Enter and the space bar: what they press is not pressed again until the key has been up.
void Interaction::Activate(std::int16_t code)
{
    Control* target = Focused();
    const bool isEnter = code == platform::KeyEnter;
    if (target == nullptr && isEnter)
        target = Of(TheMarks.Hot);
    if (target != nullptr && IsEdited(*target))
    {
        if (!isEnter)
            return;
        target = nullptr;
    }
    if (target != nullptr && target->Type == Kind::CheckBox)
    {
        target->Value = target->Value == 0 ? 1 : 0;
        Click(*target);
    }
    else if (target != nullptr && Owner.HasClick(*target))
        Click(*target);
    else if (isEnter)
        ClickDefault();
    Hold(code);
}

// The OK of the topmost frame; the form itself has none.
void Interaction::ClickDefault()
{
    const Control* top = TheForm.TopFrame();
    if (top == nullptr)
        return;
    const auto ok = std::find_if(TheForm.Controls.begin(), TheForm.Controls.end(),
                                 [this](const Control& c) { return c.IsDefault && IsAvailable(c); });
    if (ok != TheForm.Controls.end())
        Click(*ok);
}

bool Interaction::LevelKey(Control& picture, std::int16_t code)
{
    if (picture.Type != Kind::Picture || !Owner.HasPointer(picture) ||
        (code != platform::KeyLeft && code != platform::KeyRight))
        return false;
    const std::int32_t level = std::clamp(picture.Value + (code == platform::KeyLeft ? -LevelStep : LevelStep), 0, 100);
    Owner.PointedAt(picture, (picture.Place.W * level + 50) / 100);
    Owner.Changed();
    return true;
}

// False: the key means what it means without a list.
bool Interaction::ListKey(std::int16_t code)
{
    const bool isArrow = code == platform::KeyUp || code == platform::KeyDown;
    if (isArrow && !Alt)
    {
        TheList.Step(code == platform::KeyDown ? 1 : -1);
        Owner.Changed();
        return true;
    }
    if (code == platform::KeyEnter && TheList.Item() >= 0)
        Choose(TheList.Box(), TheList.Item());
    else if (code == platform::KeyEnter || code == platform::KeyEsc || code == platform::KeyF4 || isArrow)
        CloseList();
    else
    {
        if (code == platform::KeyTab)
            CloseList();
        return false;
    }
    Hold(code);
    return true;
}

void Interaction::StepItem(Control& box, int step)
{
    if (!box.Items.empty())
        Choose(box, NextItem(box, step));
}

bool Interaction::BoxKey(Control& box, std::int16_t code)
{
    const bool isCombo = box.Type == Kind::ComboBox;
    if (isCombo && (code == platform::KeyUp || code == platform::KeyDown) && !Alt)
        StepItem(box, code == platform::KeyDown ? 1 : -1);
    else if (isCombo && ((code == platform::KeyDown && Alt) || (code == platform::KeyF4 && !Alt)))
        OpenList(box);
    else if (!ClipboardKey(box, code))
        return EditKey(box.Text, TheMarks.Edit, code, Shift, Ctrl);
    return true;
}

// The older names of copy, paste and cut.
bool Interaction::ClipboardKey(Control& box, std::int16_t code)
{
    if (code == platform::KeyInsert && Ctrl)
        Copy(box, false);
    else if (code == platform::KeyInsert && Shift)
        Paste(box);
    else if (code == platform::KeyDelete && Shift)
        Copy(box, true);
    else
        return false;
    return true;
}

void Interaction::Copy(Control& box, bool cut)
{
    if (TheMarks.Edit.IsEmpty())
        return;
    Owner.SetClipboardText(std::string(Selected(TheMarks.Edit, box.Text)));
    if (cut)
        EraseSelected(box.Text, TheMarks.Edit);
}

void Interaction::Paste(Control& box)
{
    Insert(box.Text, TheMarks.Edit, Owner.ClipboardText());
}

void Interaction::Character(std::uint8_t code)
{
    Settle();
    Control* box = Focused();
    // The space bar that has opened a panel types nothing into it.
    if (box == nullptr || !IsEdited(*box) || (code == ' ' && Holds(platform::KeySpace)))
        return;
    switch (code)
    {
    case platform::CtrlA:
        SelectAll(TheMarks.Edit, box->Text);
        break;
    case platform::CtrlC:
    case platform::CtrlX:
        Copy(*box, code == platform::CtrlX);
        break;
    case platform::CtrlV:
        Paste(*box);
        break;
    default:
        if (!EditCharacter(box->Text, TheMarks.Edit, code))
            return;
    }
    CloseList();
    TextEdited();
}
}
