// SPDX-License-Identifier: Zlib
#include "shell/forms/Control.h"

#include "base/RuntimeError.h"

namespace forms
{
bool HasCaption(Kind kind)
{
    return kind == Kind::Label || kind == Kind::Button || kind == Kind::Frame || kind == Kind::CheckBox;
}

bool HasText(Kind kind)
{
    return kind == Kind::TextBox || kind == Kind::ComboBox;
}

bool HasValue(Kind kind)
{
    return kind == Kind::CheckBox;
}

bool Contains(const Rect& rect, std::int32_t x, std::int32_t y)
{
    return x >= rect.X && y >= rect.Y && x - rect.X < rect.W && y - rect.Y < rect.H;
}

std::int16_t Form::Add(Control control)
{
    Controls.push_back(std::move(control));
    return static_cast<std::int16_t>(Controls.size() - 1);
}

Control* Form::Find(std::string_view name, std::int16_t index)
{
    for (Control& control : Controls)
        if (control.Index == index && control.Name == name)
            return &control;
    return nullptr;
}

Control& Form::Get(std::string_view name, std::int16_t index)
{
    if (Control* control = Find(name, index))
        return *control;
    throw base::RuntimeError(base::ErrorIndex);
}

std::int16_t Form::IndexOf(const Control& control) const
{
    return static_cast<std::int16_t>(&control - Controls.data());
}

const Control* Form::ParentOf(const Control& control) const
{
    return control.Parent < 0 ? nullptr : &Controls[static_cast<std::size_t>(control.Parent)];
}

bool Form::IsShown(const Control& control) const
{
    for (const Control* at = &control; at != nullptr; at = ParentOf(*at))
        if (at->Visible == base::False)
            return false;
    return true;
}

bool Form::IsEnabled(const Control& control) const
{
    for (const Control* at = &control; at != nullptr; at = ParentOf(*at))
        if (at->Enabled == base::False)
            return false;
    return true;
}

const Control* Form::TopFrame() const
{
    for (auto control = Controls.rbegin(); control != Controls.rend(); ++control)
        if (control->Type == Kind::Frame && control->Parent < 0 && control->Visible != base::False)
            return &*control;
    return nullptr;
}

bool Form::IsOn(const Control& control, const Control* frame) const
{
    if (frame == nullptr)
        return true;
    for (const Control* at = &control; at != nullptr; at = ParentOf(*at))
        if (at == frame)
            return true;
    return false;
}

Rect Form::PlaceOf(const Control& control) const
{
    Rect place = control.Place;
    for (const Control* frame = ParentOf(control); frame != nullptr; frame = ParentOf(*frame))
    {
        place.X += frame->Place.X;
        place.Y += frame->Place.Y;
    }
    return place;
}

Control* Form::At(std::int32_t x, std::int32_t y)
{
    for (auto control = Controls.rbegin(); control != Controls.rend(); ++control)
        if (IsShown(*control) && Contains(PlaceOf(*control), x, y))
            return &*control;
    return nullptr;
}
}
