// SPDX-License-Identifier: Zlib
#include "assets/hud/Icon.h"

#include "assets/common/Output.h"
#include "assets/common/Shapes.h"
#include "assets/hud/Neon.h"
#include "base/Numbers.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace assets::hud
{
namespace
{
constexpr int Fine = 4; // pixels drawn for each one shown, across

// Dusk from the horizon (0) to the top (1).
Rgb Sky(double height)
{
    const Rgb low = Mix(Hex(0xFFB25A), Hex(0xE8566B), SmoothStep(0.0, 0.35, height));
    return Mix(low, Hex(0x24164E), SmoothStep(0.2, 0.95, height));
}

// The road to the horizon with its middle line and both edges; `size` is the picture's side.
void PaintRoad(Canvas& canvas, double size, double horizon)
{
    const auto strip = [&](double nearLeft, double nearRight, double farLeft, double farRight, Rgb colour)
    {
        const double top = horizon * size;
        FillPolygon(canvas,
                    std::vector<Point>{
                        {nearLeft * size, 0}, {nearRight * size, 0}, {farRight * size, top}, {farLeft * size, top}},
                    colour);
    };
    FillRect(canvas, 0, 0, size, horizon * size, Hex(0x1C1B2C));
    strip(-0.05, 1.05, 0.46, 0.54, Hex(0x34303F));
    strip(-0.05, 0.05, 0.46, 0.47, Hex(0xE23B32));
    strip(0.95, 1.05, 0.53, 0.54, Hex(0xE23B32));
    strip(0.465, 0.535, 0.497, 0.503, Hex(0xF6EBD8));
}

// Leaves what lies in a square with round corners.
void CutCorners(Canvas& canvas, double radius)
{
    const double half = canvas.Width / 2.0;
    for (int y = 0; y < canvas.Height; ++y)
        for (int x = 0; x < canvas.Width; ++x)
        {
            const double dx = std::max(0.0, std::abs(x + 0.5 - half) - (half - radius));
            const double dy = std::max(0.0, std::abs(y + 0.5 - half) - (half - radius));
            canvas.At(x, y).A = static_cast<float>(Clamp01(radius + 0.5 - std::hypot(dx, dy)));
        }
}

Canvas IconPicture(int shown)
{
    const bool small = shown < 48; // nothing but what can be seen at that size
    const int side = shown * Fine;
    const double horizon = 0.36;
    Canvas canvas(side, side, {});
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            canvas.Set(x, y, Sky(((y + 0.5) / side - horizon) / (1 - horizon)));
    PaintRoad(canvas, side, horizon);
    // The title's first letter.
    const Tubes tubes = {Hex(0xFF8A2C), Hex(0x2CC8FF), side * (small ? 1.0 : 0.8), 0, side * (small ? 0.14 : 0.046),
                         !small};
    Paste(canvas, NeonWord("V", side, side, tubes), 0, 0);
    CutCorners(canvas, side * 0.2);
    return Resized(canvas, shown, shown);
}

// A bitmap header of double height, blue, green, red and coverage from the bottom row, and the mask of older systems.
std::vector<std::uint8_t> ImageBytes(const Canvas& canvas)
{
    const auto side = static_cast<std::uint32_t>(canvas.Width);
    const std::uint32_t maskRow = (side + 31) / 32 * 4;
    std::vector<std::uint8_t> out;
    AppendLittle(out, 40, 4);
    AppendLittle(out, side, 4);
    AppendLittle(out, 2 * side, 4);
    AppendLittle(out, 1, 2);
    AppendLittle(out, 32, 2);
    AppendLittle(out, 0, 4); // uncompressed
    AppendLittle(out, side * side * 4 + maskRow * side, 4);
    AppendLittle(out, 0, 4);
    AppendLittle(out, 0, 4);
    AppendLittle(out, 0, 4);
    AppendLittle(out, 0, 4);
    for (const Pixel& pixel : canvas.Cells)
        for (const float value : {pixel.B, pixel.G, pixel.R, pixel.A})
            out.push_back(base::RoundByte(value * 255.0));
    for (int y = 0; y < canvas.Height; ++y)
    {
        std::vector<std::uint8_t> row(maskRow, 0);
        for (int x = 0; x < canvas.Width; ++x)
            if (canvas.At(x, y).A < 0.5f)
                row[static_cast<std::size_t>(x / 8)] |= static_cast<std::uint8_t>(0x80 >> (x % 8));
        out.insert(out.end(), row.begin(), row.end());
    }
    return out;
}
}

void WriteIcon(const std::string& path)
{
    std::vector<std::vector<std::uint8_t>> images;
    std::vector<std::uint8_t> out;
    const std::vector<int> sizes = {16, 32, 48, 256};
    AppendLittle(out, 0, 2);
    AppendLittle(out, 1, 2); // an icon
    AppendLittle(out, static_cast<std::uint32_t>(sizes.size()), 2);
    std::size_t place = 6 + 16 * sizes.size();
    for (const int size : sizes)
    {
        images.push_back(ImageBytes(IconPicture(size)));
        const auto side = static_cast<std::uint32_t>(size % 256); // 256 is written as 0
        AppendLittle(out, side, 1);
        AppendLittle(out, side, 1);
        AppendLittle(out, 0, 2); // no palette
        AppendLittle(out, 1, 2);
        AppendLittle(out, 32, 2);
        AppendLittle(out, static_cast<std::uint32_t>(images.back().size()), 4);
        AppendLittle(out, static_cast<std::uint32_t>(place), 4);
        place += images.back().size();
    }
    for (const std::vector<std::uint8_t>& image : images)
        out.insert(out.end(), image.begin(), image.end());
    WriteBytes(path, out);
}
}
