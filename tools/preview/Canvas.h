// SPDX-License-Identifier: Zlib
// tools/preview/Canvas.h: a picture to draw on, with smooth edges. Pixels, x to the right, y downward from the top; the
// pixel (x, y) covers x to x + 1 and y to y + 1. What lies outside is left out.
#pragma once
#include "base/Pixels.h"

#include <cstdint>
#include <string_view>

namespace preview
{
struct Spot
{
    double X = 0, Y = 0;
};

struct Ink
{
    base::Rgb Colour;
    double Alpha = 1; // 0 nothing to 1 opaque
};

// Of what is written beside pictures.
inline constexpr base::Rgb Paper = {30, 32, 36}, Lettering = {222, 224, 228};

class Canvas
{
public:
    Canvas(std::int32_t width, std::int32_t height, base::Rgb fill);

    std::int32_t Width() const { return Pixels.Width; }
    std::int32_t Height() const { return Pixels.Height; }
    base::ConstSurface View() const { return Pixels.View(); }
    base::Rgb At(std::int32_t x, std::int32_t y) const; // must lie inside

    void Fill(Spot topLeft, Spot bottomRight, Ink ink); // whole pixels: the nearest
    void Disc(Spot centre, double radius, Ink ink);
    void Ring(Spot centre, double radius, double width, Ink ink); // width to both sides of the radius, by halves
    void Line(Spot from, Spot to, double width, Ink ink);
    // As much as the mask, of the same size, is white.
    void Tint(const Canvas& mask, Ink ink);
    void Paste(const base::ConstSurface& picture, std::int32_t left, std::int32_t top);

    // One line of text, its box beginning there; nothing of it beyond `right`.
    void Write(Spot topLeft, double size, base::Rgb colour, std::string_view utf8, double right = 1 << 20);
    // Around the middle of its box, light on a dark edge, to be read on any ground.
    void WriteCentred(Spot centre, double size, base::Rgb colour, std::string_view utf8);

private:
    void Blend(std::int32_t x, std::int32_t y, Ink ink, double coverage);
    // Blends coverage(x, y), asked for the middles of the pixels, into those from `least` to `most`.
    template <class Coverage> void Paint(Spot least, Spot most, Ink ink, Coverage&& coverage);

    base::Bitmap Pixels;
};

// The picture at another size, each pixel the mean of what it covers.
base::Bitmap Resized(const base::ConstSurface& picture, std::int32_t width, std::int32_t height);
}
