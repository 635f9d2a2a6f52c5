// shell/Layout.h: the measures that every panel's layout is made of, for one size of the client area. Pixels.
#pragma once
#include "platform/Platform.h"
#include "shell/forms/Control.h"

#include <cstdint>

namespace shell
{
struct Layout
{
    forms::Form& Form;
    platform::Size Client;
    std::int32_t Text = 0, Row = 0, Gap = 0; // letter size, line of a panel, space between groups

    Layout(forms::Form& form, platform::Size client);

    void Place(const char* name, std::int16_t index, forms::Rect place, std::int32_t size,
               forms::Align align = forms::Align::Left);
    void Place(const char* name, forms::Rect place, std::int32_t size, forms::Align align = forms::Align::Left);
    forms::Rect Centred(std::int32_t y, std::int32_t width, std::int32_t height) const;

    std::int32_t CardWidth(std::int32_t letters) const; // of that many letter sizes, where the window has them
    std::int32_t HeadingHeight() const { return Text * 2; }
    std::int32_t ButtonHeight() const { return Row + 2; }
    // The first row of contents that are so high together.
    std::int32_t Top(std::int32_t height) const;
};

// A panel's card from top to bottom: heading, contents, OK.
struct Card
{
    Layout& On;
    std::int32_t Left = 0, Width = 0, Y = 0;

    // contents: the height of what Heading and OK enclose.
    Card(Layout& layout, std::int32_t letters, std::int32_t contents);
    void Heading(const char* name);
    void Button(const char* name); // over the whole width
    void Field(const char* caption, const char* control, forms::Align align = forms::Align::Left);
    void Check(const char* name, const char* button = nullptr); // the button stands beside it
    void OK(const char* name);

    std::int32_t LineHeight() const; // of a field or a check box with its distance
};

void LayoutMenu(Layout& layout);
void LayoutOptions(Layout& layout); // panelOption, panelGameOpt, panelVidOpt, panelAudOpt, panelWebcam
void LayoutCredits(Layout& layout);
void LayoutKeys(Layout& layout); // panelCtrOpt with its sub-frames
}
