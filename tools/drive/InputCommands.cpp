// SPDX-License-Identifier: Zlib
// What the player's hands do: controls, keys, typed characters.
#include "base/Text.h"
#include "tools/drive/Session.h"

#include <array>
#include <limits>

namespace drive
{
namespace
{
forms::Control& ControlNamed(Session& session, std::string_view name)
{
    forms::Control* control = session.Form()->Controls().Find(name);
    Require(control != nullptr, "there is no control of that name");
    return *control;
}

void Click(Session& session, Words& words, Object&)
{
    const std::string_view name = Word(words, "the name of a control");
    const std::int16_t index =
        words.AtEnd() ? std::int16_t{-1}
                      : Number<std::int16_t>(words, "the index", 0, std::numeric_limits<std::int16_t>::max());
    RequireEnd(words);
    Require(session.Form()->Click(name, index), "there is no such control, or it has no click handler");
}

void Type(Session& session, Words& words, Object&)
{
    forms::Control& control = ControlNamed(session, Word(words, "the name of a control"));
    Require(forms::HasText(control.Type), "the control is no text or combo box");
    control.Text = words.Rest();
    session.Form()->Paint();
}

void Check(Session& session, Words& words, Object&)
{
    const std::string_view name = Word(words, "the name of a control");
    forms::Control& control = ControlNamed(session, name);
    Require(forms::HasValue(control.Type), "the control is no check box");
    const auto value = Number<std::int16_t>(words, "the value", 0, 1);
    RequireEnd(words);
    if (control.Value == value || !session.Form()->Controls().IsEnabled(control))
        return; // nothing that a click would change
    control.Value = value;
    session.Form()->Click(name); // where it has a handler
    session.Form()->Paint();
}

void Drag(Session& session, Words& words, Object&)
{
    shell::Form1& form = *session.Form();
    const forms::Control& control = ControlNamed(session, Word(words, "the name of a control"));
    Require(control.Type == forms::Kind::Picture, "the control is no picture box");
    const forms::Rect place = form.Controls().PlaceOf(control);
    const std::int32_t x = Number(words, "the column", 0, place.W - 1);
    RequireEnd(words);
    const platform::Point at{place.X + x, place.Y + place.H / 2};
    if (form.Controls().At(at.X, at.Y) != &control) // hidden or covered: what it would do if it were not
        return Require(form.PointAt(control.Name, x), "the control is not shown");
    form.MouseDown(1, at);
    form.MouseMove(1, at);
    form.MouseUp(1, at);
}

void Key(Session& session, Words& words, Object&)
{
    const std::string_view direction = Word(words, "down or up");
    Require(direction == "down" || direction == "up", "a key goes down or up");
    const auto code = Number<std::int16_t>(words, "the key code", 0, std::numeric_limits<std::int16_t>::max());
    RequireEnd(words);
    if (direction == "down")
        session.Form()->KeyDown(code);
    else
        session.Form()->KeyUp(code);
}

void Char(Session& session, Words& words, Object&)
{
    const auto code = Number<std::uint8_t>(words, "the character code", 0, 255);
    RequireEnd(words);
    session.Form()->KeyPress(code);
}

void Chars(Session& session, Words& words, Object&)
{
    const std::string_view text = words.Rest();
    for (std::size_t at = 0; at < text.size();)
        session.Form()->KeyPress(base::NextCode(text, at));
}
}

std::span<const Command> InputCommands()
{
    static constexpr std::array commands = {
        Command{"click", true, Click}, Command{"type", true, Type}, Command{"check", true, Check},
        Command{"drag", true, Drag},   Command{"key", true, Key},   Command{"char", true, Char},
        Command{"chars", true, Chars},
    };
    return commands;
}
}
