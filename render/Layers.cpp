#include "render/Layers.h"

namespace render
{
void LayOverPlain(Screen& screen, Layer& layer, const Band& rows)
{
    for (std::int32_t y = rows.First; y <= rows.Last; ++y)
        for (std::int32_t x = 0; x < screen.ScreenW; ++x)
        {
            float& ahead = layer.Depth.At(x, y);
            if (!(ahead < FarDepth))
                continue;
            screen.Depth.At(x, y) = ahead;
            ahead = FarDepth;
            const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(x) * base::PixelBytes;
            base::CopyPixel(screen.Frame.Row(y) + at, layer.Pixels.Row(y) + at);
        }
}
}
