// SPDX-License-Identifier: Zlib
#include "shell/forms/Paint.h"

#include "base/Geometry.h"
#include "base/Math.h"
#include "base/Numbers.h"
#include "shell/forms/LineEdit.h"
#include "typeface/Typeface.h"

#include <algorithm>
#include <cstring>

namespace forms
{
namespace
{
constexpr int Opaque = 255;

std::uint8_t Mix(int below, int above, int alpha)
{
    return base::Mix<Opaque>(below, above, alpha);
}

void Blend(std::uint8_t* pixel, base::Rgb colour, int alpha)
{
    const base::Rgb below = base::Get(pixel);
    base::Put(pixel, {Mix(below.R, colour.R, alpha), Mix(below.G, colour.G, alpha), Mix(below.B, colour.B, alpha)});
}

Rect ClippedTo(const Canvas& canvas, const Rect& rect)
{
    const std::int32_t left = std::max(rect.X, 0), top = std::max(rect.Y, 0);
    const std::int32_t right = std::min(rect.X + rect.W, canvas.Width);
    const std::int32_t bottom = std::min(rect.Y + rect.H, canvas.Height);
    return {left, top, std::max(0, right - left), std::max(0, bottom - top)};
}

// The box of a line holds accents above and descenders below, so that its middle is the middle of the letters.
std::int32_t LineTop(const Rect& rect, double size)
{
    return rect.Y + base::RoundEven((rect.H - typeface::LineHeight(size)) / 2);
}

// A box with round corners, measured from its middle.
struct RoundBox
{
    double CentreX, CentreY, HalfW, HalfH, Radius;

    RoundBox(const Rect& rect, double radius, double inset)
        : CentreX(rect.X + rect.W / 2.0), CentreY(rect.Y + rect.H / 2.0), HalfW(rect.W / 2.0 - inset),
          HalfH(rect.H / 2.0 - inset), Radius(std::clamp(radius - inset, 0.0, std::max(0.0, std::min(HalfW, HalfH))))
    {
    }

