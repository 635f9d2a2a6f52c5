#include "render/Draw2D.h"

#include "base/Numbers.h"

#include <algorithm>
#include <cstring>

namespace render
{
Surface FrameSurface(Screen& screen)
{
    return {screen.Frame.Bytes.data(), screen.Frame.RowBytes, screen.ScreenW, screen.ScreenH};
}

void DrawPic2D(const Surface& surface, const Picture& picture, std::int32_t x, std::int32_t y)
{
    const std::int32_t width = std::min(picture.Info.Width, picture.Pixels.RowBytes / 3);
    const std::int32_t height = std::min(picture.Info.Height, picture.Pixels.Rows);
    const std::int64_t left = x, bottom = y;
    const std::int64_t first = std::max<std::int64_t>(left, 0),
                       last = std::min<std::int64_t>(left + width, surface.Width);
    const std::int64_t top = std::min<std::int64_t>(bottom + height, surface.Height);
    if (first >= last)
        return;
    for (std::int64_t row = std::max<std::int64_t>(bottom, 0); row < top; ++row)
        std::memcpy(surface.Bytes + row * surface.RowBytes + first * 3,
                    picture.Pixels.Row(static_cast<std::int32_t>(row - bottom)) + (first - left) * 3,
                    static_cast<std::size_t>(last - first) * 3);
}

void FillRect2D(const Surface& surface, std::int16_t x, std::int16_t y, std::int16_t w, std::int16_t h, Rgb colour)
{
    const std::int32_t endX = x + w, endY = y + h;
    if (base::Wrap16(endX) != endX || base::Wrap16(endY) != endY)
        return;
    const std::int32_t lastX = std::min(endX, surface.Width - 1), lastY = std::min(endY, surface.Height - 1);
    for (std::int32_t row = std::max<std::int32_t>(y, 0); row <= lastY; ++row)
        for (std::int32_t column = std::max<std::int32_t>(x, 0); column <= lastX; ++column)
        {
            std::uint8_t* pixel = surface.Bytes + static_cast<std::ptrdiff_t>(row) * surface.RowBytes + column * 3;
            pixel[0] = colour.B;
            pixel[1] = colour.G;
            pixel[2] = colour.R;
        }
}
}
