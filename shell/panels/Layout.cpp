// SPDX-License-Identifier: Zlib
#include "shell/panels/Layout.h"

#include <algorithm>

namespace panels
{
using forms::Align;
using forms::Rect;

Layout::Layout(forms::Form& form, platform::Size client) : Form(form), Client(client)
{
    Text = std::clamp(std::min(client.Width / 36, client.Height / 20), 10, 24);
    Row = Text * 8 / 5;
    Gap = std::max(3, Text / 2);
}

void Layout::Place(std::int16_t control, Rect place, std::int32_t size, Align align)
{
    if (control < 0)
        return;
    forms::Control& placed = Form.Controls[static_cast<std::size_t>(control)];
    placed.Place = place;
    placed.TextSize = size;
    placed.TextAlign = align;
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

void Card::Heading(std::int16_t label)
{
    On.Place(label, {Left, Y, Width, On.HeadingHeight()}, On.Text * 4 / 3, Align::Centre);
    Y += On.HeadingHeight() + On.Gap;
}

void Card::Button(std::int16_t button)
{
    On.Place(button, {Left, Y, Width, On.ButtonHeight()}, On.Text, Align::Centre);
    Y += On.ButtonHeight() + On.Gap / 2;
}

void Card::Field(std::int16_t caption, std::int16_t control, Align align)
{
    const std::int32_t field = Width * 2 / 5;
    On.Place(caption, {Left, Y, Width - field - On.Gap, On.Row}, On.Text);
    On.Place(control, {Left + Width - field, Y, field, On.Row}, On.Text, align);
    Y += LineHeight();
}

void Card::Check(std::int16_t box)
{
    On.Place(box, {Left, Y, Width, On.Row}, On.Text);
    Y += LineHeight();
}

void Card::Check(std::int16_t box, std::int16_t button)
{
    Field(box, button, Align::Centre);
}

void Card::OK(std::int16_t button)
{
    Y += On.Gap;
    On.Place(button, On.Centred(Y, Width / 2, On.ButtonHeight()), On.Text, Align::Centre);
}
}
