// SPDX-License-Identifier: Zlib
#include "tools/race/Trip.h"

#include "base/Math.h"

#include <algorithm>

namespace race
{
namespace
{
constexpr double BadDamage = 1;               // half of the speed is gone
constexpr double Nearest = 25, Furthest = 90; // units along the line at which one turns off to a box
constexpr int TripTicks = 15 * TicksASecond, PauseTicks = 30 * TicksASecond;

Spot Centre(const world::Target& box)
{
    return {box.X, box.Z};
}
}

void Trip::Begin(const Sight& sight, const Course& course)
{
    if (sight.Damage < BadDamage || course.IsLost())
        return;
    for (const world::Target& box : Boxes)
    {
        const std::size_t beside = course.Way().Nearest(Centre(box));
        const double ahead = static_cast<double>(course.Way().Ahead(course.Here(), beside)) * course.Way().Spacing();
        if (ahead < Nearest || ahead > Furthest)
            continue;
        Goal = &box;
        Patience = TripTicks;
        return;
    }
}

std::optional<Aim> Trip::Next(const Sight& sight, const Course& course)
{
    if (Patience < 0)
        ++Patience;
    else if (Goal == nullptr)
        Begin(sight, course);
    if (Goal == nullptr)
        return std::nullopt;
    if (--Patience <= 0 || sight.Damage <= 0)
    {
        Goal = nullptr;
        Patience = sight.Damage > 0 ? -PauseTicks : 0;
        return std::nullopt;
    }
    const double distance = Distance(sight.Own.Place, Centre(*Goal));
    if (distance < Goal->R * 0.6)
        return Aim{Centre(*Goal), 0};
    // Slow enough to stop in it with half of the brake.
    return Aim{Centre(*Goal), std::max(0.35, base::Sqrt(2 * sight.Brake * (distance - Goal->R * 0.5)))};
}
}
