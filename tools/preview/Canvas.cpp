// SPDX-License-Identifier: Zlib
#include "tools/preview/Canvas.h"

#include "base/Geometry.h"
#include "base/Numbers.h"
#include "typeface/Typeface.h"

#include <algorithm>
#include <cmath>

namespace preview
{
namespace
{
constexpr base::Rgb Edge = {16, 18, 22}; // around letters

// How much of a pixel lies inside, by how far its middle does; smooth over the width of one.
double Inside(double depth)
{
    return std::clamp(depth + 0.5, 0.0, 1.0);
}

// From the first to the last whole pixel of a stretch, within a picture of that length.
struct Span
{
    std::int32_t First, Last;

    Span(double least, double most, std::int32_t length)
        : First(base::Floor(std::clamp(least, 0.0, static_cast<double>(length)))),
          Last(base::Floor(std::clamp(most, -1.0, static_cast<double>(length - 1))))
    {
    }
};
}

Canvas::Canvas(std::int32_t width, std::int32_t height, base::Rgb fill)
{
    Pixels.Reset(width, height);
    const base::Surface surface = Pixels.View();
    for (std::int32_t row = 0; row < height; ++row)
        for (std::int32_t x = 0; x < width; ++x)
            base::Put(surface.At(x, row), fill);
}

base::Rgb Canvas::At(std::int32_t x, std::int32_t y) const
{
    return base::Get(Pixels.View().At(x, Pixels.Height - 1 - y));
}

void Canvas::Blend(std::int32_t x, std::int32_t y, Ink ink, double coverage)
{
    std::uint8_t* pixel = Pixels.View().At(x, Pixels.Height - 1 - y);
    const base::Rgb below = base::Get(pixel);
    const double share = ink.Alpha * coverage;
    const auto mix = [share](std::uint8_t from, std::uint8_t to)
    { return base::RoundByte(from + (to - from) * share); };
    base::Put(pixel, {mix(below.R, ink.Colour.R), mix(below.G, ink.Colour.G), mix(below.B, ink.Colour.B)});
}

template <class Coverage> void Canvas::Paint(Spot least, Spot most, Ink ink, Coverage&& coverage)
{
    const Span columns(least.X, most.X, Pixels.Width), rows(least.Y, most.Y, Pixels.Height);
    for (std::int32_t y = rows.First; y <= rows.Last; ++y)
        for (std::int32_t x = columns.First; x <= columns.Last; ++x)
            if (const double share = coverage(x + 0.5, y + 0.5); share > 0)
                Blend(x, y, ink, share);
}

void Canvas::Fill(Spot topLeft, Spot bottomRight, Ink ink)
{
    const double left = std::round(topLeft.X), top = std::round(topLeft.Y);
    const double right = std::round(bottomRight.X), bottom = std::round(bottomRight.Y);
    Paint({left, top}, {right - 1, bottom - 1}, ink, [](double, double) { return 1.0; });
}

void Canvas::Disc(Spot centre, double radius, Ink ink)
{
    Paint({centre.X - radius - 1, centre.Y - radius - 1}, {centre.X + radius + 1, centre.Y + radius + 1}, ink,
          [&](double x, double y) { return Inside(radius - std::hypot(x - centre.X, y - centre.Y)); });
}

void Canvas::Ring(Spot centre, double radius, double width, Ink ink)
{
    const double reach = radius + width / 2 + 1;
    Paint({centre.X - reach, centre.Y - reach}, {centre.X + reach, centre.Y + reach}, ink,
          [&](double x, double y)
          { return Inside(width / 2 - std::abs(std::hypot(x - centre.X, y - centre.Y) - radius)); });
}

// Row by row, so that a long slanting line does not cost its whole box.
void Canvas::Line(Spot from, Spot to, double width, Ink ink)
{
    if (from.Y > to.Y)
        std::swap(from, to);
    const double reach = width / 2 + 1, height = to.Y - from.Y;
    const Span rows(from.Y - reach, to.Y + reach, Pixels.Height);
    for (std::int32_t y = rows.First; y <= rows.Last; ++y)
    {
        const auto across = [&](double level)
        { return height > 0 ? from.X + (to.X - from.X) * std::clamp((level - from.Y) / height, 0.0, 1.0) : from.X; };
        const double upper = across(y + 0.5 - reach), lower = height > 0 ? across(y + 0.5 + reach) : to.X;
        Paint({std::min(upper, lower) - reach, static_cast<double>(y)},
              {std::max(upper, lower) + reach, static_cast<double>(y)}, ink,
              [&](double px, double py)
              { return Inside(width / 2 - base::DistanceToSegment(px, py, from.X, from.Y, to.X, to.Y)); });
    }
}

void Canvas::Tint(const Canvas& mask, Ink ink)
{
    for (std::int32_t y = 0; y < Height(); ++y)
        for (std::int32_t x = 0; x < Width(); ++x)
            if (const std::uint8_t share = mask.At(x, y).R; share > 0)
                Blend(x, y, ink, share / 255.0);
}

void Canvas::Paste(const base::ConstSurface& picture, std::int32_t left, std::int32_t top)
{
    const base::Surface surface = Pixels.View();
    const std::int32_t bottom = Pixels.Height - top - picture.Height; // row of the picture's row 0
    for (std::int32_t row = 0; row < picture.Height; ++row)
        for (std::int32_t x = 0; x < picture.Width; ++x)
            if (surface.Has(left + x, bottom + row))
                base::CopyPixel(surface.At(left + x, bottom + row), picture.At(x, row));
}

void Canvas::Write(Spot topLeft, double size, base::Rgb colour, std::string_view utf8, double right)
{
    typeface::Clip clip;
    clip.Right = base::Floor(std::clamp(right, 0.0, static_cast<double>(clip.Right)));
    typeface::Draw(Pixels.View(), topLeft.X, topLeft.Y, {size, 1, 0}, utf8, colour, clip);
}

void Canvas::WriteCentred(Spot centre, double size, base::Rgb colour, std::string_view utf8)
{
    const double x = std::round(centre.X - typeface::Width(utf8, size) / 2);
    const double y = std::round(centre.Y - typeface::LineHeight(size) / 2);
    for (const int dx : {-1, 0, 1})
        for (const int dy : {-1, 0, 1})
            if (dx != 0 || dy != 0)
                typeface::Draw(Pixels.View(), x + dx, y + dy, {size, 1, 0}, utf8, Edge);
    typeface::Draw(Pixels.View(), x, y, {size, 1, 0}, utf8, colour);
}

base::Bitmap Resized(const base::ConstSurface& picture, std::int32_t width, std::int32_t height)
{
    base::Bitmap result;
    result.Reset(width, height);
    const base::Surface to = result.View();
    // The first of the source's pixels for each of ours, and one more: where the last one ends.
    const auto first = [](std::int32_t place, std::int32_t from, std::int32_t length)
    { return static_cast<std::int32_t>(static_cast<std::int64_t>(place) * from / length); };
    for (std::int32_t row = 0; row < height; ++row)
    {
        const std::int32_t low = first(row, picture.Height, height);
        const std::int32_t high = std::max(low + 1, first(row + 1, picture.Height, height));
        for (std::int32_t x = 0; x < width; ++x)
        {
            const std::int32_t left = first(x, picture.Width, width);
            const std::int32_t right = std::max(left + 1, first(x + 1, picture.Width, width));
            const double count = static_cast<double>(high - low) * (right - left);
            for (std::int32_t c = 0; c < base::PixelBytes; ++c)
            {
                double sum = 0;
                for (std::int32_t v = low; v < high; ++v)
                    for (std::int32_t u = left; u < right; ++u)
                        sum += picture.At(u, v)[c];
                to.At(x, row)[c] = base::RoundByte(sum / count);
            }
        }
    }
    return result;
}
}
