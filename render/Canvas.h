// SPDX-License-Identifier: Zlib
// render/Canvas.h: where triangles are drawn: pixels, each with its depth, of the screen's size. Borrows all of it.
#pragma once
#include "base/Pixels.h"
#include "render/PicArray.h"
#include "render/Screen.h"

namespace render
{
struct Canvas
{
    const render::Screen& Screen; // of its size, near plane and pixel loops
    PicArray2D& Pixels;
    base::Grid<float>& Depth;
    Marks* Drawn = nullptr; // where there are any

    // The frame itself. Any screen will do for it.
    Canvas(render::Screen& screen) : Screen(screen), Pixels(screen.Frame), Depth(screen.Depth) {}
    Canvas(const render::Screen& screen, Layer& layer)
        : Screen(screen), Pixels(layer.Pixels), Depth(layer.Depth), Drawn(&layer.Drawn)
    {
    }
};
}
