#include "render/Font.h"

#include <algorithm>

namespace render
{
namespace
{
// The ink of a glyph is what is exactly black in its picture.
void TakeGlyph(const PicInfo& info, const PicArray2D& pixels, Glyph& glyph)
{
    glyph.Present = 1;
    glyph.GlyphW = info.Width;
    glyph.GlyphH = info.Height;
    glyph.Mask.assign(static_cast<std::size_t>(info.Width) * static_cast<std::size_t>(info.Height), 0);
    std::size_t at = 0;
    for (std::int32_t row = 0; row < info.Height; ++row)
    {
        const std::uint8_t* texel = pixels.Row(row);
        for (std::int32_t x = 0; x < info.Width; ++x, ++at, texel += 3)
            if (texel[0] == 0 && texel[1] == 0 && texel[2] == 0)
                glyph.Mask[at] = 255;
    }
}
}

void LoadFont(base::MessageSink& messages, const base::Files& files, std::string folder, Font& font)
{
    if (folder.empty() || (folder.back() != '\\' && folder.back() != '/'))
        folder += '\\';
    font = Font{};
    PicInfo info;
    PicArray2D pixels;
    for (int code = FirstCode; code <= LastCode; ++code)
    {
        const std::string path = folder + std::to_string(code) + ".bmp";
        if (!files.Exists(path) || !LoadPicArray2D(messages, files, path, info, pixels))
            continue;
        TakeGlyph(info, pixels, font.Glyphs[static_cast<std::size_t>(code - FirstCode)]);
        font.LineHeight = std::max(font.LineHeight, info.Height);
        font.WidestGlyph = std::max(font.WidestGlyph, info.Width);
    }
}
}
