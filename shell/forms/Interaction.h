// SPDX-License-Identifier: Zlib
// shell/forms/Interaction.h: what mouse and keys do to a form: which control is hot, pressed, has the focus, what is
// selected in its text, which list is open. A frame over the whole window takes everything; nothing below it reacts.
// Knows nothing of the game: the form's owner is notified of what was clicked. Runs on the window's thread.
//
// Places are pixels of the client area. What keys mean without a list or a text: Tab and the arrows step the focus,
// Enter and the space bar press what has it, Enter and Esc the OK of the topmost frame.
#pragma once
#include "platform/Platform.h"
#include "shell/forms/Control.h"
#include "shell/forms/DropList.h"
#include "shell/forms/Marks.h"

#include <cstdint>
#include <string>

namespace forms
{
// Whoever owns the form. The calls come while an event is handled, and return before it is over.
struct FormOwner
{
    virtual ~FormOwner() = default;
    // Whether labels, pictures and buttons of that name react to a click, and pictures to the pointer held on them.
    virtual bool HasClick(const Control& control) const = 0;
    virtual bool HasPointer(const Control& picture) const = 0;
    // May show and hide controls, never add or remove any.
    virtual void Clicked(const Control& control) = 0;
    // The left button is held, x pixels from the picture's left edge; beyond it while the button stays down.
    virtual void PointedAt(const Control& picture, std::int32_t x) = 0;
    virtual void LostFocus(const Control& control) = 0; // may do what Clicked may
    virtual void Changed() = 0;                         // something is to be painted anew once the event is over
    virtual std::string ClipboardText() = 0;            // UTF-8; any bytes are taken
    virtual void SetClipboardText(const std::string& text) = 0;
};

// One class though its events fill three files: each of them may move the focus, close the list and end a press, and so
// acts on all of this state at once. What can be said without the rest stands apart: LineEdit.h edits a text,
// DropList.h scrolls a list, Boxes.h tells where things are.
class Interaction
{
public:
    // Both are borrowed for life.
    Interaction(Form& form, FormOwner& owner) : TheForm(form), Owner(owner) {}
    Interaction(const Interaction&) = delete;
    Interaction& operator=(const Interaction&) = delete;

    // The left button. False: it went down where nothing reacts. now: milliseconds, which wrap, for double clicks.
    bool MouseDown(platform::Point at, std::uint32_t now);
    // leftHeld: as it is now. The button may have come up outside the window, where nobody heard of it.
    void MouseMove(bool leftHeld, platform::Point at);
    void MouseUp(platform::Point at);

    // Codes of platform/Keys.h. A key held down repeats KeyDown.
    void KeyDown(std::int16_t code);
    void KeyUp(std::int16_t code);
    // A typed character of the system code page, the control characters of platform/Keys.h among them.
    void Character(std::uint8_t code);

    // Gives it the focus, a text selected, where it can have it.
    void FocusOn(const Control& control);

    // A key that has acted does nothing more until it is released, or until Release.
    void Hold(std::int16_t code) { HeldKey = code; }
    bool Holds(std::int16_t code) const { return code != 0 && code == HeldKey; }
    void Release() { HeldKey = 0; }

    // Follows what others did to the form: another frame on top, a hidden or disabled control, another text or size of
    // the window. Called before every event; call it before painting. May take the focus from a control that is gone.
    void Settle();
    // For those who paint; valid as long as this is.
    const Marks& Shown() const { return TheMarks; }

private:
    // What the left button, held, acts on.
    enum class Grip
    {
        Nothing,
        Control, // clicked when the button comes up on it
        Text,    // selecting
        Picture, // a level that follows the pointer
        List,    // chooses the item on which the button comes up
        Track,   // the scroll bar of the list
        Spent    // the press has done all it does
    };

    // Interaction.cpp: focus, text, list
    Control* Of(std::int16_t index); // nullptr: there is none
    Control* Focused() { return Of(TheForm.Focus); }
    bool IsAvailable(const Control& control) const; // shown, enabled and on the topmost frame
    bool Reacts(const Control& control) const;      // to the mouse, where it is available
    bool CanFocus(const Control& control) const;
    bool IsEdited(const Control& control) const; // a box whose text is seen
    void SetFocus(std::int16_t index);           // -1: the form itself
    void FollowTopFrame();
    void FollowText();
    void TextEdited();
    void Click(const Control& control); // afterwards the form may look otherwise
    void OpenList(const Control& box);
    void CloseList();
    void FitList();
    void Choose(Control& box, std::int32_t item);

    // InteractionMouse.cpp: the left button and the pointer
    bool PressList(platform::Point at);
    bool PressControl(Control& control, platform::Point at, std::uint32_t now);
    void PressBox(Control& box, platform::Point at, std::uint32_t now);
    void PressText(Control& box, platform::Point at, std::uint32_t now);
    bool IsDoubleClick(std::int16_t index, platform::Point at, std::uint32_t now);
    void DragText(platform::Point at);
    void PointAt(platform::Point at);
    void HoverList(platform::Point at);
    void SetHot(std::int16_t index);

    // InteractionKeys.cpp: the keys and typed characters
    void SetModifier(std::int16_t code, bool down);
    bool ListKey(std::int16_t code);
    bool BoxKey(Control& box, std::int16_t code);
    bool ClipboardKey(Control& box, std::int16_t code);
    bool LevelKey(Control& picture, std::int16_t code);
    void StepItem(Control& box, int step);
    void StepFocus(int step);
    void Activate(std::int16_t code);
    void ClickDefault();
    void Copy(Control& box, bool cut);
    void Paste(Control& box);

    Form& TheForm;
    FormOwner& Owner;
    Marks TheMarks;
    DropList TheList{TheForm, TheMarks};
    Grip TheGrip = Grip::Nothing;
    std::int16_t HeldKey = 0;                      // has acted; 0 none
    std::int16_t TopFrame = -1;                    // as last seen
    std::int16_t EditedBox = -1;                   // the selection is in this text,
    std::string EditedText;                        // as last seen
    bool Shift = false, Ctrl = false, Alt = false; // held
    struct
    {
        std::int16_t Box = -1; // -1: the next press begins anew
        std::uint32_t Time = 0;
        platform::Point Place;
    } LastPress; // on a text, for double clicks
};
}
