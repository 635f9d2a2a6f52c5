// SPDX-License-Identifier: Zlib
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

// A row of texels and the two beside it.
struct Rows
{
    const std::uint8_t *Below, *Same, *Above;
};

// One channel's mean, from the bytes of the left and of the right texel. Deliberate: the texel itself is left out.
std::uint8_t MeanAt(const Rows& rows, std::int32_t left, std::int32_t middle, std::int32_t right)
{
    return static_cast<std::uint8_t>((rows.Below[left] + rows.Below[middle] + rows.Below[right] + rows.Same[left] +
                                      rows.Same[right] + rows.Above[left] + rows.Above[middle] + rows.Above[right]) >>
                                     3);
}

void BlurTexel(const Rows& rows, std::int32_t u, std::int32_t width, std::uint8_t* to)
{
    for (std::int32_t c = 0; c < base::PixelBytes; ++c)
    {
        const std::int32_t middle = u * base::PixelBytes + c;
        to[middle] = MeanAt(rows, Neighbour(u, -1, width) * base::PixelBytes + c, middle,
                            Neighbour(u, 1, width) * base::PixelBytes + c);
    }
}

// Every texel that has one on both sides: a byte's neighbours stand at the same distance all along the row, so that the
// compiler takes many at a time.
void BlurInside(Rows rows, std::int32_t width, std::uint8_t* to)
{
    for (std::int32_t at = base::PixelBytes; at < (width - 1) * base::PixelBytes; ++at)
        to[at] = MeanAt(rows, at - base::PixelBytes, at, at + base::PixelBytes);
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
    const std::int32_t last = ground.Width - 1;
    blur.Reserve(sharp.Rows, sharp.RowBytes);
    for (std::int32_t v = 0; v < sharp.Rows; ++v)
    {
        const Rows rows = {sharp.Row(Neighbour(v, -1, ground.Height)), sharp.Row(v),
                           sharp.Row(Neighbour(v, 1, ground.Height))};
        std::uint8_t* to = blur.AddRows(1).data();
        BlurTexel(rows, 0, ground.Width, to);
        BlurInside(rows, ground.Width, to);
        BlurTexel(rows, last, ground.Width, to);
    }
}
}
