// SPDX-License-Identifier: Zlib
#include "assets/track/Ground.h"

#include <thread>
#include <vector>

namespace assets::track
{
namespace
{
void PaintRows(Canvas& ground, const Plan& plan, const Terrain& terrain, int first, int step)
{
    for (int z = first; z < GroundSize; z += step)
        for (int x = 0; x < GroundSize; ++x)
        {
            const Surface road = RoadSurface(plan, terrain, x, z);
            if (road.Cover >= 1)
            {
                ground.Set(x, z, road.Colour);
                continue;
            }
            Rgb colour = LandColour(plan, terrain, x, z);
            const Surface gravel = GravelSurface(plan, terrain, x, z);
            colour = Mix(colour, gravel.Colour, gravel.Cover);
            ground.Set(x, z, Mix(colour, road.Colour, road.Cover));
        }
}
}

Canvas PaintGround(const Plan& plan)
{
    const Terrain terrain = SurveyTerrain(plan);
    Canvas ground(GroundSize, GroundSize, {});
    {
        // Every texel depends on its place alone, so the rows can be shared out.
        constexpr int Painters = 2;
        std::vector<std::jthread> painters;
        painters.reserve(Painters);
        for (int i = 0; i < Painters; ++i)
            painters.emplace_back([&, i] { PaintRows(ground, plan, terrain, i, Painters); });
    }
    PaintMarkings(ground, plan);
    PaintShadows(ground, plan);
    return ground;
}
}
