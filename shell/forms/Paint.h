// shell/forms/Paint.h: painting a form onto a canvas of the window's client size: fills, rounded boxes, pictures, text,
// and the controls made of them. Pixels, y downward from the top row; the canvas keeps bottom-up rows of blue, green,
// red, padded to 4 bytes, as a window presents them.
#pragma once
#include "render/PicArray.h"
#include "shell/forms/Control.h"
#include "shell/forms/Marks.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace forms
{
struct Colour
{
    std::uint8_t R = 0, G = 0, B = 0;
};

struct Canvas
{
    std::int32_t Width = 0, Height = 0, RowBytes = 0;
    std::vector<std::uint8_t> Bytes;

    void Resize(std::int32_t width, std::int32_t height); // keeps the memory where the size stays
    std::uint8_t* At(std::int32_t x, std::int32_t y);     // y downward; the pixel must lie on the canvas
};

// A picture scaled once for many paintings: rows from the top, colour and coverage a pixel.
struct Image
{
    struct Pixel
    {
        std::uint8_t B = 0, G = 0, R = 0, A = 0;
    };
    std::int32_t Width = 0, Height = 0;
    std::vector<Pixel> Pixels;
};

// Area average where it shrinks, linear where it grows. seeThrough: exactly black pixels are not painted.
Image Scale(const render::Picture& picture, std::int32_t width, std::int32_t height, bool seeThrough);

// alpha: 0 nothing, 255 covers. All drawing is clipped to the canvas.
void Fill(Canvas& canvas, const Rect& rect, Colour colour, int alpha = 255);
void FillDownward(Canvas& canvas, const Rect& rect, Colour top, int topAlpha, Colour bottom, int bottomAlpha);
void FillRounded(Canvas& canvas, const Rect& rect, double radius, Colour colour, int alpha = 255);
void OutlineRounded(Canvas& canvas, const Rect& rect, double radius, double thickness, Colour colour, int alpha = 255);
// A straight stroke with round ends, from point to point (the corner between four pixels is a whole number).
void DrawStroke(Canvas& canvas, double x1, double y1, double x2, double y2, double thickness, Colour colour,
                int alpha = 255);
void Draw(Canvas& canvas, const Image& image, std::int32_t x, std::int32_t y, int alpha = 255);
// Stretches bottom-up rows over the rectangle, nearest pixel.
void Stretch(Canvas& canvas, const Rect& rect, std::int32_t width, std::int32_t height, std::int32_t rowBytes,
             const std::uint8_t* bits);
// One line, centred vertically in the rectangle. Text wider than the rectangle is set smaller. weight: 1 regular.
void DrawText(Canvas& canvas, const Rect& rect, std::string_view text, double size, double weight, Colour colour,
              Align align);
// The same over as many lines as the text needs, broken at blanks; together centred vertically.
void DrawParagraph(Canvas& canvas, const Rect& rect, std::string_view text, double size, double weight, Colour colour,
                   Align align);
// The lines that a text takes in that width. A word wider than that has a line of its own.
std::vector<std::string_view> BreakLines(std::string_view text, double size, double weight, std::int32_t width);
// One line from a column on, in its own size, cut off at the edges of the rectangle.
void DrawLine(Canvas& canvas, const Rect& rect, std::int32_t x, std::string_view text, double size, Colour colour);
// Pixels that the text advances.
std::int32_t MeasureText(std::string_view text, double size, double weight);

// A bar filled from the left to a share of 0 to 1, with its grip: for the picture boxes that are levels.
void DrawLevel(Canvas& canvas, const Rect& rect, double share, bool enabled);

// Whoever owns the pictures of the Picture controls.
struct PicturePainter
{
    virtual ~PicturePainter() = default;
    virtual void PaintPicture(Canvas& canvas, const Control& control, Rect place) = 0;
};

// Paints every shown control; only what lies on the topmost frame over the whole window, where there is one.
void PaintForm(Canvas& canvas, const Form& form, const Marks& marks, PicturePainter& pictures);
}
