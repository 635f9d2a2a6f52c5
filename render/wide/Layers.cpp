// SPDX-License-Identifier: Zlib
// Four pixels at a time; most fours are wholly empty or wholly not. The same pixel by pixel: render/Layers.cpp.
#include "render/Layers.h"

#include "render/wide/Pixels4.h"
#include "render/wide/Routines.h"

#include <bit>
#include <cstddef>
#include <cstring>

namespace render::VELKAR_WIDE
{
namespace
{
constexpr std::int32_t Lanes = 4;
static_assert(Marks::LeastColumns % Lanes == 0, "a block is whole fours");
constexpr std::size_t FourPixels = Lanes * base::PixelBytes;

// Four columns: the pixels of those that have a depth.
void CopyFour(const float* depth, const std::uint8_t* from, std::uint8_t* to)
{
    const Int4 shows = Float4::Load(depth) < Float4::Of(FarDepth);
    const unsigned lanes = shows.Bits();
    if (lanes == 0b1111)
        std::memcpy(to, from, FourPixels);
    else if (lanes != 0)
        ForEachLane(shows,
                    [&](int lane)
                    {
                        const std::ptrdiff_t at = lane * base::PixelBytes;
                        std::memcpy(to + at, from + at, base::PixelBytes);
                    });
}
}

void LayOver(PicArray2D& frame, const Layer& layer, const Band& rows)
{
    if (layer.Depth.Width < Lanes)
        return LayOverPlain(frame, layer, rows);
    const std::int32_t border = layer.Depth.Width - Lanes, columns = layer.Drawn.BlockColumns();
    for (std::int32_t y = rows.First; y <= rows.Last; ++y)
    {
        const float* depth = layer.Depth.Row(y);
        const std::uint8_t* from = layer.Pixels.Row(y);
        std::uint8_t* to = frame.Row(y);
        for (std::uint64_t blocks = layer.Drawn.BlocksOf(y); blocks != 0; blocks &= blocks - 1)
        {
            std::int32_t x = std::countr_zero(blocks) * columns;
            for (const std::int32_t end = x + columns; x < end; x += Lanes)
            {
                const std::int32_t at = x < border ? x : border;
                const std::ptrdiff_t byte = static_cast<std::ptrdiff_t>(at) * base::PixelBytes;
                CopyFour(depth + at, from + byte, to + byte);
            }
        }
    }
}
}
