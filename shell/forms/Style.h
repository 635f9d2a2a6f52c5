// SPDX-License-Identifier: Zlib
// shell/forms/Style.h: the colours and measures that all controls share: dark translucent cards, pale text, one warm
// accent.
#pragma once
#include "shell/forms/Paint.h"

#include <algorithm>

namespace forms
{
inline constexpr base::Rgb Accent = {255, 158, 54};    // what stands out: headings, the focus, the pointed control
inline constexpr base::Rgb AccentDeep = {226, 96, 24}; // the same pressed, chosen or filled
inline constexpr base::Rgb Pale = {240, 235, 226};     // text
inline constexpr base::Rgb Muted = {160, 156, 150};    // borders, notes, what cannot be changed
inline constexpr base::Rgb Faint = {104, 104, 108};    // text that is disabled
inline constexpr base::Rgb Night = {13, 15, 22};       // cards and lists, and ink on the accent
inline constexpr base::Rgb Shade = {10, 12, 20};       // laid over the menu's picture, so that entries can be read
inline constexpr base::Rgb Slate = {44, 48, 60};       // boxes on a card
inline constexpr double Bold = 1.45;                   // weight of headings, buttons and entries

// Pixels of a measure that is given for a window of 600 x 312.
inline double Unit(const Canvas& canvas, double pixels)
{
    return pixels * std::clamp(std::min(canvas.Width / 600.0, canvas.Height / 312.0), 0.7, 3.0);
}

// How a control stands at the moment, as far as its looks depend on it.
struct State
{
    bool Hot = false;     // the pointer is on it and it would react
    bool Pressed = false; // the button went down on it and is held
    bool Focus = false;   // the keys act on it
    bool Enabled = true;  // and so is every frame around it
};

// The ring around what has the focus: a little outside the place, whose corners have that radius.
void PaintRing(Canvas& canvas, const Rect& place, double radius);
}
