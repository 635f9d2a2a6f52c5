// SPDX-License-Identifier: Zlib
#include "assets/hud/Inside.h"

#include "assets/common/Bitmap.h"
#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"

namespace assets::hud
{
namespace
{
constexpr int Width = 107, Height = 80;
constexpr int Fine = 4; // painted larger and reduced

using Outline = std::vector<Point>; // in pixels of the finished picture

Outline Scaled(Outline outline)
{
    for (Point& p : outline)
        p = {p.X * Fine, p.Y * Fine};
    return outline;
}

void Fill(Canvas& canvas, const Outline& outline, Rgb colour, double opacity = 1)
{
    FillPolygon(canvas, Scaled(outline), colour, opacity);
}

void Tube(Canvas& canvas, const Outline& line, double thickness)
{
    const Outline big = Scaled(line);
    Stroke(canvas, big, thickness * Fine, Hex(0x17181B));
    Stroke(canvas, big, thickness * Fine * 0.62, Hex(0x45474C));
    Outline raised = big;
    for (Point& p : raised)
        p = {p.X - thickness, p.Y + thickness};
    Stroke(canvas, raised, thickness * Fine * 0.18, Hex(0xB9A995));
}

// Late sun over the lake, out of focus.
void PaintOutside(Canvas& canvas)
{
    for (int y = 0; y < canvas.Height; ++y)
        for (int x = 0; x < canvas.Width; ++x)
        {
            const double u = static_cast<double>(x) / canvas.Width, v = static_cast<double>(y) / canvas.Height;
            const double ridge = 0.60 + 0.05 * Fbm(u * 5, 2, 5, 3), shore = 0.53;
            Rgb colour = Mix(Hex(0xFFD9A0), Hex(0x86A4C4), SmoothStep(0.55, 0.95, v));
            if (v < ridge)
                colour = Mix(Hex(0x7C7C92), Hex(0x4E6A58), SmoothStep(ridge, shore, v));
            if (v < shore)
                colour = Mix(Hex(0xF2C893), Hex(0x5C7486), SmoothStep(shore, 0.44, v));
            if (v < 0.45)
                colour = Mix(Hex(0x6E6C6A), Hex(0x4A4A4E), SmoothStep(0.45, 0.25, v));
            canvas.Set(x, y, colour);
        }
    FillDisc(canvas, {canvas.Width * 0.78, canvas.Height * 0.70}, 46, Hex(0xFFF2CC), 0.8, 60);
    Blur(canvas, 5);
}

// Roof lining and pillars round the rear window, then the side panels.
void PaintShell(Canvas& canvas)
{
    Fill(canvas, {{0, 80}, {107, 80}, {107, 66}, {80, 62}, {53, 63.5}, {27, 62}, {0, 66}}, Hex(0x4A4038));
    Fill(canvas, {{0, 66}, {27, 62}, {22, 60}, {0, 62.5}}, Hex(0x2B2622));
    Fill(canvas, {{107, 66}, {80, 62}, {85, 60}, {107, 62.5}}, Hex(0x2B2622));
    Fill(canvas, {{27, 62.5}, {31, 62}, {21, 38}, {8, 38}}, Hex(0x352E2A));
    Fill(canvas, {{80, 62.5}, {76, 62}, {86, 38}, {99, 38}}, Hex(0x3E352E));
    Fill(canvas, {{0, 40}, {107, 40}, {107, 0}, {0, 0}}, Hex(0x211F20));
    Fill(canvas, {{16, 43}, {91, 43}, {99, 36}, {8, 36}}, Hex(0x37322F)); // parcel shelf
    Fill(canvas, {{16, 43}, {91, 43}, {92, 42}, {15, 42}}, Hex(0x8A7660));
}

void PaintRollCage(Canvas& canvas)
{
    Tube(canvas, {{10, 0}, {11, 58}, {17, 66}, {90, 66}, {96, 58}, {97, 0}}, 3.4);
    Tube(canvas, {{14, 60}, {84, 38}}, 2.4);
}

// A seat whose middle is at column x, its bolsters lit from the right.
void PaintSeat(Canvas& canvas, double x)
{
    const double half = x < 50 ? 19 : 15, top = x < 50 ? 47 : 42;
    Fill(canvas,
         {{x - half, 0},
          {x - half + 2, top - 12},
          {x - half + 7, top},
          {x + half - 7, top},
          {x + half - 2, top - 12},
          {x + half, 0}},
         Hex(0x1B1A1D));
    Fill(canvas,
         {{x - half + 5, 0},
          {x - half + 7, top - 13},
          {x - half + 10, top - 3},
          {x + half - 10, top - 3},
          {x + half - 7, top - 13},
          {x + half - 5, 0}},
         Hex(0x8E1C22));
    Fill(canvas,
         {{x + half - 7, top - 1},
          {x + half - 2.5, top - 12},
          {x + half - 1, 0},
          {x + half - 3, 0},
          {x + half - 5, top - 12}},
         Hex(0x6A5648));
    Fill(canvas, {{x - 7, top + 13}, {x + 7, top + 13}, {x + 9, top + 2}, {x - 9, top + 2}}, Hex(0x232124));
    Fill(canvas, {{x + 5, top + 13}, {x + 7, top + 13}, {x + 9, top + 2}, {x + 7, top + 2}}, Hex(0x6A5648));
}

// Falls in from the right.
void ShadeByEvening(Canvas& canvas)
{
    for (int y = 0; y < canvas.Height; ++y)
        for (int x = 0; x < canvas.Width; ++x)
        {
            const double u = static_cast<double>(x) / canvas.Width, v = static_cast<double>(y) / canvas.Height;
            const double grain = 1 + 0.06 * Noise(x * 0.35, y * 0.35, 77);
            canvas.Shade(
                x, y, Mix({0.82, 0.86, 1.0}, {1.12, 1.02, 0.88}, u) * grain * Lerp(0.72, 1.06, SmoothStep(0, 0.7, v)));
        }
}
}

void WriteInside(const std::string& path)
{
    Canvas canvas(Width * Fine, Height * Fine);
    PaintOutside(canvas);
    PaintShell(canvas);
    PaintRollCage(canvas);
    PaintSeat(canvas, 34);
    PaintSeat(canvas, 84);
    ShadeByEvening(canvas);
    WriteBmp(path, Resized(canvas, Width, Height));
}
}
