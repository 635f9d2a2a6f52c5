// SPDX-License-Identifier: Zlib
// shell/forms/Control.h: the controls a form is made of, as records; what mouse and keys do to them is in
// Interaction.h, how they look in PaintForm.h. A control is shown when it and every frame around it is visible, and can
// be used when it and every frame around it is enabled. Rectangles are pixels of the window's client area relative to
// the parent, y downward. Texts are UTF-8. Everything belongs to the window's thread.
#pragma once
#include "base/Fields.h"
#include "base/Numbers.h"
#include "platform/Platform.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace forms
{
enum class Kind
{
    Label,    // text; clickable where the form's owner handles its click
    Button,   // the same in a box
    Frame,    // holds other controls; one that stands on the form itself covers the whole window
    TextBox,  // one line of text
    ComboBox, // the same with a list of texts to choose from
    CheckBox,
    Picture // painted by the form's owner; can be a level, which the pointer held on it sets
};

// How a text is painted. Buttons are plain or tabs; the others are of labels.
enum class Look
{
    Plain,
    Heading, // of a frame
    Entry,   // of the menu
    Shadow,  // its dark twin underneath
    Key,     // a key binding that a click changes
    FixedKey,
    Link,      // a word in a text that a click acts on
    Paragraph, // broken into lines
    Note,      // small and pale
    Tab,       // a button that chooses between sub-frames
    Choice     // a setting that each click steps on
};

enum class Align
{
    Left,
    Centre,
    Right
};

// From (X, Y), the topmost pixel on the left, on; empty where W or H is below 1.
struct Rect
{
    std::int32_t X = 0, Y = 0, W = 0, H = 0;
};
bool Contains(const Rect& rect, std::int32_t x, std::int32_t y);

struct Control
{
    Kind Type = Kind::Label;
    std::string Name;         // by which handlers know it; with Index, of one control alone
    std::int16_t Index = -1;  // in a control array: several of one name; -1 alone
    std::int16_t Parent = -1; // place in the form of the frame around it, which comes before it; -1 the form itself
    base::Flag Visible = base::True, Enabled = base::True;
    std::string Caption;            // labels, buttons, frames, check boxes
    std::string Text;               // text and combo boxes
    std::string Tag;                // whatever the owner keeps with it
    std::int16_t Value = 0;         // check boxes: 1 ticked; levels: 0 to 100; tabs: not 0 chosen
    std::vector<std::string> Items; // combo boxes: what the list offers
    bool IsDefault = false;         // the OK of its frame: Enter in a text box clicks it, and so does Esc
    Look Style = Look::Plain;
    Align TextAlign = Align::Left;
    std::int32_t TextSize = 14; // pixels from line to line, about
    Rect Place;                 // in the parent; without width or height it is not seen, though it may have the focus
};

// Which of Caption, Text, Value a control of that kind has.
bool HasCaption(Kind kind);
bool HasText(Kind kind);
bool HasValue(Kind kind);

// The controls by their places in the list, which stay once the form is made: places stand for controls everywhere.
struct Form
{
    std::vector<Control> Controls; // painted in this order, so the last at a point is the one that is hit
    std::int16_t Focus = -1;       // the control that gets the keys; -1 the form
    platform::Size Client;         // of the window

    // The place of the new control. References to others end.
    std::int16_t Add(Control control);
    Control* Find(std::string_view name, std::int16_t index = -1); // nullptr when there is none
    Control& Get(std::string_view name, std::int16_t index = -1);  // RuntimeError 9 when there is none
    // From here on controls are those of this form.
    std::int16_t IndexOf(const Control& control) const;
    const Control* ParentOf(const Control& control) const; // nullptr: it stands on the form itself
    bool IsShown(const Control& control) const;            // it and every frame around it
    bool IsEnabled(const Control& control) const;          // the same
    // The frame over the whole window that hides everything below it, or nullptr: the form itself is seen.
    const Control* TopFrame() const;
    bool IsOn(const Control& control, const Control* frame) const; // on a frame or in it; nullptr: on the form
    // Absolute place in the client area.
    Rect PlaceOf(const Control& control) const;
    // The topmost shown control at a point, or nullptr.
    Control* At(std::int32_t x, std::int32_t y);
};
}

template <> struct base::FieldsOf<forms::Control>
{
    using C = forms::Control;
    static constexpr auto Table =
        std::make_tuple(Field{"Visible", &C::Visible}, Field{"Enabled", &C::Enabled}, Field{"Caption", &C::Caption},
                        Field{"Text", &C::Text}, Field{"Value", &C::Value}, Field{"Tag", &C::Tag});
};
