// The keys and typed characters. Characters are typed text and what goes by them (Backspace, Ctrl+A, C, V, X);
// everything else goes by key codes.
#include "shell/forms/Interaction.h"

#include <algorithm>

namespace forms
{
namespace
{
constexpr std::int16_t KeyTab = 9, KeyEnter = 13, KeyShift = 16, KeyCtrl = 17, KeyAlt = 18, KeyEsc = 27, KeySpace = 32,
                       KeyLeft = 37, KeyUpArrow = 38, KeyRight = 39, KeyDownArrow = 40, KeyInsert = 45, KeyDelete = 46,
                       KeyF4 = 115;
constexpr std::uint8_t CtrlA = 1, CtrlC = 3, CtrlV = 22, CtrlX = 24;
constexpr std::int32_t LevelStep = 5; // per cent
}

void Interaction::KeyUp(std::int16_t code)
{
    if (Holds(code))
        Release();
    if (code == KeyShift)
        Shift = false;
    else if (code == KeyCtrl)
        Ctrl = false;
    else if (code == KeyAlt)
        Alt = false;
}

void Interaction::KeyDown(std::int16_t code)
{
    Settle();
    if (code == KeyShift)
        Shift = true;
    else if (code == KeyCtrl)
        Ctrl = true;
    else if (code == KeyAlt)
        Alt = true;
    if (Holds(code) || (IsListOpen() && ListKey(code)))
        return;
    if (Control* focus = Focused(); focus != nullptr && IsEdited(*focus) && BoxKey(*focus, code))
    {
        return TextEdited();
    }
    else if (focus != nullptr && LevelKey(*focus, code))
        return;
    switch (code)
    {
    case KeyTab:
        return StepFocus(Shift ? -1 : 1);
    case KeyUpArrow:
        return StepFocus(-1);
    case KeyDownArrow:
        return StepFocus(1);
    case KeyEnter:
    case KeySpace:
        return Activate(code);
    case KeyEsc:
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
    const bool isEnter = code == KeyEnter;
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
    if (picture.Type != Kind::Picture || !Owner.HasPointer(picture) || (code != KeyLeft && code != KeyRight))
        return false;
    const std::int32_t level = std::clamp(picture.Value + (code == KeyLeft ? -LevelStep : LevelStep), 0, 100);
    Owner.PointedAt(picture, (picture.Place.W * level + 50) / 100);
    Owner.Changed();
    return true;
}

bool Interaction::BoxKey(Control& box, std::int16_t code)
{
    const bool isCombo = box.Type == Kind::ComboBox;
    if (isCombo && (code == KeyUpArrow || code == KeyDownArrow) && !Alt)
        StepItem(box, code == KeyDownArrow ? 1 : -1);
    else if (isCombo && ((code == KeyDownArrow && Alt) || (code == KeyF4 && !Alt)))
        OpenList(box);
    else if (!ClipboardKey(box, code))
        return EditKey(box.Text, TheMarks.Edit, code, Shift, Ctrl);
    return true;
}

// The older names of copy, paste and cut.
bool Interaction::ClipboardKey(Control& box, std::int16_t code)
{
    if (code == KeyInsert && Ctrl)
        Copy(box, false);
    else if (code == KeyInsert && Shift)
        Paste(box);
    else if (code == KeyDelete && Shift)
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
    if (box == nullptr || !IsEdited(*box) || (code == KeySpace && Holds(KeySpace)))
        return;
    switch (code)
    {
    case CtrlA:
        SelectAll(TheMarks.Edit, box->Text);
        break;
    case CtrlC:
    case CtrlX:
        Copy(*box, code == CtrlX);
        break;
    case CtrlV:
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
