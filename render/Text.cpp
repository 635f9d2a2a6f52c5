// SPDX-License-Identifier: Zlib
#include "render/Text.h"

#include "base/Numbers.h"
#include "base/Text.h"

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

base::Rgb Faded(const TextLook& look)
{
    if (look.Fade == 1.0f)
        return look.Colour;
    return {Faded(look.Colour.R, look.Fade), Faded(look.Colour.G, look.Fade), Faded(look.Colour.B, look.Fade)};
}

// The columns or rows of a drawn glyph, counted from its own first, that lie on the surface.
struct DrawnPart
{
    std::int64_t First = 0, Last = 0; // both included; none where Last < First
};

DrawnPart PartOnSurface(std::int32_t place, std::int32_t last, std::int32_t size)
{
    return {std::max<std::int64_t>(0, -static_cast<std::int64_t>(place)),
            std::min<std::int64_t>(last, static_cast<std::int64_t>(size) - 1 - place)};
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

void DrawTextLeft(const base::Surface& surface, const Font& font, const TextLook& look, std::int32_t x, std::int32_t y,
                  std::string_view text)
{
    std::int32_t penX = x, penY = y;
    for (std::size_t at = 0; at < text.size();)
    {
        const int code = base::NextCode(text, at);
        if (code == Return)
        {
            penX = x;
            penY = Moved(penY, -LineStep(font, look.Scale));
        }
        else if (code == Tab)
        {
            const double distance = static_cast<double>(penX) - x;
            if (distance >= 0.0)
                penX = Moved(x, NextStop(base::RoundEven(distance), look.Tab));
        }
        else if (const Glyph* glyph = font.Find(code))
        {
            DrawGlyph(surface, *glyph, penX, penY, look);
            penX = Moved(penX, Advance(*glyph, look.Scale));
        }
    }
}

void DrawTextRight(const base::Surface& surface, const Font& font, const TextLook& look, std::int32_t x, std::int32_t y,
                   std::string_view text)
{
    std::int32_t penX = x, penY = y;
    for (std::size_t at = text.size(); at > 0;)
    {
        const int code = base::PreviousCode(text, at);
        if (code == Return)
        {
            penX = x;
            penY = Moved(penY, LineStep(font, look.Scale));
        }
        else if (const Glyph* glyph = font.Find(code))
        {
            penX = Moved(penX, -Advance(*glyph, look.Scale));
            DrawGlyph(surface, *glyph, penX, penY, look);
        }
    }
}

void DrawTextCentred(const base::Surface& surface, const Font& font, const TextLook& look, std::int32_t x,
                     std::int32_t y, std::string_view text)
{
    constexpr std::string_view lineEnd = "\r\n";
    std::int32_t penY = y;
    for (bool more = true; more;)
    {
        const std::size_t end = text.find(lineEnd);
        const std::string_view line = text.substr(0, end);
        const double half = TextWidth(font, look.Scale, line, look.Tab) / 2;
        DrawTextLeft(surface, font, look, Moved(x, -half), penY, line);
        penY = Moved(penY, -LineStep(font, look.Scale));
        more = end != std::string_view::npos;
        if (more)
            text.remove_prefix(end + lineEnd.size());
    }
}

void DrawLabel(const base::Surface& surface, const Font& font, const Label2D& label)
{
    const TextLook look{label.Scale, TabPixels(font, label.Scale, label.TabWidth), label.Col, label.Fade};
    if (label.Style == StartsAtX)
        DrawTextLeft(surface, font, look, label.X, label.Y, label.Text);
    else if (label.Style == EndsAtX)
        DrawTextRight(surface, font, look, label.X, label.Y, label.Text);
    else if (label.Style == CentredOnX)
        DrawTextCentred(surface, font, look, label.X, label.Y, label.Text);
}

void DrawGlyph(const base::Surface& surface, const Glyph& glyph, std::int32_t x, std::int32_t y, const TextLook& look)
{
    const double size = look.Scale;
    if (!(size > 0.0) || !(look.Fade == look.Fade) || glyph.GlyphW < 1 || glyph.GlyphH < 1)
        return;
    const base::Rgb colour = Faded(look);
    const DrawnPart columns = PartOnSurface(x, base::Floor((glyph.GlyphW - 1) * size), surface.Width);
    const DrawnPart rows = PartOnSurface(y, base::Floor((glyph.GlyphH - 1) * size), surface.Height);
    if (columns.Last < columns.First || rows.Last < rows.First)
        return; // beside the surface, as most of a line that is too long for it
    const auto maskRow = [&](std::int64_t j)
    {
        const std::int32_t row = base::Floor(static_cast<double>(j) / size);
        return row >= 0 && row < glyph.GlyphH ? glyph.Row(row) : nullptr;
    };
    for (std::int64_t j = rows.First; j <= rows.Last; ++j)
    {
        const std::uint8_t* ink = maskRow(j);
        const std::uint8_t* below = j > 0 ? maskRow(j - 1) : nullptr; // under the lowest row there is no ink
        std::uint8_t* pixel =
            surface.At(static_cast<std::int32_t>(x + columns.First), static_cast<std::int32_t>(y + j));
        for (std::int64_t i = columns.First; i <= columns.Last; ++i, pixel += base::PixelBytes)
        {
            const std::int32_t column = base::Floor(static_cast<double>(i) / size);
            if (column < 0 || column >= glyph.GlyphW)
                continue;
            if (ink != nullptr && ink[column] != 0)
                base::Put(pixel, colour);
            else if (below != nullptr && below[column] != 0)
                base::Put(pixel, {});
        }
    }
}
}
