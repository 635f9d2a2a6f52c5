// SPDX-License-Identifier: Zlib
// render/Font.h: the bitmap font of the head-up display. What draws with it is in render/Text.h.
#pragma once
#include "base/Files.h"
#include "base/Trapped.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace render
{
inline constexpr int FirstCode = 32, LastCode = 255; // character codes that may have a glyph

struct Glyph
{
    std::uint8_t Present = 0;            // 0 where the font has no picture of that code
    std::int32_t GlyphW = 0, GlyphH = 0; // pixels
    std::vector<std::uint8_t> Mask;      // GlyphH rows of GlyphW, row 0 at the bottom; 255 inked, 0 not

    const std::uint8_t* Row(std::int32_t row) const { return Mask.data() + static_cast<std::ptrdiff_t>(row) * GlyphW; }
};

struct Font
{
    std::array<Glyph, LastCode - FirstCode + 1> Glyphs; // by character code, from FirstCode
    std::int32_t LineHeight = 0;                        // pixels: the tallest glyph
    std::int32_t WidestGlyph = 0;                       // pixels

    // The glyph of a code, or nullptr where there is none.
    const Glyph* Find(int code) const
    {
        if (code < FirstCode || code > LastCode)
            return nullptr;
        const Glyph& glyph = Glyphs[static_cast<std::size_t>(code - FirstCode)];
        return glyph.Present != 0 ? &glyph : nullptr;
    }
};

// Loads the pictures "32.bmp" … "255.bmp" of the folder in place of what the font held; exactly black pixels are ink. A
// missing file is no error; one that fails is reported, and its glyph is missing.
void LoadFont(base::MessageSink& messages, const base::Files& files, std::string folder, Font& font);
}
