// SPDX-License-Identifier: Zlib
#include "tools/race/Recovery.h"

#include "base/Math.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace race
{
namespace
{
constexpr double Crawl = 0.25;               // no faster than this, or than a third of what a damaged car would reach
constexpr int StuckTicks = 30;               // for so long
constexpr int BackTicks = 45, MoreBack = 25; // and so much more at each try
constexpr int LongestBack = 10 * TicksASecond;
constexpr double GotAway = 30;    // units from where the car was stuck
constexpr double WholeCar = 0.04; // acceleration
constexpr int LongestDetour = 20 * TicksASecond;

// A way round: what is in the way may be long, so each try goes twice as far as the last, to the other side.
struct Detour
{
    double Aside; // radians
    int Ticks;
};
constexpr std::array Detours = {Detour{0.9, 2 * TicksASecond}, Detour{-0.9, 3 * TicksASecond},
                                Detour{1.4, 5 * TicksASecond}, Detour{-1.4, 10 * TicksASecond},
                                Detour{1.4, 20 * TicksASecond}};
}

bool Recovery::IsStuck(const Seen& seen, double acceleration, bool onward)
{
    const bool crawls = std::fabs(seen.Speed) < std::min(Crawl, acceleration * StuckTicks / 3);
    Stuck = onward && crawls ? Stuck + 1 : 0;
    if (Distance(seen.Place, Where) > GotAway)
        Tries = 0;
    return Stuck >= StuckTicks;
}

Manoeuvre Recovery::Next(const Seen& seen, double acceleration, bool onward)
{
    if (Back > 0)
        return {.Backs = --Back > 0};
    if (!IsStuck(seen, acceleration, onward))
    {
        if (Round > 0)
            --Round;
        return {.Aside = Round > 0 ? Aside : 0};
    }
    // The same way takes as much longer as the root of the acceleration is smaller.
    const double slower = std::max(base::Sqrt(WholeCar / std::max(acceleration, 1e-4)), 1.0);
    const auto ticks = [&](int whole, int most) { return static_cast<int>(std::min<double>(whole * slower, most)); };
    Stuck = 0;
    Where = seen.Place;
    Back = ticks(BackTicks + MoreBack * Tries, LongestBack);
    if (Tries >= Patience)
    {
        const Detour& way = Detours[static_cast<std::size_t>(Tries - Patience) % Detours.size()];
        Aside = way.Aside;
        Round = ticks(way.Ticks, LongestDetour);
    }
    ++Tries;
    return {.Backs = true};
}
}
