// SPDX-License-Identifier: Zlib
#include "assets/hud/Neon.h"

#include "typeface/Typeface.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace assets::hud
{
namespace
{
using typeface::Segment;

std::vector<Segment> Letters(std::string_view word, const Tubes& tubes, double& width)
{
    std::vector<Segment> all;
    double pen = 0;
    for (std::size_t i = 0; i < word.size(); ++i)
    {
        const typeface::Style style{tubes.Size, 1, 0.16};
        for (Segment s : typeface::Outline(word.substr(i, 1), style))
        {
            s.X1 += pen;
            s.X2 += pen;
            all.push_back(s);
        }
        pen += typeface::Width(word.substr(i, 1), style) + tubes.Tracking;
    }
    width = pen - tubes.Tracking;
    return all;
}

double Distance(const std::vector<Segment>& strokes, double x, double y)
{
    double nearest = 1e18;
    for (const Segment& s : strokes)
    {
        const double dx = s.X2 - s.X1, dy = s.Y2 - s.Y1, length = dx * dx + dy * dy;
        const double t = length > 0 ? Clamp01(((x - s.X1) * dx + (y - s.Y1) * dy) / length) : 0;
        const double ox = x - s.X1 - t * dx, oy = y - s.Y1 - t * dy;
        nearest = std::min(nearest, ox * ox + oy * oy);
    }
    return std::sqrt(nearest);
}

// One tube's light at a distance from its middle: what it adds and how much it hides what lies behind.
void AddTube(Pixel& pixel, double distance, double tubeWidth, Rgb glow)
{
    const double d = distance / tubeWidth;
    const double core = SmoothStep(0.50, 0.22, d), glass = SmoothStep(0.72, 0.45, d);
    const double halo = 0.62 * std::exp(-d * 0.62) + 0.30 * std::exp(-d * d * 0.55);
    const Rgb light = Mix(glow * Lerp(0.72, 1.05, std::exp(-d * 0.8)), Mix(glow, {1, 1, 1}, 0.82), core);
    const double cover = std::max(std::max(core, glass), halo * SmoothStep(8.5, 3.0, d));
    const double before = pixel.A, total = before + cover * (1 - before * 0.85);
    if (total <= 1e-6)
        return;
    const double share = std::max(core, cover / (cover + before + 1e-9));
    pixel.R = static_cast<float>(std::min(1.0, Lerp(pixel.R, light.R, share)));
    pixel.G = static_cast<float>(std::min(1.0, Lerp(pixel.G, light.G, share)));
    pixel.B = static_cast<float>(std::min(1.0, Lerp(pixel.B, light.B, share)));
    pixel.A = static_cast<float>(std::min(1.0, total));
}
}

Canvas NeonWord(std::string_view word, int width, int height, const Tubes& tubes)
{
    Canvas canvas(width, height);
    double wide = 0;
    const std::vector<Segment> strokes = Letters(word, tubes, wide);
    const double capital = 0.727 * tubes.Size, slant = 0.16 * capital;
    const double left = (width - wide - slant) / 2, low = (height - capital) / 2;
    const double ring = tubes.Width * 2.6; // from the middle tube to the outer one
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
        {
            const double d = Distance(strokes, x + 0.5 - left, y + 0.5 - low);
            Pixel& pixel = canvas.At(x, y);
            if (tubes.Outlined)
                AddTube(pixel, std::abs(d - ring), tubes.Width * 0.62, tubes.Outer);
            AddTube(pixel, d, tubes.Width, tubes.Inner);
        }
    return canvas;
}

Canvas Dotted(const Canvas& soft)
{
    Canvas dots(soft.Width, soft.Height);
    // Ordered dots in eight by eight cells, slightly shaken so that no grid shows.
    const auto order = [](int x, int y)
    {
        int value = 0;
        for (int bit = 0; bit < 3; ++bit)
        {
            const int a = (x >> bit) & 1, b = (y >> bit) & 1;
            value |= ((a ^ b) << (5 - 2 * bit)) | (b << (4 - 2 * bit));
        }
        return (value + 0.5) / 64;
    };
    for (int y = 0; y < soft.Height; ++y)
        for (int x = 0; x < soft.Width; ++x)
        {
            const double threshold = Clamp01(order(x & 7, y & 7) + 0.05 * (HashUnit(x, y, 5) - 0.5));
            if (soft.At(x, y).A > std::max(threshold, 0.02))
                dots.Set(x, y, soft.Colour(x, y));
        }
    return dots;
}
}
