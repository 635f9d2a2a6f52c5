// SPDX-License-Identifier: Zlib
// tools/race/Line.h: the line round the lap that the human-like driver follows: a closed way of points about two units
// apart. Directions are game angles: 0 looks along +z, a positive turn is to the left, toward -x.
#pragma once
#include "world/Race.h"

#include <cstddef>
#include <span>
#include <vector>

namespace race
{
struct Spot
{
    double X = 0, Z = 0;
};

double Distance(const Spot& a, const Spot& b);
// The angle that looks from one to the other; 0 where they coincide.
double Bearing(const Spot& from, const Spot& to);
// -Pi to Pi.
double Wrapped(double angle);

class Line
{
public:
    // The way as it was driven once round, its end joined to its beginning, smoothed. A way of no length is a point.
    explicit Line(std::vector<Spot> way);
    // The straight lines from checkpoint to checkpoint.
    explicit Line(std::span<const world::Target> checkpoints);

    std::size_t Count() const { return Spots.size(); }
    double Spacing() const { return Step; } // from point to point, units
    double Length() const { return Step * static_cast<double>(Count()); }
    // Indices go round.
    const Spot& At(std::size_t index) const { return Spots[index % Count()]; }
    double Heading(std::size_t index) const { return Headings[index % Count()]; }
    // Radians a unit, positive to the left.
    double Curvature(std::size_t index) const { return Curvatures[index % Count()]; }
    // So many units to the left of the point.
    Spot Beside(std::size_t index, double left) const;
    // How far the spot is to the left of the line at the point.
    double LeftOf(std::size_t index, const Spot& spot) const;
    // Points from one index forward to the other.
    std::size_t Ahead(std::size_t from, std::size_t to) const { return (to + Count() - from) % Count(); }

    // The nearest point of all; of `count` points from `first` on.
    std::size_t Nearest(const Spot& spot) const { return Nearest(spot, 0, Count()); }
    std::size_t Nearest(const Spot& spot, std::size_t first, std::size_t count) const;

private:
    void Measure();

    std::vector<Spot> Spots;
    std::vector<double> Headings, Curvatures;
    double Step = 1;
};
}
