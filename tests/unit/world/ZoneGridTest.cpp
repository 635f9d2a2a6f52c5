// SPDX-License-Identifier: Zlib
#include "world/ZoneGrid.h"

#include "base/Random.h"
#include "world/Cars.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace
{
bool IsInsideAny(const std::vector<world::Target>& zones, const render::Obj& object)
{
    return std::any_of(zones.begin(), zones.end(),
                       [&](const world::Target& zone) { return world::IsInside(object, zone); });
}

render::Obj At(float x, float z)
{
    render::Obj object;
    object.X = x;
    object.Z = z;
    return object;
}
}

TEST(ZoneGrid, HoldsWhoIsInsideAnyZone)
{
    constexpr float infinite = std::numeric_limits<float>::infinity();
    constexpr float odd[] = {infinite, -infinite, std::numeric_limits<float>::quiet_NaN(), 1e30f, 0, -5};
    base::Random random;
    random.Seed(3);
    const auto number = [&](double most) { return static_cast<float>((random.Next() - 0.5) * most); };
    world::ZoneGrid grid;
    std::vector<world::Target> zones;
    int inside = 0;
    for (int step = 0; step < 400; ++step)
    {
        if (step % 50 == 0) // another map
        {
            zones.assign(static_cast<std::size_t>(step / 5), {});
            for (world::Target& zone : zones)
                zone = {number(600), number(9), number(600), number(60)};
        }
        if (!zones.empty()) // a script writes
        {
            world::Target& zone = zones[static_cast<std::size_t>(base::Floor(random.Next() * 1e6)) % zones.size()];
            float* const fields[] = {&zone.X, &zone.Y, &zone.Z, &zone.R};
            *fields[step % 4] = step % 10 == 9 ? odd[step / 10 % 6] : number(80);
        }
        grid.Learn(zones);
        for (int n = 0; n < 20; ++n)
        {
            const render::Obj object = At(n == 19 ? odd[step % 6] : number(600), number(600));
            ASSERT_EQ(grid.Holds(object), IsInsideAny(zones, object)) << "step " << step;
            inside += grid.Holds(object) ? 1 : 0;
        }
    }
    EXPECT_GT(inside, 400);
    EXPECT_LT(inside, 7600);
}

TEST(ZoneGrid, TheEdgeIsOutside)
{
    world::ZoneGrid grid;
    EXPECT_FALSE(grid.Holds(At(0, 0))); // nothing learnt yet
    const std::vector<world::Target> zones = {{10, 0, 6, 4}};
    grid.Learn(zones);
    EXPECT_FALSE(grid.Holds(At(10, 10)));
    EXPECT_TRUE(grid.Holds(At(10, 9.999f)));
    grid.Learn({});
    EXPECT_FALSE(grid.Holds(At(10, 9.999f)));
}

TEST(ZoneGrid, EveryNumberThatIsWrittenCounts)
{
    world::ZoneGrid grid;
    std::vector<world::Target> zones = {{100, 0, 100, 4}, {10, 0, 6, 4}};
    grid.Learn(zones);
    EXPECT_TRUE(grid.Holds(At(10, 8)));
    for (float* const number : {&zones[1].X, &zones[1].Z, &zones[1].R})
    {
        const float before = *number;
        *number = 1;
        grid.Learn(zones);
        EXPECT_FALSE(grid.Holds(At(10, 8)));
        *number = before;
        grid.Learn(zones);
        EXPECT_TRUE(grid.Holds(At(10, 8)));
    }
}
