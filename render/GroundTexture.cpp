#include "render/GroundTexture.h"

namespace render
{
namespace
{
// A neighbour's place; beyond the border, the one on the opposite side, and in a picture of one texel itself.
std::int32_t Neighbour(std::int32_t place, std::int32_t step, std::int32_t size)
{
    if (place + step >= 0 && place + step < size)
        return place + step;
    return place - step >= 0 && place - step < size ? place - step : place;
}
}

void LoadGround(base::MessageSink& messages, const base::Files& files, const std::string& path, float scale,
                bool blurred, Ground& ground)
{
    ground.GroundScale = scale;
    ground.Width = ground.Height = 0;
    ground.GroundBlur.Clear();
    if (!LoadPicArray2D(messages, files, path, ground.Sharp.Info, ground.Sharp.Pixels))
    {
        ground.Sharp = {};
        return;
    }
    ground.Width = ground.Sharp.Info.Width;
    ground.Height = ground.Sharp.Info.Height;
    if (blurred)
        BlurGround(ground);
}

void BlurGround(Ground& ground)
{
    const PicArray2D& sharp = ground.Sharp.Pixels;
    PicArray2D& blur = ground.GroundBlur;
    blur.Allocate(sharp.Rows, sharp.RowBytes);
    for (std::int32_t v = 0; v < ground.Height; ++v)
    {
        const std::uint8_t* below = sharp.Row(Neighbour(v, -1, ground.Height));
        const std::uint8_t* same = sharp.Row(v);
        const std::uint8_t* above = sharp.Row(Neighbour(v, 1, ground.Height));
        std::uint8_t* texel = blur.Row(v);
        for (std::int32_t u = 0; u < ground.Width; ++u)
        {
            const std::int32_t left = Neighbour(u, -1, ground.Width) * base::PixelBytes,
                               right = Neighbour(u, 1, ground.Width) * base::PixelBytes;
            const std::int32_t middle = u * base::PixelBytes;
            // Deliberate: the texel itself is left out.
            for (std::int32_t c = 0; c < base::PixelBytes; ++c)
                *texel++ = static_cast<std::uint8_t>((below[left + c] + below[middle + c] + below[right + c] +
                                                      same[left + c] + same[right + c] + above[left + c] +
                                                      above[middle + c] + above[right + c]) >>
                                                     3);
        }
    }
}
}
