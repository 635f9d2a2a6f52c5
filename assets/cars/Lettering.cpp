// SPDX-License-Identifier: Zlib
#include "assets/cars/Lettering.h"

#include "assets/common/Vectors.h"

#include <algorithm>
#include <cmath>

namespace assets::cars
{
Lettering::Lettering(std::string_view text, double height, double weight, double slant)
    : Strokes(typeface::Outline(text, {100, weight, slant}))
{
    double left = 1e9, right = -1e9;
    for (const typeface::Segment& s : Strokes)
    {
        left = std::min({left, s.X1, s.X2});
        right = std::max({right, s.X1, s.X2});
    }
    constexpr double Capital = 73; // height of a capital at size 100, ink included
    Scale = Capital / height;
    CentreX = (left + right) / 2;
    CentreY = Capital / 2;
}

bool Lettering::Inside(double x, double y, double border) const
{
    const double px = x * Scale + CentreX, py = y * Scale + CentreY;
    return std::any_of(Strokes.begin(), Strokes.end(),
                       [&](const typeface::Segment& s) {
                           return SegmentDistance({s.X1, s.Y1}, {s.X2, s.Y2}, {px, py}) <= s.Radius + border * Scale;
                       });
}
}
