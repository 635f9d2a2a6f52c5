// SPDX-License-Identifier: Zlib
#include "render/Draw2D.h"

#include "base/Numbers.h"

#include <algorithm>
#include <cstring>

namespace render
{
void DrawPic2D(const base::Surface& surface, const Picture& picture, std::int32_t x, std::int32_t y)
{
    const base::ConstSurface pixels = MakeSurface(picture);
    const std::int64_t left = x, bottom = y; // their sums with a size may need more than 32 bits
    const auto first = static_cast<std::int32_t>(std::max<std::int64_t>(left, 0));
    const auto last = static_cast<std::int32_t>(std::min<std::int64_t>(left + pixels.Width, surface.Width));
    const auto top = static_cast<std::int32_t>(std::min<std::int64_t>(bottom + pixels.Height, surface.Height));
    if (first >= last)
        return;
    for (std::int32_t row = std::max(y, 0); row < top; ++row)
        std::memcpy(surface.At(first, row), pixels.At(first - x, row - y),
                    static_cast<std::size_t>(last - first) * base::PixelBytes);
}

void FillRect2D(const base::Surface& surface, std::int16_t x, std::int16_t y, std::int16_t w, std::int16_t h,
                base::Rgb colour)
{
    const std::int32_t endX = x + w, endY = y + h;
    if (base::Wrap16(endX) != endX || base::Wrap16(endY) != endY)
        return;
    const std::int32_t lastX = std::min(endX, surface.Width - 1), lastY = std::min(endY, surface.Height - 1);
    for (std::int32_t row = std::max<std::int32_t>(y, 0); row <= lastY; ++row)
        for (std::int32_t column = std::max<std::int32_t>(x, 0); column <= lastX; ++column)
            base::Put(surface.At(column, row), colour);
}
}
