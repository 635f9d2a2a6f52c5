// The bitmap writer of Canvas.h.
#include "common/Canvas.h"
#include "common/Output.h"
#include <algorithm>
#include <array>
#include <cstdint>

namespace assets
{
static std::uint8_t ByteOf(double value, double offset)
{
    return static_cast<std::uint8_t>(std::clamp(FloorToInt(value * 255 + 0.5 + offset), 0, 255));
}

static void PutLittle(std::vector<std::uint8_t>& out, std::uint32_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        out.push_back(static_cast<std::uint8_t>((value >> (8 * i)) & 255u));
}

static std::vector<std::uint8_t> BitmapHeader(int width, int height, std::uint32_t imageBytes)
{
    std::vector<std::uint8_t> out{'B', 'M'};
    PutLittle(out, 54 + imageBytes, 4);
    PutLittle(out, 0, 4);
    PutLittle(out, 54, 4); // where the pixels begin
    PutLittle(out, 40, 4);
    PutLittle(out, static_cast<std::uint32_t>(width), 4);
    PutLittle(out, static_cast<std::uint32_t>(height), 4); // positive: bottom row first
    PutLittle(out, 1, 2);
    PutLittle(out, 24, 2);
    PutLittle(out, 0, 4); // uncompressed
    PutLittle(out, imageBytes, 4);
    PutLittle(out, 2835, 4); // 72 dots an inch
    PutLittle(out, 2835, 4);
    PutLittle(out, 0, 8);
    return out;
}

// Blue, green, red of one pixel.
static std::array<std::uint8_t, 3> BytesOf(const Pixel& p, Black black, double offset)
{
    if (black == Black::Key && p.A < 0.5f)
        return {0, 0, 0};
    std::array<std::uint8_t, 3> bytes{ByteOf(p.B, offset), ByteOf(p.G, offset), ByteOf(p.R, offset)};
    if (black != Black::Keep && bytes == std::array<std::uint8_t, 3>{0, 0, 0})
        bytes = {1, 1, 1};
    return bytes;
}

void WriteBmp(const std::string& path, const Canvas& canvas, Black black, bool dither)
{
    const std::size_t padding = (4 - static_cast<std::size_t>(canvas.Width) * 3 % 4) % 4;
    const std::size_t row = static_cast<std::size_t>(canvas.Width) * 3 + padding;
    const std::size_t imageBytes = row * static_cast<std::size_t>(canvas.Height);
    std::vector<std::uint8_t> out = BitmapHeader(canvas.Width, canvas.Height, static_cast<std::uint32_t>(imageBytes));
    out.reserve(out.size() + imageBytes);
    for (int y = 0; y < canvas.Height; ++y)
    {
        for (int x = 0; x < canvas.Width; ++x)
        {
            // The difference of two uniform numbers: an even spread without a pattern.
            const double offset = dither ? HashUnit(x, y, 991) - HashUnit(x, y, 992) : 0;
            const auto bytes = BytesOf(canvas.At(x, y), black, offset * 0.7);
            out.insert(out.end(), bytes.begin(), bytes.end());
        }
        out.insert(out.end(), padding, 0);
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
