// SPDX-License-Identifier: Zlib
#include "shell/panels/Panel.h"

namespace panels
{
using forms::Kind;
using forms::Look;

Panel::Panel(Board& board, const char* frame) : On(board)
{
    Frame = Add(Kind::Frame, frame, "");
    Hide();
}

std::int16_t Panel::Add(Kind kind, const char* name, const char* caption, Look look)
{
    forms::Control control;
    control.Type = kind;
    control.Name = name;
    control.Parent = Frame;
    control.Caption = caption;
    control.Style = look;
    return On.Form.Add(std::move(control));
}

std::int16_t Panel::Label(const char* name, const char* caption, Look look)
{
    return Add(Kind::Label, name, caption, look);
}

std::int16_t Panel::Heading(const char* name, const char* caption)
{
    return Label(name, caption, Look::Heading);
}

std::int16_t Panel::Button(const char* name, const char* caption, Look look)
{
    return Add(Kind::Button, name, caption, look);
}

std::int16_t Panel::OK(const char* name)
{
    const std::int16_t button = Button(name, "OK");
    At(button).IsDefault = true;
    return button;
}

std::int16_t Panel::Box(Kind kind, const char* name, const char* text)
{
    const std::int16_t box = Add(kind, name, "");
    At(box).Text = text;
    return box;
}

std::int16_t Panel::Check(const char* name, const char* caption, bool ticked)
{
    const std::int16_t box = Add(Kind::CheckBox, name, caption);
    At(box).Value = ticked ? 1 : 0;
    return box;
}

std::int16_t Panel::Picture(const char* name)
{
    return Add(Kind::Picture, name, "");
}

bool Panel::Refuse(std::int16_t box, const char* why)
{
    On.Messages.ShowMessage(base::Icon::Exclamation, base::DefaultTitle, why);
    On.Input.FocusOn(At(box));
    return false;
}
}
