// SPDX-License-Identifier: Zlib
// The left button and the pointer: Interaction's mouse events.
#include "shell/forms/Boxes.h"
#include "shell/forms/Interaction.h"

#include <cstdlib>
#include <utility>

namespace forms
{
namespace
{
constexpr std::uint32_t DoubleClickTime = 500; // milliseconds
constexpr std::int32_t DoubleClickReach = 4;   // pixels
}

bool Interaction::MouseDown(platform::Point at, std::uint32_t now)
{
    Settle();
    TheGrip = Grip::Spent;
    if (TheList.IsOpen())
        return PressList(at);
    Control* control = TheForm.At(at.X, at.Y);
    if (control != nullptr && Reacts(*control))
        return PressControl(*control, at, now);
    SetFocus(-1);
    TheGrip = Grip::Nothing;
    return false;
}

bool Interaction::PressControl(Control& control, platform::Point at, std::uint32_t now)
{
    if (!IsAvailable(control))
    {
        SetFocus(-1);
        return true;
    }
    if (IsEdited(control))
    {
        PressBox(control, at, now);
        return true;
    }
    const std::int16_t index = TheForm.IndexOf(control);
    const bool isLevel = control.Type == Kind::Picture && Owner.HasPointer(control);
    SetFocus(isLevel || control.Type == Kind::CheckBox ? index : std::int16_t{-1});
    TheMarks.Pressed = index;
    TheGrip = isLevel ? Grip::Picture : Grip::Control;
    if (isLevel)
        PointAt(at);
    Owner.Changed();
    return true;
}

// A text or combo box: its button, or its text.
void Interaction::PressBox(Control& box, platform::Point at, std::uint32_t now)
{
    const std::int16_t index = TheForm.IndexOf(box);
    const std::int32_t seen = TheForm.Focus == index ? TheMarks.Scroll : 0;
    SetFocus(index);
    TheMarks.Scroll = seen; // the pointer is where it is in the text as it was seen
    if (!Contains(DropButton(box, TheForm.PlaceOf(box)), at.X, at.Y))
        return PressText(box, at, now);
    OpenList(box);
    TheGrip = Grip::List;
}

void Interaction::PressText(Control& box, platform::Point at, std::uint32_t now)
{
    if (IsDoubleClick(TheForm.IndexOf(box), at, now))
    {
        TheGrip = Grip::Spent;
        SelectAll(TheMarks.Edit, box.Text);
    }
    else
    {
        TheGrip = Grip::Text;
        const Rect room = TextRoom(box, TheForm.PlaceOf(box));
        MoveCaret(TheMarks.Edit, CaretAt(box, at.X - room.X + TheMarks.Scroll), Shift);
    }
    TextEdited();
}

// Whether this press on a text is the second of two. A third one begins anew.
bool Interaction::IsDoubleClick(std::int16_t index, platform::Point at, std::uint32_t now)
{
    const bool isDouble = LastPress.Box == index && now - LastPress.Time <= DoubleClickTime &&
                          std::abs(at.X - LastPress.Place.X) <= DoubleClickReach &&
                          std::abs(at.Y - LastPress.Place.Y) <= DoubleClickReach;
    LastPress = {isDouble ? std::int16_t{-1} : index, now, at};
    return isDouble;
}

void Interaction::DragText(platform::Point at)
{
    const Control* box = Focused();
    if (box == nullptr || !IsEdited(*box))
        return;
    const Rect room = TextRoom(*box, TheForm.PlaceOf(*box));
    MoveCaret(TheMarks.Edit, CaretAt(*box, at.X - room.X + TheMarks.Scroll), true);
    TextEdited();
}

void Interaction::PointAt(platform::Point at)
{
    const Control* picture = Of(TheMarks.Pressed);
    if (picture == nullptr)
        return;
    Owner.PointedAt(*picture, at.X - TheForm.PlaceOf(*picture).X);
    Owner.Changed();
}

bool Interaction::PressList(platform::Point at)
{
    const ListPlace list = TheList.Place();
    if (!Contains(list.Box, at.X, at.Y))
    {
        CloseList();
        return true;
    }
    TheGrip = Contains(list.Track, at.X, at.Y) ? Grip::Track : Grip::List;
    HoverList(at);
    return true;
}

void Interaction::HoverList(platform::Point at)
{
    if (TheGrip == Grip::Track)
        TheList.ScrollTo(at.Y);
    else
        TheList.PointAt(at);
    Owner.Changed();
}

void Interaction::MouseMove(bool leftHeld, platform::Point at)
{
    Settle();
    if (!leftHeld && TheGrip != Grip::Nothing) // the button came up elsewhere
    {
        TheGrip = Grip::Nothing;
        TheMarks.Pressed = -1;
        Owner.Changed();
    }
    if (TheGrip == Grip::Text)
        return DragText(at);
    if (TheGrip == Grip::Picture)
        return PointAt(at);
    if (TheList.IsOpen())
        return HoverList(at);
    const Control* control = TheForm.At(at.X, at.Y);
    const bool isHot = control != nullptr && Reacts(*control) && IsAvailable(*control);
    const std::int16_t index = isHot ? TheForm.IndexOf(*control) : std::int16_t{-1};
    const bool isFree = TheGrip == Grip::Nothing || index == TheMarks.Pressed;
    SetHot(isFree ? index : std::int16_t{-1});
}

// Where nothing is being typed the pointer takes over from the keys, so that one control alone stands out.
void Interaction::SetHot(std::int16_t index)
{
    if (index == TheMarks.Hot)
        return;
    TheMarks.Hot = index;
    const Control* focus = Focused();
    if (index >= 0 && index != TheForm.Focus && focus != nullptr && focus->Place.W > 0 && !IsEdited(*focus))
        SetFocus(-1);
    Owner.Changed();
}

void Interaction::MouseUp(platform::Point at)
{
    Settle();
    const Grip grip = std::exchange(TheGrip, Grip::Nothing);
    const std::int16_t pressed = std::exchange(TheMarks.Pressed, std::int16_t{-1});
    if (grip == Grip::List && TheList.IsOpen())
    {
        if (const std::int32_t item = TheList.ItemAt(at); item >= 0)
            Choose(TheList.Box(), item);
        return;
    }
    Control* control = Of(pressed);
    if (control == nullptr)
        return;
    if (grip == Grip::Control && TheForm.At(at.X, at.Y) == control)
    {
        if (control->Type == Kind::CheckBox)
            control->Value = control->Value == 0 ? 1 : 0;
        return Click(*control);
    }
    Owner.Changed();
}
}
