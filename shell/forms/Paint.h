// SPDX-License-Identifier: Zlib
// shell/forms/Paint.h: painting onto a canvas of the window's client size: fills, rounded boxes, strokes, pictures and
// text. What controls are made of; the controls themselves are in PaintForm.h.
// Pixels, y downward from the top row. Everything is clipped to the canvas; rectangles may lie anywhere, and one
// without width or height paints nothing. `alpha` is opacity: 0 nothing, 255 covers. Each call paints over what is
// there; nothing fails. Runs on the window's thread.
#pragma once
#include "base/Pixels.h"
#include "render/PicArray.h"
#include "shell/forms/Control.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace forms
{
// The bytes as a window presents them: bottom-up rows of blue, green, red, padded to 4 bytes. 1 x 1 pixels at least,
// once it has been resized.
struct Canvas
{
    std::int32_t Width = 0, Height = 0, RowBytes = 0; // only Resize writes them
    std::vector<std::uint8_t> Bytes;

    // All black where the size is new; keeps memory and pixels where it stays. Limited to 1 … the largest picture.
    void Resize(std::int32_t width, std::int32_t height);
    std::uint8_t* At(std::int32_t x, std::int32_t y) { return View().At(x, Height - 1 - y); } // must lie on the canvas
    base::Surface View() { return {Bytes.data(), RowBytes, Width, Height}; }                  // row 0 the bottom one
};

// A pixel of a scaled picture and how much of it there is: 0 nothing, 255 all.
struct ImagePixel
{
    base::Rgb Colour;
    std::uint8_t Alpha = 0;
};

// A picture scaled once for many paintings. Row 0 is the top one.
using Image = base::Grid<ImagePixel>;

void Fill(Canvas& canvas, const Rect& rect, base::Rgb colour, int alpha = 255);
// Colour and opacity go evenly from the topmost row of the rectangle to its bottommost.
void FillDownward(Canvas& canvas, const Rect& rect, base::Rgb top, int topAlpha, base::Rgb bottom, int bottomAlpha);
// Smooth edges; a radius beyond half of the shorter side is that half.
void FillRounded(Canvas& canvas, const Rect& rect, double radius, base::Rgb colour, int alpha = 255);
// The rim of such a box, from its border inward.
void OutlineRounded(Canvas& canvas, const Rect& rect, double radius, double thickness, base::Rgb colour,
                    int alpha = 255);
// A straight stroke with round ends, from point to point (the corner between four pixels is a whole number).
void DrawStroke(Canvas& canvas, double x1, double y1, double x2, double y2, double thickness, base::Rgb colour,
                int alpha = 255);
void Draw(Canvas& canvas, const Image& image, std::int32_t x, std::int32_t y, int alpha = 255);
// Stretches a bottom-up picture over the rectangle, nearest pixel.
void Stretch(Canvas& canvas, const Rect& rect, const base::ConstSurface& picture);

// Texts are UTF-8; of a long one the part that a line shows (LineEdit.h). size: pixels from line to line, about.
// weight: of the strokes, 1 regular.

// One line, centred vertically in the rectangle. Text wider than the rectangle is set smaller, down to size 6.
void DrawText(Canvas& canvas, const Rect& rect, std::string_view text, double size, double weight, base::Rgb colour,
              Align align);
// The same over as many lines as the text needs, broken at blanks; together centred vertically.
void DrawParagraph(Canvas& canvas, const Rect& rect, std::string_view text, double size, double weight,
                   base::Rgb colour, Align align);
// The lines that a text takes in that width. A word wider than that has a line of its own.
std::vector<std::string_view> BreakLines(std::string_view text, double size, double weight, std::int32_t width);
// One line from a column on, in its own size, cut off at the edges of the rectangle.
void DrawLine(Canvas& canvas, const Rect& rect, std::int32_t x, std::string_view text, double size, base::Rgb colour);
// Pixels that the text advances.
std::int32_t MeasureText(std::string_view text, double size, double weight);
}
