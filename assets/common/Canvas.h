// SPDX-License-Identifier: Zlib
// assets/common/Canvas.h: float pictures to paint on. Shapes are in Shapes.h, files in Bitmap.h.
// Pixel (0, 0) is the bottom left one, as in the game's bitmaps; pixel (x, y) covers x .. x + 1, y .. y + 1.
#pragma once
#include "assets/common/Colour.h"
#include "base/Pixels.h"

namespace assets
{
// One picture point. A is the coverage: 0 nothing painted yet, 1 wholly painted.
struct Pixel
{
    float R = 0, G = 0, B = 0, A = 0;
};

// Coordinates given to At, Colour and Set must lie inside; Blend and Shade leave out what lies outside.
struct Canvas : base::Grid<Pixel>
{
    Canvas(int width, int height) { Reset(width, height); } // see-through
    Canvas(int width, int height, Rgb fill);

    Rgb Colour(int x, int y) const;
    void Set(int x, int y, Rgb colour);
    // Paints over what is there with this opacity (0 to 1).
    void Blend(int x, int y, Rgb colour, double opacity);
    // Multiplies the colour that is there, faded by `amount`. For shadows and light.
    void Shade(int x, int y, Rgb factor, double amount = 1);
};

// A grey picture: coverage, shadow or distance maps.
struct Mask : base::Grid<float>
{
    Mask(int width, int height, float fill = 0) { Reset(width, height, fill); }
};

// Three box passes, close to a Gaussian of this radius (standard deviation, pixels). The edges go on as they are.
void Blur(Mask& mask, double radius);
void Blur(Canvas& canvas, double radius);

// The picture at another size, each new pixel the mean of what it covers.
Canvas Resized(const Canvas& canvas, int width, int height);
// Paints `picture` with its lower left corner at (x, y), respecting its coverage.
void Paste(Canvas& canvas, const Canvas& picture, int x, int y, double opacity = 1);
Canvas FlippedX(const Canvas& canvas);
}
