// SPDX-License-Identifier: Zlib
// render/Text.h: texts of the head-up display. Coordinates are frame pixels, y upward; texts are UTF-8, lines end with
// "\r\n". Characters that the font lacks are left out. Nothing is drawn outside the surface.
#pragma once
#include "base/Pixels.h"
#include "render/Font.h"
#include "render/Scene.h"

#include <cstdint>
#include <string_view>

namespace render
{
// How a text looks. A Scale that is not above 0 and a Fade that is no number draw nothing.
struct TextLook
{
    float Scale = 1;      // frame pixels a pixel of a glyph
    std::int32_t Tab = 0; // frame pixels from one tab stop to the next; 0: tabs add nothing
    base::Rgb Colour;
    float Fade = 1; // each channel is floor(channel x Fade), 0 to 255
};

// One glyph with its bottom-left corner at (x, y), clipped. Each inked run has a dark edge above it, one pixel high at
// any scale.
void DrawGlyph(const base::Surface& surface, const Glyph& glyph, std::int32_t x, std::int32_t y, const TextLook& look);

// Tab stop in pixels for a label's TabWidth (in cells of the widest glyph), at least 0.
std::int32_t TabPixels(const Font& font, float scale, std::int16_t tabWidth);
// Width in pixels of the widest line, tabs every `tab` pixels (0: tabs add nothing); 32767 at most.
std::int16_t TextWidth(const Font& font, float scale, std::string_view text, std::int32_t tab);

// From (x, y) to the right, further lines below.
void DrawTextLeft(const base::Surface& surface, const Font& font, const TextLook& look, std::int32_t x, std::int32_t y,
                  std::string_view text);
// Ends at (x, y); earlier lines stack above. Tabs are ignored.
void DrawTextRight(const base::Surface& surface, const Font& font, const TextLook& look, std::int32_t x, std::int32_t y,
                   std::string_view text);
// Each line centred on x, the first at y, the following below.
void DrawTextCentred(const base::Surface& surface, const Font& font, const TextLook& look, std::int32_t x,
                     std::int32_t y, std::string_view text);

// The label's text at its place, aligned as its Style says; nothing for a style that there is not.
void DrawLabel(const base::Surface& surface, const Font& font, const Label2D& label);
}
