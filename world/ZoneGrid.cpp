// SPDX-License-Identifier: Zlib
#include "world/ZoneGrid.h"

#include "world/Cars.h"

#include <algorithm>
#include <cstring>

namespace world
{
void ZoneGrid::Learn(std::span<const Target> zones)
{
    static_assert(sizeof(Target) == 4 * sizeof(float)); // nothing between the numbers
    if (zones.size() != Zones.size())
    {
        Zones.assign(zones.size(), {});
        Grid.Reset(zones.size());
        Found.Reserve(zones.size());
    }
    else if (zones.empty() || std::memcmp(&zones.front().X, &Zones.front().X, zones.size_bytes()) == 0)
        return;
    for (std::size_t zone = 0; zone < zones.size(); ++zone)
    {
        Zones[zone] = zones[zone];
        Grid.Put(zone, {zones[zone].X, zones[zone].Z, zones[zone].R});
    }
}

bool ZoneGrid::Holds(const render::Obj& object)
{
    const auto last = static_cast<std::int32_t>(Zones.size()) - 1;
    Grid.Look({object.X, object.Z, 0}, {0, last}, Found);
    const std::span<const std::int32_t> found = Found.Bodies();
    return std::any_of(found.begin(), found.end(),
                       [&](std::int32_t zone) { return IsInside(object, Zones[static_cast<std::size_t>(zone)]); });
}
}
