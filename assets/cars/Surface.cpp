// SPDX-License-Identifier: Zlib
#include "assets/cars/Surface.h"

#include "base/Numbers.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace assets::cars
{
double Curve::operator()(double at) const
{
    const auto& k = Keys;
    if (at <= k.front().first)
        return k.front().second;
    if (at >= k.back().first)
        return k.back().second;
    std::size_t i = 1;
    while (k[i].first < at)
        ++i;
    // Cubic with slopes of the neighbouring keys.
    const auto slope = [&](std::size_t n)
    {
        const std::size_t low = n == 0 ? 0 : n - 1, high = std::min(n + 1, k.size() - 1);
        return (k[high].second - k[low].second) / (k[high].first - k[low].first);
    };
    const double span = k[i].first - k[i - 1].first, t = (at - k[i - 1].first) / span;
    const double t2 = t * t, t3 = t2 * t;
    return (2 * t3 - 3 * t2 + 1) * k[i - 1].second + (t3 - 2 * t2 + t) * span * slope(i - 1) +
           (3 * t2 - 2 * t3) * k[i].second + (t3 - t2) * span * slope(i);
}

Atlas::Area Atlas::Reserve(int width, int height)
{
    if (NextX + width > Sheet.Width)
    {
        NextX = 0;
        NextY += ShelfHeight;
        ShelfHeight = 0;
    }
    if (width > Sheet.Width || NextY + height > Sheet.Height)
        throw std::runtime_error("a car's texture has no room left");
    const Area area{NextX, NextY, width, height};
    NextX += width;
    ShelfHeight = std::max(ShelfHeight, height);
    return area;
}

Sample SampleAt(const Panel& panel, double a, double b)
{
    constexpr double step = 0.004;
    const double a0 = std::max(0.0, a - step), a1 = std::min(1.0, a + step);
    const double b0 = std::max(0.0, b - step), b1 = std::min(1.0, b + step);
    Sample sample{panel.Shape(a, b), {}, a, b};
    sample.N = Unit(Cross(panel.Shape(a1, b) - panel.Shape(a0, b), panel.Shape(a, b1) - panel.Shape(a, b0)));
    const Vec3 behind{panel.Inside.X, panel.Inside.Y, sample.P.Z * 0.8 + panel.Inside.Z};
    if (Dot(sample.N, sample.P - behind) < 0)
        sample.N = sample.N * -1;
    return sample;
}

namespace
{
// The mean of several samples of one texel; see-through when most of them are.
void PaintTexel(const Panel& panel, const Painter& painter, const Atlas::Area& area, int x, int y, Canvas& picture)
{
    constexpr int Fine = 4;
    Rgb sum;
    int painted = 0;
    for (int sy = 0; sy < Fine; ++sy)
        for (int sx = 0; sx < Fine; ++sx)
        {
            // Texel 0 stands for a = 0 and the last one for a = 1, as the grid's corners are mapped.
            const double a = Clamp01((x - 0.5 + (sx + 0.5) / Fine) / (area.Width - 1));
            const double b = Clamp01((y - 0.5 + (sy + 0.5) / Fine) / (area.Height - 1));
            const Ink ink = painter(SampleAt(panel, a, b));
            if (ink.Clear)
                continue;
            sum = sum + ink.Colour;
            ++painted;
        }
    if (painted * 2 >= Fine * Fine)
        picture.Set(area.X + x, area.Y + y, sum * (1.0 / painted));
}
}

ModelMesh Build(const Panel& panel, const Painter& painter, Atlas& atlas, const std::string& texture)
{
    const Atlas::Area area = atlas.Reserve(panel.Width, panel.Height);
    for (int y = 0; y < area.Height; ++y)
        for (int x = 0; x < area.Width; ++x)
            PaintTexel(panel, painter, area, x, y, atlas.Picture());
    ModelMesh mesh(static_cast<int>(panel.KnotsB.size()), static_cast<int>(panel.KnotsA.size()));
    mesh.Texture = texture;
    for (int i = 0; i < mesh.Rows; ++i)
        for (int j = 0; j < mesh.Cols; ++j)
        {
            const double a = panel.KnotsA[static_cast<std::size_t>(j)], b = panel.KnotsB[static_cast<std::size_t>(i)];
            const Vec3 p = panel.Shape(a, b);
            mesh.At(i, j) = {p.X, p.Y, p.Z, area.X + base::RoundEven(a * (area.Width - 1)),
                             area.Y + base::RoundEven(b * (area.Height - 1))};
        }
    return mesh;
}

std::vector<double> Evenly(int cells)
{
    std::vector<double> knots;
    for (int i = 0; i <= cells; ++i)
        knots.push_back(static_cast<double>(i) / cells);
    return knots;
}
}
