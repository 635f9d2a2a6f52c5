// SPDX-License-Identifier: Zlib
#include "assets/common/Vectors.h"

#include "assets/common/Numbers.h"

#include <cmath>

namespace assets
{
double SegmentDistance(Point a, Point b, Point p)
{
    const double dx = b.X - a.X, dy = b.Y - a.Y, length = dx * dx + dy * dy;
    const double t = length > 0 ? Clamp01(((p.X - a.X) * dx + (p.Y - a.Y) * dy) / length) : 0;
    return std::hypot(a.X + dx * t - p.X, a.Y + dy * t - p.Y);
}

double Dot(Vec3 a, Vec3 b)
{
    return a.X * b.X + a.Y * b.Y + a.Z * b.Z;
}

Vec3 Cross(Vec3 a, Vec3 b)
{
    return {a.Y * b.Z - a.Z * b.Y, a.Z * b.X - a.X * b.Z, a.X * b.Y - a.Y * b.X};
}

Vec3 Unit(Vec3 a)
{
    const double length = std::sqrt(Dot(a, a));
    return length > 1e-12 ? a * (1 / length) : Vec3{0, 1, 0};
}
}
