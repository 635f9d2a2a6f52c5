// render/Font.h: the bitmap font of the head-up display and the text routines. Coordinates are frame pixels, y upward.
#pragma once
#include "base/Files.h"
#include "base/Trapped.h"
#include "render/PicArray.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace render
{
inline constexpr int FirstCode = 32, LastCode = 255;

struct Glyph
{
    std::uint8_t Present = 0;
    std::int32_t GlyphW = 0, GlyphH = 0; // pixels
    std::vector<std::uint8_t> Mask;      // GlyphH rows of GlyphW, row 0 at the bottom; 255 inked, 0 not
};

struct Font
{
    std::array<Glyph, LastCode - FirstCode + 1> Glyphs; // by character code, from FirstCode
    std::int32_t LineHeight = 0;                        // the tallest glyph
    std::int32_t WidestGlyph = 0;

    // The glyph of a code, or nullptr where there is none.
    const Glyph* Find(int code) const
    {
        if (code < FirstCode || code > LastCode)
            return nullptr;
        const Glyph& glyph = Glyphs[static_cast<std::size_t>(code - FirstCode)];
        return glyph.Present != 0 ? &glyph : nullptr;
    }
};

// Loads the pictures "32.bmp" … "255.bmp" of the folder; exactly black pixels are ink. A missing file is no error.
void LoadFont(base::MessageSink& messages, const base::Files& files, std::string folder, Font& font);

// Where 2D drawing goes: the frame's bytes and its size.
struct Surface
{
    std::uint8_t* Bytes = nullptr;
    std::int32_t RowBytes = 0, Width = 0, Height = 0;
};

struct Colour
{
    std::uint8_t R = 0, G = 0, B = 0;
};

// One glyph, scaled, its bottom-left corner at (x, y), clipped. Each inked run has a one-pixel dark edge above it.
// factor other than 1 darkens the colour: floor(channel * factor).
void DrawGlyph(const Surface& surface, const Glyph& glyph, std::int32_t x, std::int32_t y, float scale, Colour colour,
               float factor);

// Tab stop in pixels for a label's TabWidth (in cells of the widest glyph).
std::int32_t TabPixels(const Font& font, float scale, std::int16_t tabWidth);
// Width in pixels of the widest line, tabs every `tab` pixels (0: tabs add nothing).
std::int16_t TextWidth(const Font& font, float scale, std::string_view text, std::int32_t tab);

// Style 0: from (x, y) to the right, further lines below.
void DrawTextLeft(const Surface& surface, const Font& font, std::int32_t x, std::int32_t y, float scale,
                  std::int32_t tab, Colour colour, float factor, std::string_view text);
// Style 1: ends at (x, y); earlier lines stack above. Tabs are ignored.
void DrawTextRight(const Surface& surface, const Font& font, std::int32_t x, std::int32_t y, float scale, Colour colour,
                   float factor, std::string_view text);
// Style 2: each line centred on x, the first at y, the following below.
void DrawTextCentred(const Surface& surface, const Font& font, std::int32_t x, std::int32_t y, float scale,
                     std::int32_t tab, Colour colour, float factor, std::string_view text);
}