    // How much of a pixel the box covers, 0 to 1, from the distance of the pixel's centre to the border.
    double Coverage(std::int32_t x, std::int32_t y) const
    {
        const double dx = std::abs(x + 0.5 - CentreX) - (HalfW - Radius);
        const double dy = std::abs(y + 0.5 - CentreY) - (HalfH - Radius);
        const double outX = std::max(dx, 0.0), outY = std::max(dy, 0.0);
        const double distance = base::Sqrt(outX * outX + outY * outY) + std::min(std::max(dx, dy), 0.0) - Radius;
        return std::clamp(0.5 - distance, 0.0, 1.0);
    }
};
}

void Canvas::Resize(std::int32_t width, std::int32_t height)
{
    width = std::clamp(width, 1, render::LargestPicture);
    height = std::clamp(height, 1, render::LargestPicture);
    if (width == Width && height == Height)
        return;
    Width = width;
    Height = height;
    RowBytes = base::PaddedRow(width);
    Bytes.assign(static_cast<std::size_t>(RowBytes) * static_cast<std::size_t>(height), 0);
}

void Fill(Canvas& canvas, const Rect& rect, base::Rgb colour, int alpha)
{
    FillDownward(canvas, rect, colour, alpha, colour, alpha);
}

void FillDownward(Canvas& canvas, const Rect& rect, base::Rgb top, int topAlpha, base::Rgb bottom, int bottomAlpha)
{
    const Rect inside = ClippedTo(canvas, rect);
    const int span = std::max(1, rect.H - 1);
    for (std::int32_t y = inside.Y; y < inside.Y + inside.H; ++y)
    {
        const int part = (y - rect.Y) * Opaque / span;
        const base::Rgb colour = {Mix(top.R, bottom.R, part), Mix(top.G, bottom.G, part), Mix(top.B, bottom.B, part)};
        const int alpha = Mix(topAlpha, bottomAlpha, part);
        std::uint8_t* pixel = canvas.At(inside.X, y);
        for (std::int32_t x = 0; x < inside.W; ++x, pixel += base::PixelBytes)
            Blend(pixel, colour, alpha);
    }
}

void FillRounded(Canvas& canvas, const Rect& rect, double radius, base::Rgb colour, int alpha)
{
    const Rect inside = ClippedTo(canvas, rect);
    const RoundBox box(rect, radius, 0);
    for (std::int32_t y = inside.Y; y < inside.Y + inside.H; ++y)
        for (std::int32_t x = inside.X; x < inside.X + inside.W; ++x)
            Blend(canvas.At(x, y), colour, base::RoundEven(box.Coverage(x, y) * alpha));
}

void OutlineRounded(Canvas& canvas, const Rect& rect, double radius, double thickness, base::Rgb colour, int alpha)
{
    const Rect inside = ClippedTo(canvas, rect);
    const RoundBox outer(rect, radius, 0), inner(rect, radius, thickness);
    // Only the rim is walked: what lies further inside is left alone.
    const std::int32_t rim = base::RoundEven(std::max(radius, thickness)) + 2;
    const std::int32_t hollowLeft = rect.X + rim, hollowRight = rect.X + rect.W - rim;
    for (std::int32_t y = inside.Y; y < inside.Y + inside.H; ++y)
    {
        const bool hollow = y >= rect.Y + rim && y < rect.Y + rect.H - rim;
        for (std::int32_t x = inside.X; x < inside.X + inside.W; ++x)
        {
            if (hollow && x >= hollowLeft && x < hollowRight)
                x = hollowRight;
            if (x >= inside.X + inside.W)
                break;
            const double ring = outer.Coverage(x, y) - inner.Coverage(x, y);
            Blend(canvas.At(x, y), colour, base::RoundEven(std::max(ring, 0.0) * alpha));
        }
    }
}

void DrawStroke(Canvas& canvas, double x1, double y1, double x2, double y2, double thickness, base::Rgb colour,
                int alpha)
{
    const double radius = thickness / 2;
    const std::int32_t left = base::Floor(std::min(x1, x2) - radius), top = base::Floor(std::min(y1, y2) - radius);
    const std::int32_t right = base::Floor(std::max(x1, x2) + radius), bottom = base::Floor(std::max(y1, y2) + radius);
    const Rect inside = ClippedTo(canvas, {left, top, right - left + 1, bottom - top + 1});
    for (std::int32_t y = inside.Y; y < inside.Y + inside.H; ++y)
        for (std::int32_t x = inside.X; x < inside.X + inside.W; ++x)
        {
            const double distance = base::DistanceToSegment(x + 0.5, y + 0.5, x1, y1, x2, y2);
            const double cover = std::clamp(radius + 0.5 - distance, 0.0, 1.0);
            Blend(canvas.At(x, y), colour, base::RoundEven(cover * alpha));
        }
}

void Draw(Canvas& canvas, const Image& image, std::int32_t x, std::int32_t y, int alpha)
{
    const Rect inside = ClippedTo(canvas, {x, y, image.Width, image.Height});
    for (std::int32_t row = inside.Y; row < inside.Y + inside.H; ++row)
    {
        const ImagePixel* from = image.Row(row - y) + (inside.X - x);
        std::uint8_t* to = canvas.At(inside.X, row);
        for (std::int32_t column = 0; column < inside.W; ++column, ++from, to += base::PixelBytes)
            if (const int share = from->Alpha * alpha / Opaque; share == Opaque)
                base::Put(to, from->Colour); // all that blending would do, as nearly everywhere
            else if (share != 0)
                Blend(to, from->Colour, share);
    }
}

void Stretch(Canvas& canvas, const Rect& rect, const base::ConstSurface& picture)
{
    if (picture.Width <= 0 || picture.Height <= 0)
        return;
    // The pixel of `of` that lies under the one `at` of `length`.
    const auto under = [](std::int32_t at, std::int32_t length, std::int32_t of)
    { return static_cast<std::int32_t>(std::int64_t{at} * of / length); };
    const Rect inside = ClippedTo(canvas, rect);
    for (std::int32_t y = inside.Y; y < inside.Y + inside.H; ++y)
    {
        const std::uint8_t* from = picture.Row(picture.Height - 1 - under(y - rect.Y, rect.H, picture.Height));
        std::uint8_t* to = canvas.At(inside.X, y);
        if (rect.W == picture.Width)
        {
            std::memcpy(to, from + base::PixelBytes * (inside.X - rect.X),
                        static_cast<std::size_t>(inside.W) * base::PixelBytes);
            continue;
        }
        for (std::int32_t x = inside.X; x < inside.X + inside.W; ++x, to += base::PixelBytes)
            base::CopyPixel(to, from + base::PixelBytes * under(x - rect.X, rect.W, picture.Width));
    }
}

std::int32_t MeasureText(std::string_view text, double size, double weight)
{
    return base::RoundEven(typeface::Width(ShownPart(text), {size, weight, 0}));
}

void DrawText(Canvas& canvas, const Rect& rect, std::string_view text, double size, double weight, base::Rgb colour,
              Align align)
{
    std::int32_t width = MeasureText(text, size, weight);
    for (; width > rect.W && size > 6; width = MeasureText(text, size, weight))
        size -= 0.5;
    const std::int32_t spare = rect.W - width;
    const std::int32_t x = rect.X + (align == Align::Left ? 0 : align == Align::Right ? spare : spare / 2);
    typeface::Draw(canvas.View(), x, LineTop(rect, size), {size, weight, 0}, ShownPart(text), colour);
}

void DrawLine(Canvas& canvas, const Rect& rect, std::int32_t x, std::string_view text, double size, base::Rgb colour)
{
    const typeface::Clip clip = {rect.X, rect.Y, rect.X + rect.W, rect.Y + rect.H};
    typeface::Draw(canvas.View(), x, LineTop(rect, size), {size, 1, 0}, ShownPart(text), colour, clip);
}

std::vector<std::string_view> BreakLines(std::string_view text, double size, double weight, std::int32_t width)
{
    std::vector<std::string_view> lines;
    while (!text.empty())
    {
        std::size_t end = std::min(text.find(' '), text.size());
        while (end < text.size())
        {
            const std::size_t next = std::min(text.find(' ', end + 1), text.size());
            if (MeasureText(text.substr(0, next), size, weight) > width)
                break;
            end = next;
        }
        lines.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

void DrawParagraph(Canvas& canvas, const Rect& rect, std::string_view text, double size, double weight,
                   base::Rgb colour, Align align)
{
    std::vector<std::string_view> lines = BreakLines(text, size, weight, rect.W);
    // No more lines than needed, and then as even as they get: no word stands alone at the end.
    const auto step = std::max(1, base::RoundEven(size));
    for (std::int32_t width = rect.W - step; width > 0; width -= step)
    {
        std::vector<std::string_view> narrower = BreakLines(text, size, weight, width);
        if (narrower.size() != lines.size())
            break;
        lines = std::move(narrower);
    }
    const std::int32_t height = base::RoundEven(typeface::LineHeight(size));
    std::int32_t y = rect.Y + (rect.H - height * static_cast<std::int32_t>(lines.size())) / 2;
    for (const std::string_view line : lines)
    {
        DrawText(canvas, {rect.X, y, rect.W, height}, line, size, weight, colour, align);
        y += height;
    }
}
}
