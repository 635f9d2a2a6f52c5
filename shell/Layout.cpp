// Where the menu and the credits stand: everything is a share of the client area, from 240 x 200 to a whole screen.
#include "shell/Layout.h"

#include "base/Numbers.h"
#include "shell/Design.h"

#include <algorithm>
#include <string>

namespace shell
{
using forms::Align;
using forms::Rect;

namespace
{
constexpr const char* Frames[] = {"panelOption", "panelGameOpt", "panelVidOpt", "panelAudOpt",
                                  "panelWebcam", "panelCredits", "panelCtrOpt"};

std::int32_t Part(std::int32_t whole, double share)
{
    return base::RoundEven(whole * share);
}
}

Layout::Layout(forms::Form& form, platform::Size client) : Form(form), Client(client)
{
    Text = std::clamp(std::min(client.Width / 36, client.Height / 20), 10, 24);
    Row = Text * 8 / 5;
    Gap = std::max(3, Text / 2);
}

void Layout::Place(const char* name, std::int16_t index, Rect place, std::int32_t size, Align align)
{
    forms::Control* control = Form.Find(name, index);
    if (control == nullptr)
        return;
    control->Place = place;
    control->TextSize = size;
    control->TextAlign = align;
}

void Layout::Place(const char* name, Rect place, std::int32_t size, Align align)
{
    Place(name, -1, place, size, align);
}

Rect Layout::Centred(std::int32_t y, std::int32_t width, std::int32_t height) const
{
    return {(Client.Width - width) / 2, y, width, height};
}

std::int32_t Layout::CardWidth(std::int32_t letters) const
{
    return std::min(Client.Width - 4 * Text, Text * letters);
}

std::int32_t Layout::Top(std::int32_t height) const
{
    return std::max(0, (Client.Height - height) / 2);
}

Card::Card(Layout& layout, std::int32_t letters, std::int32_t contents) : On(layout)
{
    Width = layout.CardWidth(letters);
    Left = (layout.Client.Width - Width) / 2;
    Y = layout.Top(layout.HeadingHeight() + 2 * layout.Gap + contents + layout.ButtonHeight());
}

std::int32_t Card::LineHeight() const
{
    return On.Row + On.Gap / 2;
}

void Card::Heading(const char* name)
{
    On.Place(name, {Left, Y, Width, On.HeadingHeight()}, On.Text * 4 / 3, Align::Centre);
    Y += On.HeadingHeight() + On.Gap;
}

void Card::Button(const char* name)
{
    On.Place(name, {Left, Y, Width, On.ButtonHeight()}, On.Text, Align::Centre);
    Y += On.ButtonHeight() + On.Gap / 2;
}

void Card::Field(const char* caption, const char* control, Align align)
{
    const std::int32_t field = Width * 2 / 5;
    On.Place(caption, {Left, Y, Width - field - On.Gap, On.Row}, On.Text);
    On.Place(control, {Left + Width - field, Y, field, On.Row}, On.Text, align);
    Y += LineHeight();
}

void Card::Check(const char* name, const char* button)
{
    const std::int32_t beside = button == nullptr ? 0 : Width * 2 / 5;
    On.Place(name, {Left, Y, Width - beside - (button == nullptr ? 0 : On.Gap), On.Row}, On.Text);
    if (button != nullptr)
        On.Place(button, {Left + Width - beside, Y, beside, On.Row}, On.Text, Align::Centre);
    Y += LineHeight();
}

void Card::OK(const char* name)
{
    Y += On.Gap;
    On.Place(name, On.Centred(Y, Width / 2, On.ButtonHeight()), On.Text, Align::Centre);
}

void LayoutMenu(Layout& layout)
{
    const platform::Size client = layout.Client;
    layout.Place("imgLogoBG", {0, 0, client.Width, client.Height}, 0);
    layout.Place("imgLogo",
                 layout.Centred(Part(client.Height, 0.07), Part(client.Width, 0.76), Part(client.Height, 0.34)), 0);
    const std::int32_t size = std::clamp(std::min(Part(client.Height, 0.072), client.Width / 9), 13, 52);
    const std::int32_t step = size * 3 / 2, offset = std::max(1, size / 14);
    std::int32_t y = Part(client.Height, 0.49);
    for (const char* entry : MenuEntries())
    {
        const Rect place = layout.Centred(y, std::min(client.Width, size * 8), step);
        const std::string twin = std::string(entry) + "2";
        layout.Place(entry, place, size, Align::Centre);
        layout.Place(twin.c_str(), {place.X + offset, place.Y + offset, place.W, place.H}, size, Align::Centre);
        y += step;
    }
}

void LayoutCredits(Layout& layout)
{
    const std::int32_t row = layout.Row, gap = layout.Gap, text = layout.Text;
    Card card(layout, 20, 4 * row + 4 * gap);
    card.Heading("lblCredits");
    const auto line = [&](const char* name, std::int32_t height, std::int32_t size)
    {
        layout.Place(name, {card.Left, card.Y, card.Width, height}, size, Align::Centre);
        card.Y += height;
    };
    card.Y += gap;
    line("lblProduct", 2 * row, text * 2);
    card.Y += gap;
    line("lblMadeBy", row, text * 9 / 10);
    line("lblAuthors", row, text * 6 / 5);
    card.Y += 2 * gap;
    card.OK("cCreditOK");
}

void LayoutPanels(forms::Form& form, platform::Size client)
{
    for (const char* name : Frames)
        form.Get(name).Place = {0, 0, client.Width, client.Height};
}

void LayoutControls(forms::Form& form, platform::Size client)
{
    LayoutPanels(form, client);
    Layout layout(form, client);
    LayoutMenu(layout);
    LayoutOptions(layout);
    LayoutCredits(layout);
    LayoutKeys(layout);
}
}
