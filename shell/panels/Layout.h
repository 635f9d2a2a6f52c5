// SPDX-License-Identifier: Zlib
// shell/panels/Layout.h: the measures that every panel's layout is made of, for one size of the client area, from
// 240 x 200 to a whole screen. Pixels, y downward. Controls by index; -1 is no control and is passed over.
#pragma once
#include "platform/Platform.h"
#include "shell/forms/Control.h"

#include <cstdint>

namespace panels
{
struct Layout
{
    forms::Form& Form;
    platform::Size Client;
    std::int32_t Text = 0; // size of letters, 10 to 24
    std::int32_t Row = 0;  // height of a line of a panel
    std::int32_t Gap = 0;  // between groups, 3 at least

    Layout(forms::Form& form, platform::Size client);

    // place: within the control's frame. size: of its letters.
    void Place(std::int16_t control, forms::Rect place, std::int32_t size, forms::Align align = forms::Align::Left);
    forms::Rect Centred(std::int32_t y, std::int32_t width, std::int32_t height) const;

    std::int32_t CardWidth(std::int32_t letters) const; // of that many letter sizes, where the window has them
    std::int32_t HeadingHeight() const { return Text * 2; }
    std::int32_t ButtonHeight() const { return Row + 2; }
    // The first row of contents that are so high together and stand in the middle.
    std::int32_t Top(std::int32_t height) const;
};

// A panel's card, filled from top to bottom: heading, contents, OK. Every call places a line and moves Y below it.
struct Card
{
    Layout& On;
    std::int32_t Left = 0, Width = 0;
    std::int32_t Y = 0; // where the next line begins

    // letters: the width. contents: the height of what Heading and OK enclose.
    Card(Layout& layout, std::int32_t letters, std::int32_t contents);
    void Heading(std::int16_t label);
    void Button(std::int16_t button); // over the whole width
    void Field(std::int16_t caption, std::int16_t control, forms::Align align = forms::Align::Left);
    void Check(std::int16_t box);
    void Check(std::int16_t box, std::int16_t button); // the button stands beside it
    void OK(std::int16_t button);

    std::int32_t LineHeight() const; // of a field or a check box with its distance
};
}
