// SPDX-License-Identifier: Zlib
#include "tools/race/Line.h"

#include "base/Math.h"
#include "base/Numbers.h"
#include "render/Camera.h"

#include <algorithm>
#include <limits>

namespace race
{
namespace
{
constexpr double WantedStep = 2;        // units
constexpr std::size_t FewestSpots = 12; // so that windows do not overlap themselves
constexpr std::size_t SmoothReach = 3;  // points to either side
constexpr std::size_t HeadingReach = 2, CurveReach = 3;

double LengthOf(const std::vector<Spot>& way)
{
    double length = 0;
    for (std::size_t i = 0; i < way.size(); ++i)
        length += Distance(way[i], way[(i + 1) % way.size()]);
    return length;
}

// Points of even distance along the closed way.
std::vector<Spot> Resample(const std::vector<Spot>& way, std::size_t count, double step)
{
    std::vector<Spot> spots;
    std::size_t leg = 0;
    double before = 0, along = Distance(way[0], way[1 % way.size()]);
    for (std::size_t i = 0; i < count; ++i)
    {
        const double at = step * static_cast<double>(i);
        while (before + along < at && leg + 1 < way.size())
        {
            before += along;
            ++leg;
            along = Distance(way[leg], way[(leg + 1) % way.size()]);
        }
        const Spot &from = way[leg], &to = way[(leg + 1) % way.size()];
        const double share = along > 0 ? std::clamp((at - before) / along, 0.0, 1.0) : 0;
        spots.push_back({from.X + share * (to.X - from.X), from.Z + share * (to.Z - from.Z)});
    }
    return spots;
}

std::vector<Spot> Smooth(const std::vector<Spot>& way)
{
    const std::size_t count = way.size();
    std::vector<Spot> smooth(count);
    for (std::size_t i = 0; i < count; ++i)
    {
        for (std::size_t k = i + count - SmoothReach; k <= i + count + SmoothReach; ++k)
        {
            smooth[i].X += way[k % count].X;
            smooth[i].Z += way[k % count].Z;
        }
        smooth[i].X /= 2 * SmoothReach + 1;
        smooth[i].Z /= 2 * SmoothReach + 1;
    }
    return smooth;
}

std::vector<Spot> Centres(std::span<const world::Target> checkpoints)
{
    std::vector<Spot> way;
    for (const world::Target& checkpoint : checkpoints)
        way.push_back({checkpoint.X, checkpoint.Z});
    return way;
}
}

double Distance(const Spot& a, const Spot& b)
{
    return render::Dist2D(a.X, a.Z, b.X, b.Z);
}

double Bearing(const Spot& from, const Spot& to)
{
    const double length = Distance(from, to);
    return length > 0 ? -render::AngleOf((to.X - from.X) / length, (to.Z - from.Z) / length) : 0;
}

double Wrapped(double angle)
{
    constexpr double Pi = 3.14159265358979323846;
    while (angle > Pi)
        angle -= 2 * Pi;
    while (angle < -Pi)
        angle += 2 * Pi;
    return angle;
}

Line::Line(std::vector<Spot> way)
{
    if (way.empty())
        way.push_back({});
    const double length = LengthOf(way);
    const auto count =
        std::max(FewestSpots, static_cast<std::size_t>(std::max(base::RoundEven(length / WantedStep), 0)));
    Step = std::max(length / static_cast<double>(count), 1e-6);
    Spots = Smooth(Smooth(Resample(way, count, Step)));
    Measure();
}

Line::Line(std::span<const world::Target> checkpoints) : Line(Centres(checkpoints)) {}

void Line::Measure()
{
    const std::size_t count = Count();
    for (std::size_t i = 0; i < count; ++i)
        Headings.push_back(Bearing(At(i + count - HeadingReach), At(i + HeadingReach)));
    for (std::size_t i = 0; i < count; ++i)
        Curvatures.push_back(Wrapped(Heading(i + CurveReach) - Heading(i + count - CurveReach)) /
                             (2 * static_cast<double>(CurveReach) * Step));
}

Spot Line::Beside(std::size_t index, double left) const
{
    const Spot& spot = At(index);
    const double heading = Heading(index);
    return {spot.X - left * base::Cos(heading), spot.Z - left * base::Sin(heading)};
}

double Line::LeftOf(std::size_t index, const Spot& spot) const
{
    const Spot& here = At(index);
    const double heading = Heading(index);
    return -(spot.X - here.X) * base::Cos(heading) - (spot.Z - here.Z) * base::Sin(heading);
}

std::size_t Line::Nearest(const Spot& spot, std::size_t first, std::size_t count) const
{
    std::size_t nearest = first % Count();
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = first; i < first + count; ++i)
        if (const double distance = Distance(At(i), spot); distance < least)
        {
            least = distance;
            nearest = i % Count();
        }
    return nearest;
}
}
