// SPDX-License-Identifier: Zlib
// assets/track/Lettering.h: plain upright capitals made of strokes, for boards and paint on the road.
#pragma once
#include "assets/common/Canvas.h"
#include "assets/common/Vectors.h"

#include <string_view>
#include <vector>

namespace assets::track
{
// The strokes of a text whose letters are 1 high and about 0.6 wide, from x = 0, base line at y = 0.
// Letters A to Z, digits, blank, "-", "." and "'"; others are left out.
std::vector<std::vector<Point>> Letters(std::string_view text);

// Width of the text in letter heights.
double LettersWidth(std::string_view text);

// Paints the text centred on `middle`, `height` pixels high with strokes `thickness` pixels wide; `stretch` widens it.
void PaintText(Canvas& canvas, std::string_view text, Point middle, double height, double thickness, Rgb colour,
               double opacity = 1, double stretch = 1);
}
