// shell/forms/Style.h: the colours and measures that all controls share: dark translucent cards, pale text, one warm
// accent.
#pragma once
#include "shell/forms/Paint.h"

#include <algorithm>

namespace forms
{
inline constexpr Colour Accent = {255, 158, 54};
inline constexpr Colour AccentDeep = {226, 96, 24};
inline constexpr Colour Pale = {240, 235, 226};
inline constexpr Colour Muted = {160, 156, 150};
inline constexpr Colour Faint = {104, 104, 108}; // what is disabled
inline constexpr Colour Night = {13, 15, 22};
inline constexpr Colour Slate = {44, 48, 60};
inline constexpr double Bold = 1.45;

// Pixels of a measure that is given for a window of 600 x 312.
inline double Unit(const Canvas& canvas, double pixels)
{
    return pixels * std::clamp(std::min(canvas.Width / 600.0, canvas.Height / 312.0), 0.7, 3.0);
}

// How a control stands at the moment.
struct State
{
    bool Hot = false, Pressed = false, Focus = false, Enabled = true;
};

// The ring around what has the focus.
void PaintRing(Canvas& canvas, const Rect& place, double radius);

// PaintBoxes.cpp. edit: caret and selection, where the box has the focus.
void PaintTextBox(Canvas& canvas, const Control& box, const Rect& place, const State& state, const Marks& marks);
void PaintCheckBox(Canvas& canvas, const Control& box, const Rect& place, const State& state);
void PaintList(Canvas& canvas, const Control& box, const Rect& place, const Marks& marks);
}
