// SPDX-License-Identifier: Zlib
#include "render/Layers.h"

#include <cstddef>

namespace render
{
void LayOverPlain(PicArray2D& frame, const Layer& layer, const Band& rows)
{
    for (std::int32_t y = rows.First; y <= rows.Last; ++y)
        for (std::int32_t x = 0; x < layer.Depth.Width; ++x)
            if (layer.Depth.At(x, y) < FarDepth)
            {
                const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(x) * base::PixelBytes;
                base::CopyPixel(frame.Row(y) + at, layer.Pixels.Row(y) + at);
            }
}
}
