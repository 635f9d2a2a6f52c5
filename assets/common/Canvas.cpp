// SPDX-License-Identifier: Zlib
#include "assets/common/Canvas.h"

#include "base/Numbers.h"

#include <algorithm>

namespace assets
{
namespace
{
Pixel Painted(Rgb colour)
{
    return {static_cast<float>(colour.R), static_cast<float>(colour.G), static_cast<float>(colour.B), 1};
}

// One box pass along a line of `count` values that lie `step` apart.
void BoxPass(float* values, int count, std::ptrdiff_t step, int reach, std::vector<float>& line)
{
    line.resize(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        line[static_cast<std::size_t>(i)] = values[i * step];
    const auto value = [&](int i)
    { return static_cast<double>(line[static_cast<std::size_t>(std::clamp(i, 0, count - 1))]); };
    double sum = 0;
    for (int i = -reach; i <= reach; ++i)
        sum += value(i);
    for (int i = 0; i < count; ++i)
    {
        values[i * step] = static_cast<float>(sum / (2 * reach + 1));
        sum += value(i + reach + 1) - value(i - reach);
    }
}

// Blurs a picture of interleaved channels in place.
void BlurPlane(float* values, int width, int height, int channels, double radius)
{
    if (radius <= 0)
        return;
    const int reach = std::max(1, base::RoundEven(radius));
    std::vector<float> line;
    for (int pass = 0; pass < 3; ++pass)
        for (int channel = 0; channel < channels; ++channel)
        {
            const std::ptrdiff_t row = static_cast<std::ptrdiff_t>(width) * channels;
            for (int y = 0; y < height; ++y)
                BoxPass(values + y * row + channel, width, channels, reach, line);
            for (int x = 0; x < width; ++x)
                BoxPass(values + static_cast<std::ptrdiff_t>(x) * channels + channel, height, row, reach, line);
        }
}

}

Canvas::Canvas(int width, int height, Rgb fill)
{
    Reset(width, height, Painted(fill));
}

Rgb Canvas::Colour(int x, int y) const
{
    const Pixel& p = At(x, y);
    return {p.R, p.G, p.B};
}

void Canvas::Set(int x, int y, Rgb colour)
{
    At(x, y) = Painted(colour);
}

void Canvas::Blend(int x, int y, Rgb colour, double opacity)
{
    if (!Has(x, y) || opacity <= 0)
        return;
    Pixel& p = At(x, y);
    const double over = std::min(opacity, 1.0);
    const double alpha = over + p.A * (1 - over);
    const double share = over / alpha;
    p.R = static_cast<float>(Lerp(p.R, colour.R, share));
    p.G = static_cast<float>(Lerp(p.G, colour.G, share));
    p.B = static_cast<float>(Lerp(p.B, colour.B, share));
    p.A = static_cast<float>(alpha);
}

void Canvas::Shade(int x, int y, Rgb factor, double amount)
{
    if (!Has(x, y))
        return;
    Pixel& p = At(x, y);
    p.R = static_cast<float>(p.R * Lerp(1, factor.R, amount));
    p.G = static_cast<float>(p.G * Lerp(1, factor.G, amount));
    p.B = static_cast<float>(p.B * Lerp(1, factor.B, amount));
}

void Blur(Mask& mask, double radius)
{
    BlurPlane(mask.Cells.data(), mask.Width, mask.Height, 1, radius);
}

void Blur(Canvas& canvas, double radius)
{
    static_assert(sizeof(Pixel) == 4 * sizeof(float));
    // Colours are weighed by their coverage, so that unpainted pixels do not darken the rim.
    for (Pixel& p : canvas.Cells)
        p = {p.R * p.A, p.G * p.A, p.B * p.A, p.A};
    if (!canvas.Cells.empty())
        BlurPlane(&canvas.Cells[0].R, canvas.Width, canvas.Height, 4, radius);
    for (Pixel& p : canvas.Cells)
        if (p.A > 0)
            p = {p.R / p.A, p.G / p.A, p.B / p.A, p.A};
}

Canvas Resized(const Canvas& canvas, int width, int height)
{
    Canvas result(width, height);
    const double stepX = static_cast<double>(canvas.Width) / width, stepY = static_cast<double>(canvas.Height) / height;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
        {
            const double left = x * stepX, right = left + stepX, low = y * stepY, high = low + stepY;
            double r = 0, g = 0, b = 0, a = 0, total = 0;
            for (int sy = base::Floor(low); sy < std::min(canvas.Height, base::Floor(high - 1e-9) + 1); ++sy)
                for (int sx = base::Floor(left); sx < std::min(canvas.Width, base::Floor(right - 1e-9) + 1); ++sx)
                {
                    const double weight = (std::min(right, sx + 1.0) - std::max(left, sx * 1.0)) *
                                          (std::min(high, sy + 1.0) - std::max(low, sy * 1.0));
                    const Pixel& p = canvas.At(sx, sy);
                    r += weight * p.A * p.R;
                    g += weight * p.A * p.G;
                    b += weight * p.A * p.B;
                    a += weight * p.A;
                    total += weight;
                }
            if (a > 0)
                result.At(x, y) = {static_cast<float>(r / a), static_cast<float>(g / a), static_cast<float>(b / a),
                                   static_cast<float>(a / total)};
        }
    return result;
}

void Paste(Canvas& canvas, const Canvas& picture, int x, int y, double opacity)
{
    for (int py = 0; py < picture.Height; ++py)
        for (int px = 0; px < picture.Width; ++px)
            canvas.Blend(x + px, y + py, picture.Colour(px, py), picture.At(px, py).A * opacity);
}

Canvas FlippedX(const Canvas& canvas)
{
    Canvas result(canvas.Width, canvas.Height);
    for (int y = 0; y < canvas.Height; ++y)
        for (int x = 0; x < canvas.Width; ++x)
            result.At(x, y) = canvas.At(canvas.Width - 1 - x, y);
    return result;
}
}
