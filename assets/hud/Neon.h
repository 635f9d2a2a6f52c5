// SPDX-License-Identifier: Zlib
// assets/hud/Neon.h: words bent from glass tubes, for the title and the icon. Lengths are pixels.
#pragma once
#include "assets/common/Canvas.h"

#include <string_view>

namespace assets::hud
{
struct Tubes
{
    Rgb Inner, Outer; // glow of the letters' middle tube and of the one around them
    double Size;      // pixels of the typeface
    double Tracking;  // extra pixels between letters
    double Width;     // pixels of a tube
    bool Outlined = true;
};

// The lit word on nothing, centred; coverage falls off with the glow.
Canvas NeonWord(std::string_view word, int width, int height, const Tubes& tubes);

// The same with every pixel either painted or not: dots whose density is the coverage.
Canvas Dotted(const Canvas& soft);
}
