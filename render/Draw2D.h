// SPDX-License-Identifier: Zlib
// render/Draw2D.h: pictures and rectangles of the head-up display, over everything. Frame pixels, y upward.
#pragma once
#include "base/Pixels.h"
#include "render/PicArray.h"

#include <cstdint>

namespace render
{
// Copies the picture opaquely, black texels too, its bottom-left pixel at (x, y), clipped on all four sides.
void DrawPic2D(const base::Surface& surface, const Picture& picture, std::int32_t x, std::int32_t y);
// Columns x to x + w and rows y to y + h, both ends included, clipped. Sums are 16-bit; one that does not fit draws
// nothing.
void FillRect2D(const base::Surface& surface, std::int16_t x, std::int16_t y, std::int16_t w, std::int16_t h,
                base::Rgb colour);
}
