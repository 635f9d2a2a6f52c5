// SPDX-License-Identifier: Zlib
// world/ZoneGrid.h: whether an object stands in one of many zones, without asking every zone.
#pragma once
#include "render/Scene.h"
#include "world/NearGrid.h"
#include "world/Race.h"

#include <cstdint>
#include <span>
#include <vector>

namespace world
{
class ZoneGrid
{
public:
    // Compares the zones with what is known of them, and learns those that are others. Once before the questions of a
    // step: zones may be written at any time.
    void Learn(std::span<const Target> zones);
    // Whether IsInside holds for one of them.
    bool Holds(const render::Obj& object);

private:
    std::vector<Target> Zones;
    NearGrid Grid; // of the zones by number
    BodyList Found;
};
}
