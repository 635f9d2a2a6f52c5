// SPDX-License-Identifier: Zlib
#include "assets/common/Bitmap.h"

#include "assets/common/Output.h"
#include "base/Numbers.h"
#include "base/Pixels.h"

#include <algorithm>

namespace assets
{
namespace
{
// Rounded half up, moved by `offset` steps beforehand.
std::uint8_t ByteOf(double value, double offset)
{
    return static_cast<std::uint8_t>(std::clamp(base::Floor(value * 255 + 0.5 + offset), 0, 255));
}

// Not base/BitmapFile.h: the shipped pictures tell their resolution.
std::vector<std::uint8_t> BitmapHeader(int width, int height, std::uint32_t imageBytes)
{
    std::vector<std::uint8_t> out{'B', 'M'};
    AppendLittle(out, 54 + imageBytes, 4);
    AppendLittle(out, 0, 4);
    AppendLittle(out, 54, 4); // where the pixels begin
    AppendLittle(out, 40, 4);
    AppendLittle(out, static_cast<std::uint32_t>(width), 4);
    AppendLittle(out, static_cast<std::uint32_t>(height), 4); // positive: bottom row first
    AppendLittle(out, 1, 2);
    AppendLittle(out, 24, 2);
    AppendLittle(out, 0, 4); // uncompressed
    AppendLittle(out, imageBytes, 4);
    AppendLittle(out, 2835, 4); // 72 dots an inch
    AppendLittle(out, 2835, 4);
    AppendLittle(out, 0, 4); // palette
    AppendLittle(out, 0, 4);
    return out;
}

base::Rgb BytesOf(const Pixel& p, Black black, double offset)
{
    if (black == Black::Key && p.A < 0.5f)
        return {};
    const base::Rgb bytes{ByteOf(p.R, offset), ByteOf(p.G, offset), ByteOf(p.B, offset)};
    return black != Black::Keep && bytes == base::Rgb{} ? base::Rgb{1, 1, 1} : bytes;
}
}

void WriteBmp(const std::string& path, const Canvas& canvas, Black black, bool dither)
{
    const std::int32_t rowBytes = base::PaddedRow(canvas.Width);
    const std::size_t imageBytes = static_cast<std::size_t>(rowBytes) * static_cast<std::size_t>(canvas.Height);
    std::vector<std::uint8_t> out = BitmapHeader(canvas.Width, canvas.Height, static_cast<std::uint32_t>(imageBytes));
    const std::size_t start = out.size();
    out.resize(start + imageBytes);
    const base::Surface image{out.data() + start, rowBytes, canvas.Width, canvas.Height};
    for (int y = 0; y < canvas.Height; ++y)
        for (int x = 0; x < canvas.Width; ++x)
        {
            // The difference of two uniform numbers: an even spread without a pattern.
            const double offset = dither ? HashUnit(x, y, 991) - HashUnit(x, y, 992) : 0;
            base::Put(image.At(x, y), BytesOf(canvas.At(x, y), black, offset * 0.7));
        }
    WriteBytes(path, out);
}

void WriteBmp(const std::string& path, const Mask& mask)
{
    Canvas canvas(mask.Width, mask.Height, {});
    for (int y = 0; y < mask.Height; ++y)
        for (int x = 0; x < mask.Width; ++x)
        {
            const double v = mask.At(x, y);
            canvas.Set(x, y, {v, v, v});
        }
    WriteBmp(path, canvas, Black::Keep);
}
}
