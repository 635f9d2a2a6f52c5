// shell/forms/Control.h: the controls a form is made of, as records. A control is shown when it and every frame around
// it is visible. Rectangles are pixels of the window's client area relative to the parent, y downward.
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
    Label, // text; clickable where the form handles its click
    Button,
    Frame, // holds other controls
    TextBox,
    ComboBox,
    CheckBox,
    Picture // shows a picture, or is painted by its owner
};

// How a text is painted.
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

struct Rect
{
    std::int32_t X = 0, Y = 0, W = 0, H = 0;
};
bool Contains(const Rect& rect, std::int32_t x, std::int32_t y);

struct Control
{
    Kind Type = Kind::Label;
    std::string Name;
    std::int16_t Index = -1;  // in a control array; -1 alone
    std::int16_t Parent = -1; // index of the frame around it; -1 the form itself
    base::Flag Visible = base::True, Enabled = base::True;
    std::string Caption; // labels, buttons, frames, check boxes
    std::string Text;    // text and combo boxes
    std::string Tag;
    std::int16_t Value = 0;         // check boxes: 1 ticked
    std::vector<std::string> Items; // combo boxes: what the list offers
    bool IsDefault = false;         // the OK of its frame: Enter in a text box clicks it, and so does Esc
    Look Style = Look::Plain;
    Align TextAlign = Align::Left;
    std::int32_t TextSize = 14; // pixels
    Rect Place;
};

// Which of Caption, Text, Value a control of that kind has.
bool HasCaption(Kind kind);
bool HasText(Kind kind);
bool HasValue(Kind kind);

struct Form
{
    std::vector<Control> Controls; // painted in this order
    std::int16_t Focus = -1;       // the control that gets the keys; -1 the form
    platform::Size Client;         // of the window

    std::int16_t Add(Control control);
    Control* Find(std::string_view name, std::int16_t index = -1);
    Control& Get(std::string_view name, std::int16_t index = -1); // RuntimeError 9 when there is none
    std::int16_t IndexOf(const Control& control) const;
    const Control* ParentOf(const Control& control) const; // nullptr: it stands on the form itself
    bool IsShown(const Control& control) const;
    bool IsEnabled(const Control& control) const; // it and every frame around it
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
