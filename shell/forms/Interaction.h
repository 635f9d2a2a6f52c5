// shell/forms/Interaction.h: what mouse and keys do to a form: which control is hot, pressed, has the focus, what is
// selected in its text, which list is open. A frame over the whole window takes everything; nothing below it reacts.
// Knows nothing of the game: whoever owns the form is told what was clicked. Runs on the window's thread.
#pragma once
#include "platform/Platform.h"
#include "shell/forms/Control.h"
#include "shell/forms/Marks.h"

#include <cstdint>
#include <string>

namespace forms
{
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
    virtual void LostFocus(const Control& control) = 0;
    virtual void Changed() = 0; // something is to be painted anew once the event is over
    virtual std::string ClipboardText() = 0;
    virtual void SetClipboardText(const std::string& text) = 0;
};

class Interaction
{
public:
    Interaction(Form& form, FormOwner& owner) : TheForm(form), Owner(owner) {}

    // The left button. False: it went down where nothing reacts. now: milliseconds, for double clicks.
    bool MouseDown(platform::Point at, std::uint32_t now);
    void MouseMove(bool leftHeld, platform::Point at);
    void MouseUp(platform::Point at);

    void KeyDown(std::int16_t code); // repeats while held
    void KeyUp(std::int16_t code);
    void Character(std::uint8_t code); // of the system code page

    // Gives it the focus, a text selected, where it can have it.
    void FocusOn(const Control& control);

    // A key that has acted does nothing more until it is released, or until Release.
    void Hold(std::int16_t code) { HeldKey = code; }
    bool Holds(std::int16_t code) const { return code != 0 && code == HeldKey; }
    void Release() { HeldKey = 0; }

    // Follows what others did to the form: another frame on top, a hidden or disabled control, another text or size of
    // the window. Called before every event; call it before painting.
    void Settle();
    const Marks& Shown() const { return TheMarks; }

private:
    enum class Grip
    {
        Nothing,
        Control, // clicked when the button comes up on it
        Text,    // selecting
        Picture,
        List,
        Track, // the scroll bar of the list
        Spent  // the press has done all it does
    };

    // Interaction.cpp
    Control* Of(std::int16_t index);
    Control* Focused() { return Of(TheForm.Focus); }
    bool IsAvailable(const Control& control) const; // shown, enabled and on the topmost frame
    bool Reacts(const Control& control) const;
    bool CanFocus(const Control& control) const;
    void SetFocus(std::int16_t index);
    void FollowTopFrame();
    void FollowText();
    void TextEdited();
    void Click(const Control& control);
    bool IsEdited(const Control& control) const;

    // InteractionMouse.cpp
    bool PressList(platform::Point at);
    bool PressControl(Control& control, platform::Point at, std::uint32_t now);
    void PressText(Control& box, platform::Point at, std::uint32_t now);
    void DragText(platform::Point at);
    void PointAt(platform::Point at);
    void HoverList(platform::Point at);
    void SetHot(std::int16_t index);

    // InteractionKeys.cpp
    bool BoxKey(Control& box, std::int16_t code);
    bool ClipboardKey(Control& box, std::int16_t code);
    bool LevelKey(Control& picture, std::int16_t code);
    void StepFocus(int step);
    void Activate(std::int16_t code);
    void ClickDefault();
    void Copy(Control& box, bool cut);
    void Paste(Control& box);

    // InteractionList.cpp
    bool IsListOpen() const { return TheMarks.List.Owner >= 0; }
    void OpenList(Control& box);
    void CloseList();
    void FitList();
    void ShowItem(const Control& box, std::int32_t item);
    void Choose(Control& box, std::int32_t item);
    void StepItem(Control& box, int step);
    bool ListKey(std::int16_t code);

    Form& TheForm;
    FormOwner& Owner;
    Marks TheMarks;
    Grip TheGrip = Grip::Nothing; // what the left button, held, acts on
    std::int16_t HeldKey = 0;
    std::int16_t TopFrame = -1;  // as last seen
    std::int16_t EditedBox = -1; // the selection is in this text
    std::string EditedText;
    bool Shift = false, Ctrl = false, Alt = false;
    struct
    {
        std::int16_t Box = -1;
        std::uint32_t Time = 0;
        platform::Point Place;
    } LastPress; // on a text, for double clicks
};
}
