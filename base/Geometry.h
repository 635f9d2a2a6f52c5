// SPDX-License-Identifier: Zlib
// base/Geometry.h: plane geometry that several rooms need. Sums in double; the same bits everywhere.
#pragma once
#include "base/Math.h"

#include <algorithm>

namespace base
{
// From the point (x, y) to the nearest point of the straight line from (x1, y1) to (x2, y2), both ends included. Ends
// that coincide are a point. Never negative; not a number where an argument is none.
inline double DistanceToSegment(double x, double y, double x1, double y1, double x2, double y2)
{
    const double dx = x2 - x1, dy = y2 - y1;
    const double squared = dx * dx + dy * dy;
    const double along = squared > 0 ? std::clamp(((x - x1) * dx + (y - y1) * dy) / squared, 0.0, 1.0) : 0.0;
    const double offX = x - x1 - along * dx, offY = y - y1 - along * dy;
    return Sqrt(offX * offX + offY * offY);
}
}
