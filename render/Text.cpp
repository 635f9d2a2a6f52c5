#include "base/Text.h"
#include "base/Numbers.h"
#include "render/Font.h"

#include <algorithm>
#include <limits>

namespace render
{
namespace
{
constexpr int Tab = 9, Return = 13; // 10 has no glyph

// What a glyph takes of its line: its drawn width and one pixel of space, not yet a whole number.
double Advance(const Glyph& glyph, float scale)
{
    return glyph.GlyphW * static_cast<double>(scale) + 1.0;
}

// From one line to the next.
double LineStep(const Font& font, float scale)
{
    return font.LineHeight * static_cast<double>(scale) + 1.0;
}

// The tab stop behind a distance from the line's beginning.
std::int32_t NextStop(std::int32_t distance, std::int32_t tab)
{
    if (tab <= 0)
        return distance;
    const std::int64_t stop = (static_cast<std::int64_t>(distance) / tab + 1) * tab;
    return static_cast<std::int32_t>(std::min<std::int64_t>(stop, std::numeric_limits<std::int32_t>::max()));
}

// A place moved by a distance; OutOfRange, where nothing is drawn, beyond 32 bits.
std::int32_t Moved(std::int32_t place, double distance)
{
    return place == base::OutOfRange ? place : base::RoundEven(place + distance);
}

std::uint8_t Faded(std::uint8_t channel, double factor)
{
    return static_cast<std::uint8_t>(std::clamp(base::Floor(channel * factor), 0, 255));
}
}

std::int32_t TabPixels(const Font& font, float scale, std::int16_t tabWidth)
{
    return std::max(base::RoundEven(tabWidth * (font.WidestGlyph * static_cast<double>(scale) + 1.0)), 0);
}

std::int16_t TextWidth(const Font& font, float scale, std::string_view text, std::int32_t tab)
{
    std::int32_t width = 0, widest = 0;
    for (std::size_t at = 0; at < text.size();)
    {
        const int code = base::NextCode(text, at);
        if (code == Return)
            width = 0;
        else if (code == Tab)
            width = NextStop(width, tab);
        else if (const Glyph* glyph = font.Find(code))
            width = Moved(width, Advance(*glyph, scale));
        widest = std::max(widest, width);
    }
    return static_cast<std::int16_t>(std::min<std::int32_t>(widest, std::numeric_limits<std::int16_t>::max()));
}

void DrawTextLeft(const Surface& surface, const Font& font, std::int32_t x, std::int32_t y, float scale,
                  std::int32_t tab, Colour colour, float factor, std::string_view text)
{
    std::int32_t penX = x, penY = y;
    for (std::size_t at = 0; at < text.size();)
    {
        const int code = base::NextCode(text, at);
        if (code == Return)
        {
            penX = x;
            penY = Moved(penY, -LineStep(font, scale));
        }
        else if (code == Tab)
        {
            const double distance = static_cast<double>(penX) - x;
            if (distance >= 0.0)
                penX = Moved(x, NextStop(base::RoundEven(distance), tab));
        }
        else if (const Glyph* glyph = font.Find(code))
        {
            DrawGlyph(surface, *glyph, penX, penY, scale, colour, factor);
            penX = Moved(penX, Advance(*glyph, scale));
        }
    }
}

void DrawTextRight(const Surface& surface, const Font& font, std::int32_t x, std::int32_t y, float scale, Colour colour,
                   float factor, std::string_view text)
{
    std::int32_t penX = x, penY = y;
    for (std::size_t at = text.size(); at > 0;)
    {
        const int code = base::PreviousCode(text, at);
        if (code == Return)
        {
            penX = x;
            penY = Moved(penY, LineStep(font, scale));
        }
        else if (const Glyph* glyph = font.Find(code))
        {
            penX = Moved(penX, -Advance(*glyph, scale));
            DrawGlyph(surface, *glyph, penX, penY, scale, colour, factor);
        }
    }
}

void DrawTextCentred(const Surface& surface, const Font& font, std::int32_t x, std::int32_t y, float scale,
                     std::int32_t tab, Colour colour, float factor, std::string_view text)
{
    constexpr std::string_view lineEnd = "\r\n";
    std::int32_t penY = y;
    for (bool more = true; more;)
    {
        const std::size_t end = text.find(lineEnd);
        const std::string_view line = text.substr(0, end);
        const double half = TextWidth(font, scale, line, tab) / 2;
        DrawTextLeft(surface, font, Moved(x, -half), penY, scale, tab, colour, factor, line);
        penY = Moved(penY, -LineStep(font, scale));
        more = end != std::string_view::npos;
        if (more)
            text.remove_prefix(end + lineEnd.size());
    }
}

void DrawGlyph(const Surface& surface, const Glyph& glyph, std::int32_t x, std::int32_t y, float scale, Colour colour,
               float factor)
{
    const double size = scale;
    if (!(size > 0.0) || !(factor == factor) || glyph.GlyphW < 1 || glyph.GlyphH < 1)
        return;
    if (factor != 1.0f)
        colour = {Faded(colour.R, factor), Faded(colour.G, factor), Faded(colour.B, factor)};
    const std::int32_t lastColumn = base::Floor((glyph.GlyphW - 1) * size);
    const std::int32_t lastRow = base::Floor((glyph.GlyphH - 1) * size);
    // The part of the glyph that lies on the surface, in the glyph's own drawn columns and rows.
    const std::int64_t firstI = std::max<std::int64_t>(0, -static_cast<std::int64_t>(x));
    const std::int64_t firstJ = std::max<std::int64_t>(0, -static_cast<std::int64_t>(y));
    const std::int64_t lastI = std::min<std::int64_t>(lastColumn, static_cast<std::int64_t>(surface.Width) - 1 - x);
    const std::int64_t lastJ = std::min<std::int64_t>(lastRow, static_cast<std::int64_t>(surface.Height) - 1 - y);
    if (lastI < firstI || lastJ < firstJ)
        return; // beside the surface, as most of a line that is too long for it
    const auto maskRow = [&](std::int64_t j)
    {
        const std::int32_t row = base::Floor(static_cast<double>(j) / size);
        return row >= 0 && row < glyph.GlyphH
                   ? glyph.Mask.data() + static_cast<std::size_t>(row) * static_cast<std::size_t>(glyph.GlyphW)
                   : nullptr;
    };
    for (std::int64_t j = firstJ; j <= lastJ; ++j)
    {
        const std::uint8_t* ink = maskRow(j);
        const std::uint8_t* below = j > 0 ? maskRow(j - 1) : nullptr; // under the lowest row there is no ink
        std::uint8_t* pixel =
            surface.Bytes + static_cast<std::ptrdiff_t>((y + j) * surface.RowBytes + (x + firstI) * 3);
        for (std::int64_t i = firstI; i <= lastI; ++i, pixel += 3)
        {
            const std::int32_t column = base::Floor(static_cast<double>(i) / size);
            if (column < 0 || column >= glyph.GlyphW)
                continue;
            if (ink != nullptr && ink[column] != 0)
            {
                pixel[0] = colour.B;
                pixel[1] = colour.G;
                pixel[2] = colour.R;
            }
            else if (below != nullptr && below[column] != 0)
                pixel[0] = pixel[1] = pixel[2] = 0;
        }
    }
}
}
