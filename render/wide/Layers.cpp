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
constexpr std::size_t FourPixels = Lanes * base::PixelBytes;

// Four columns: those of the layer's that are not empty.
void MoveFour(float* layerDepth, const std::uint8_t* layerPixels, float* depth, std::uint8_t* pixels)
{
    const Float4 far = Float4::Of(FarDepth), ahead = Float4::Load(layerDepth);
    const Int4 shows = ahead < far;
    const unsigned lanes = shows.Bits();
    if (lanes == 0)
        return;
    Choose(shows, ahead, Float4::Load(depth)).Store(depth);
    far.Store(layerDepth);
    if (lanes == 0b1111)
        std::memcpy(pixels, layerPixels, FourPixels);
    else
        ForEachLane(shows,
                    [&](int lane)
                    {
                        const std::ptrdiff_t at = lane * base::PixelBytes;
                        std::memcpy(pixels + at, layerPixels + at, base::PixelBytes);
                    });
}
}

void LayOver(Screen& screen, Layer& layer, const Band& rows)
{
    if (screen.ScreenW < Lanes)
        return LayOverPlain(screen, layer, rows);
    const std::int32_t border = screen.ScreenW - Lanes, columns = layer.Drawn.BlockColumns();
    for (std::int32_t y = rows.First; y <= rows.Last; ++y)
    {
        float *layerDepth = layer.Depth.Row(y), *depth = screen.Depth.Row(y);
        const std::uint8_t* layerPixels = layer.Pixels.Row(y);
        std::uint8_t* pixels = screen.Frame.Row(y);
        const auto move = [&](std::int32_t x)
        {
            const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(x) * base::PixelBytes;
            MoveFour(layerDepth + x, layerPixels + at, depth + x, pixels + at);
        };
        for (std::uint64_t blocks = layer.Drawn.BlocksOf(y); blocks != 0; blocks &= blocks - 1)
        {
            std::int32_t x = std::countr_zero(blocks) * columns;
            for (const std::int32_t end = x + columns; x < end; x += Lanes)
                move(x < border ? x : border); // columns that were moved before are empty by now
        }
    }
}
}
