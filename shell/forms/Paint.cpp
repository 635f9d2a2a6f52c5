#include "shell/forms/Paint.h"

#include "base/Math.h"
#include "base/Numbers.h"
#include "typeface/Typeface.h"

#include <algorithm>

namespace forms
{
namespace
{
std::uint8_t Mix(int below, int above, int alpha)
{
    return static_cast<std::uint8_t>((below * (255 - alpha) + above * alpha + 127) / 255);
}

void Blend(std::uint8_t* pixel, Colour colour, int alpha)
{
    pixel[0] = Mix(pixel[0], colour.B, alpha);
    pixel[1] = Mix(pixel[1], colour.G, alpha);
    pixel[2] = Mix(pixel[2], colour.R, alpha);
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
    RowBytes = (width * 3 + 3) / 4 * 4;
    Bytes.assign(static_cast<std::size_t>(RowBytes) * static_cast<std::size_t>(height), 0);
}

std::uint8_t* Canvas::At(std::int32_t x, std::int32_t y)
{
    return Bytes.data() + static_cast<std::size_t>(Height - 1 - y) * static_cast<std::size_t>(RowBytes) +
           3 * static_cast<std::size_t>(x);
}

void Fill(Canvas& canvas, const Rect& rect, Colour colour, int alpha)
{
    FillDownward(canvas, rect, colour, alpha, colour, alpha);
}

void FillDownward(Canvas& canvas, const Rect& rect, Colour top, int topAlpha, Colour bottom, int bottomAlpha)
{
    const Rect inside = ClippedTo(canvas, rect);
    const int span = std::max(1, rect.H - 1);
    for (std::int32_t y = inside.Y; y < inside.Y + inside.H; ++y)
    {
        const int part = (y - rect.Y) * 255 / span;
        const Colour colour = {Mix(top.R, bottom.R, part), Mix(top.G, bottom.G, part), Mix(top.B, bottom.B, part)};
        const int alpha = Mix(topAlpha, bottomAlpha, part);
        std::uint8_t* pixel = canvas.At(inside.X, y);
        for (std::int32_t x = 0; x < inside.W; ++x, pixel += 3)
            Blend(pixel, colour, alpha);
    }
}

void FillRounded(Canvas& canvas, const Rect& rect, double radius, Colour colour, int alpha)
{
    const Rect inside = ClippedTo(canvas, rect);
    const RoundBox box(rect, radius, 0);
    for (std::int32_t y = inside.Y; y < inside.Y + inside.H; ++y)
        for (std::int32_t x = inside.X; x < inside.X + inside.W; ++x)
            Blend(canvas.At(x, y), colour, base::RoundEven(box.Coverage(x, y) * alpha));
}

void OutlineRounded(Canvas& canvas, const Rect& rect, double radius, double thickness, Colour colour, int alpha)
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

void DrawStroke(Canvas& canvas, double x1, double y1, double x2, double y2, double thickness, Colour colour, int alpha)
{
    const double radius = thickness / 2, dx = x2 - x1, dy = y2 - y1;
    const double length = dx * dx + dy * dy;
    const std::int32_t left = base::Floor(std::min(x1, x2) - radius), top = base::Floor(std::min(y1, y2) - radius);
    const std::int32_t right = base::Floor(std::max(x1, x2) + radius), bottom = base::Floor(std::max(y1, y2) + radius);
    const Rect inside = ClippedTo(canvas, {left, top, right - left + 1, bottom - top + 1});
    for (std::int32_t y = inside.Y; y < inside.Y + inside.H; ++y)
        for (std::int32_t x = inside.X; x < inside.X + inside.W; ++x)
        {
            const double px = x + 0.5 - x1, py = y + 0.5 - y1;
            const double along = length > 0 ? std::clamp((px * dx + py * dy) / length, 0.0, 1.0) : 0.0;
            const double ox = px - along * dx, oy = py - along * dy;
            const double cover = std::clamp(radius + 0.5 - base::Sqrt(ox * ox + oy * oy), 0.0, 1.0);
            Blend(canvas.At(x, y), colour, base::RoundEven(cover * alpha));
        }
}

void Draw(Canvas& canvas, const Image& image, std::int32_t x, std::int32_t y, int alpha)
{
    const Rect inside = ClippedTo(canvas, {x, y, image.Width, image.Height});
    for (std::int32_t row = inside.Y; row < inside.Y + inside.H; ++row)
    {
        const Image::Pixel* from = image.Pixels.data() +
                                   static_cast<std::size_t>(row - y) * static_cast<std::size_t>(image.Width) +
                                   (inside.X - x);
        std::uint8_t* to = canvas.At(inside.X, row);
        for (std::int32_t column = 0; column < inside.W; ++column, ++from, to += 3)
            Blend(to, {from->R, from->G, from->B}, from->A * alpha / 255);
    }
}

void Stretch(Canvas& canvas, const Rect& rect, std::int32_t width, std::int32_t height, std::int32_t rowBytes,
             const std::uint8_t* bits)
{
    if (width <= 0 || height <= 0)
        return;
    const Rect inside = ClippedTo(canvas, rect);
    for (std::int32_t y = inside.Y; y < inside.Y + inside.H; ++y)
    {
        const auto fromY = static_cast<std::int32_t>(static_cast<std::int64_t>(y - rect.Y) * height / rect.H);
        const std::uint8_t* from =
            bits + static_cast<std::size_t>(height - 1 - fromY) * static_cast<std::size_t>(rowBytes);
        std::uint8_t* to = canvas.At(inside.X, y);
        for (std::int32_t x = inside.X; x < inside.X + inside.W; ++x, to += 3)
        {
            const auto fromX = static_cast<std::int32_t>(static_cast<std::int64_t>(x - rect.X) * width / rect.W);
            std::copy_n(from + 3 * static_cast<std::size_t>(fromX), 3, to);
        }
    }
}

std::int32_t MeasureText(std::string_view text, double size, double weight)
{
    return base::RoundEven(typeface::Width(ShownPart(text), {size, weight, 0}));
}

void DrawText(Canvas& canvas, const Rect& rect, std::string_view text, double size, double weight, Colour colour,
              Align align)
{
    std::int32_t width = MeasureText(text, size, weight);
    for (; width > rect.W && size > 6; width = MeasureText(text, size, weight))
        size -= 0.5;
    const std::int32_t spare = rect.W - width;
    const std::int32_t x = rect.X + (align == Align::Left ? 0 : align == Align::Right ? spare : spare / 2);
    const typeface::Surface surface = {canvas.Bytes, canvas.Width, canvas.Height, canvas.RowBytes};
    typeface::Draw(surface, x, LineTop(rect, size), {size, weight, 0}, ShownPart(text), {colour.R, colour.G, colour.B});
}

void DrawLine(Canvas& canvas, const Rect& rect, std::int32_t x, std::string_view text, double size, Colour colour)
{
    const typeface::Surface surface = {canvas.Bytes, canvas.Width, canvas.Height, canvas.RowBytes};
    const typeface::Clip clip = {rect.X, rect.Y, rect.X + rect.W, rect.Y + rect.H};
    typeface::Draw(surface, x, LineTop(rect, size), {size, 1, 0}, ShownPart(text), {colour.R, colour.G, colour.B},
                   clip);
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

void DrawParagraph(Canvas& canvas, const Rect& rect, std::string_view text, double size, double weight, Colour colour,
                   Align align)
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
