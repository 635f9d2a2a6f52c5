// SPDX-License-Identifier: Zlib
// assets/track/Circuit.h: the course of the road. x is east, z is north, world units; the lap runs anticlockwise.
#pragma once
#include "assets/common/Numbers.h"
#include "assets/common/Vectors.h"

#include <vector>

namespace assets::track
{
// One point of the centre line, about one unit from the next.
struct RoadPoint
{
    double X = 0, Z = 0;
    double DirX = 0, DirZ = 1; // unit vector along the lap
    double Bend = 0;           // curvature, 1 / radius; positive bends to the left
    double HalfWidth = 6.7;
    double Line = 0; // offset of the worn racing line to the left of the centre
};

struct Circuit
{
    std::vector<RoadPoint> Points; // Points[0] is the start line
    double Length = 0;

    int Count() const { return static_cast<int>(Points.size()); }
    // Any integer; the lap is closed.
    const RoadPoint& At(int index) const { return Points[static_cast<std::size_t>(Wrap(index, Count()))]; }
    // `s` in units from the start line, `left` in units from the centre line to the left.
    Point Place(double s, double left) const;
    RoadPoint Along(double s) const;
    // The nearest point of the centre line.
    int Nearest(double x, double z) const;
    // Distance to the left of the centre line at the nearest point (negative: right).
    double Offset(double x, double z) const;
};

Circuit MakeCircuit();

// Where the start line crosses the main straight.
inline constexpr Point StartLine{236, 219.3};
}
