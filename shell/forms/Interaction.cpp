// SPDX-License-Identifier: Zlib
#include "shell/forms/Interaction.h"

#include "shell/forms/Boxes.h"

#include <algorithm>

namespace forms
{
Control* Interaction::Of(std::int16_t index)
{
    const bool exists = index >= 0 && static_cast<std::size_t>(index) < TheForm.Controls.size();
    return exists ? &TheForm.Controls[static_cast<std::size_t>(index)] : nullptr;
}

bool Interaction::IsAvailable(const Control& control) const
{
    return TheForm.IsShown(control) && TheForm.IsEnabled(control) && TheForm.IsOn(control, TheForm.TopFrame());
}

bool Interaction::Reacts(const Control& control) const
{
    switch (control.Type)
    {
    case Kind::TextBox:
    case Kind::ComboBox:
    case Kind::CheckBox:
    case Kind::Button:
        return true;
    case Kind::Label:
        return Owner.HasClick(control);
    case Kind::Picture:
        return Owner.HasClick(control) || Owner.HasPointer(control);
    case Kind::Frame:
        return false;
    }
    return false;
}

bool Interaction::CanFocus(const Control& control) const
{
    return control.Place.W > 0 && control.Place.H > 0 && Reacts(control) && IsAvailable(control);
}

// A box without a place of its own takes keys, but nobody sees a text in it.
bool Interaction::IsEdited(const Control& control) const
{
    return HasText(control.Type) && control.Place.W > 0;
}

void Interaction::SetFocus(std::int16_t index)
{
    if (index == TheForm.Focus)
        return;
    CloseList();
    if (const Control* before = Focused())
        Owner.LostFocus(*before);
    TheForm.Focus = EditedBox = index;
    TheMarks.Scroll = 0;
    const Control* box = Focused();
    if (box != nullptr && IsEdited(*box))
        SelectAll(TheMarks.Edit, box->Text);
    TextEdited();
}

void Interaction::FocusOn(const Control& control)
{
    if (!CanFocus(control))
        return;
    SetFocus(TheForm.IndexOf(control));
    if (IsEdited(control))
        SelectAll(TheMarks.Edit, control.Text);
    TextEdited();
}

// Another frame has come to the top: its first text waits to be typed over.
void Interaction::FollowTopFrame()
{
    const Control* top = TheForm.TopFrame();
    const std::int16_t index = top == nullptr ? std::int16_t{-1} : TheForm.IndexOf(*top);
    if (index == TopFrame)
        return;
    TopFrame = index;
    CloseList();
    TheMarks.Hot = TheMarks.Pressed = -1;
    TheGrip = Grip::Nothing;
    const Control* focus = Focused();
    if (focus != nullptr && focus->Place.W <= 0)
        return;
    const auto first = std::find_if(TheForm.Controls.begin(), TheForm.Controls.end(),
                                    [this](const Control& c) { return IsEdited(c) && CanFocus(c); });
    SetFocus(top == nullptr || first == TheForm.Controls.end() ? std::int16_t{-1} : TheForm.IndexOf(*first));
}

// Keeps caret, selection and scroll true to the text of the box with the focus.
void Interaction::FollowText()
{
    const Control* box = Focused();
    const bool isOther = EditedBox != TheForm.Focus;
    EditedBox = TheForm.Focus;
    if (box == nullptr || !IsEdited(*box))
    {
        TheMarks.Edit = {};
        TheMarks.Scroll = 0;
        return;
    }
    if (isOther || EditedText != box->Text)
    {
        EditedText = box->Text;
        MoveCaret(TheMarks.Edit, EditedText.size(), false);
    }
    FitTo(TheMarks.Edit, box->Text);
    TheMarks.Scroll = ScrollFor(*box, TextRoom(*box, TheForm.PlaceOf(*box)), TheMarks.Edit.Caret, TheMarks.Scroll);
}

// After every change of the text or the selection that is made here.
void Interaction::TextEdited()
{
    const Control* box = Focused();
    if (box != nullptr && IsEdited(*box))
        EditedText = box->Text;
    FollowText();
    Owner.Changed();
}

void Interaction::Settle()
{
    FollowTopFrame();
    const Control* focus = Focused();
    if (focus == nullptr || (focus->Place.W > 0 && !IsAvailable(*focus)))
        SetFocus(-1);
    for (std::int16_t* mark : {&TheMarks.Hot, &TheMarks.Pressed})
        if (const Control* control = Of(*mark); control != nullptr && !IsAvailable(*control))
            *mark = -1;
    if (TheList.IsOpen())
        FitList();
    FollowText();
}

void Interaction::Click(const Control& control)
{
    if (Owner.HasClick(control))
        Owner.Clicked(control);
    Settle();
    Owner.Changed();
}

void Interaction::OpenList(const Control& box)
{
    if (!TheList.Open(box))
        return;
    TheMarks.Hot = -1;
    FitList();
    Owner.Changed();
}

void Interaction::CloseList()
{
    if (TheList.Close())
        Owner.Changed();
}

// Others may have changed the items, or hidden the box.
void Interaction::FitList()
{
    const Control& box = TheList.Box();
    if (box.Items.empty() || !IsAvailable(box))
        return CloseList();
    TheList.Fit();
}

void Interaction::Choose(Control& box, std::int32_t item)
{
    if (item >= 0 && static_cast<std::size_t>(item) < box.Items.size())
        box.Text = box.Items[static_cast<std::size_t>(item)];
    SelectAll(TheMarks.Edit, box.Text);
    CloseList();
    TextEdited();
}
}
