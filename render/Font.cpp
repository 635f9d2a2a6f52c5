// SPDX-License-Identifier: Zlib
#include "render/Font.h"

#include "base/Pixels.h"
#include "render/PicArray.h"

#include <algorithm>

namespace render
{
namespace
{
// The ink of a glyph is what is exactly black in its picture.
void TakeGlyph(const Picture& picture, Glyph& glyph)
{
    const base::ConstSurface pixels = MakeSurface(picture);
    glyph.Present = 1;
    glyph.GlyphW = pixels.Width;
    glyph.GlyphH = pixels.Height;
    glyph.Mask.clear();
    for (std::int32_t row = 0; row < pixels.Height; ++row)
        for (std::int32_t x = 0; x < pixels.Width; ++x)
            glyph.Mask.push_back(base::IsBlack(pixels.At(x, row)) ? 255 : 0);
}
}

void LoadFont(base::MessageSink& messages, const base::Files& files, std::string folder, Font& font)
{
    if (folder.empty() || (folder.back() != '\\' && folder.back() != '/'))
        folder += '\\';
    font = Font{};
    Picture picture;
    for (int code = FirstCode; code <= LastCode; ++code)
    {
        const std::string path = folder + std::to_string(code) + ".bmp";
        if (!files.Exists(path) || !LoadPicArray2D(messages, files, path, picture.Info, picture.Pixels))
            continue;
        TakeGlyph(picture, font.Glyphs[static_cast<std::size_t>(code - FirstCode)]);
        font.LineHeight = std::max(font.LineHeight, picture.Info.Height);
        font.WidestGlyph = std::max(font.WidestGlyph, picture.Info.Width);
    }
}
}
