// SPDX-License-Identifier: Zlib
#include "tools/race/Traffic.h"

#include "base/Math.h"

#include <algorithm>
#include <cmath>

namespace race
{
namespace
{
constexpr double UnitsASpeed = 20;              // a second
constexpr double CarLength = 5, CarWidth = 2.2; // units
constexpr double KeptDistance = 2;              // behind a car that is followed
constexpr double Gap = 3.3;                     // between the middles of two cars that pass
constexpr double MostOffset = 4.5;              // beside the line, still on the road
constexpr double Shift = 0.12, Return = 0.04;   // units a tick

// Another car as it is seen over the own bonnet.
struct Relative
{
    double Ahead = 0, Left = 0; // units
    double Closing = 0;         // speed at which it comes nearer
};

Relative LookAt(const Seen& own, const Seen& other)
{
    const double sin = base::Sin(own.Heading), cos = base::Cos(own.Heading);
    const double x = other.Place.X - own.Place.X, z = other.Place.Z - own.Place.Z;
    return {-x * sin + z * cos, -x * cos - z * sin, own.Speed - other.Speed * base::Cos(other.Heading - own.Heading)};
}

bool IsInTheWay(const Relative& other)
{
    return other.Ahead > 0 && other.Ahead < CarLength + 3 + UnitsASpeed * std::max(other.Closing, 0.0) &&
           std::fabs(other.Left) < CarWidth + 0.8;
}

bool IsBeside(const Relative& other)
{
    return std::fabs(other.Ahead) < CarLength + 1 && std::fabs(other.Left) < Gap + 1.5;
}
}

std::optional<double> Traffic::Wanted(const Sight& sight, std::size_t here)
{
    std::optional<double> wanted;
    double nearest = NoLimit;
    bool passes = false;
    for (const Seen& other : sight.Others)
    {
        const Relative seen = LookAt(sight.Own, other);
        const bool inTheWay = IsInTheWay(seen);
        passes = passes || inTheWay || IsBeside(seen);
        if ((!inTheWay && !IsBeside(seen)) || std::fabs(seen.Ahead) >= nearest)
            continue;
        nearest = std::fabs(seen.Ahead);
        const double its = TheLine.LeftOf(TheLine.Nearest(other.Place, here + TheLine.Count() - 5, 40), other.Place);
        if (!inTheWay)
            Side = seen.Left > 0 ? -1 : 1; // it stays on its side
        else if (Side == 0)
            Side = its > 0 ? -1 : 1; // where there is more room
        wanted = std::clamp(its + Side * Gap, -MostOffset, MostOffset);
    }
    if (!passes)
        Side = 0;
    return wanted;
}

double Traffic::Left(const Sight& sight, std::size_t here)
{
    const std::optional<double> wanted = Wanted(sight, here);
    const double step = wanted ? Shift : Return;
    Offset += std::clamp(wanted.value_or(0) - Offset, -step, step);
    return Offset;
}

double Traffic::MostSpeed(const Sight& sight)
{
    double most = NoLimit;
    for (const Seen& other : sight.Others)
    {
        const Relative seen = LookAt(sight.Own, other);
        if (seen.Ahead <= 0 || std::fabs(seen.Left) > CarWidth + 0.4)
            continue;
        // The closer, the nearer to its own speed; too close, slower than that.
        const double room = seen.Ahead - CarLength - KeptDistance;
        most = std::min(most, sight.Own.Speed - seen.Closing + (room > 0 ? room * 0.1 : -0.3));
    }
    return std::max(most, 0.3);
}
}
