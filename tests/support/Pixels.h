// SPDX-License-Identifier: Zlib
// tests/support/Pixels.h: pixels of a form's canvas, and a picture to paint there.
#pragma once
#include "render/PicArray.h"
#include "shell/forms/Paint.h"

#include <array>

namespace support
{
using Rgb = std::array<int, 3>;

// y downward.
inline Rgb PixelAt(forms::Canvas& canvas, std::int32_t x, std::int32_t y)
{
    const std::uint8_t* pixel = canvas.At(x, y);
    return {pixel[2], pixel[1], pixel[0]};
}

inline Rgb ToRgb(base::Rgb colour)
{
    return {colour.R, colour.G, colour.B};
}

inline render::Picture Checker(std::int32_t width, std::int32_t height)
{
    render::Picture picture;
    picture.Info.Width = width;
    picture.Info.Height = height;
    picture.Pixels.Allocate(height, base::PaddedRow(width));
    for (std::int32_t y = 0; y < height; ++y)
        for (std::int32_t x = 0; x < width; ++x)
            picture.Pixels.Row(y)[3 * x + 2] = (x + y) % 2 == 0 ? 200 : 0;
    return picture;
}
}
