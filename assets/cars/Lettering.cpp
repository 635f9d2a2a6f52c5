#include "cars/Lettering.h"
#include "common/Numbers.h"
#include <algorithm>
#include <cmath>

namespace assets
{
Lettering::Lettering(std::string_view text, double height, double weight, double slant)
    : _strokes(typeface::Outline(text, {100, weight, slant}))
{
    double left = 1e9, right = -1e9;
    for (const typeface::Segment& s : _strokes)
    {
        left = std::min({left, s.X1, s.X2});
        right = std::max({right, s.X1, s.X2});
    }
    constexpr double Capital = 73; // height of a capital at size 100, ink included
    _scale = Capital / height;
    _centreX = (left + right) / 2;
    _centreY = Capital / 2;
}

bool Lettering::Inside(double x, double y, double border) const
{
    const double px = x * _scale + _centreX, py = y * _scale + _centreY;
    for (const typeface::Segment& s : _strokes)
    {
        const double dx = s.X2 - s.X1, dy = s.Y2 - s.Y1, length = dx * dx + dy * dy;
        const double t = length > 0 ? Clamp01(((px - s.X1) * dx + (py - s.Y1) * dy) / length) : 0;
        if (std::hypot(px - s.X1 - t * dx, py - s.Y1 - t * dy) <= s.Radius + border * _scale)
            return true;
    }
    return false;
}
}
