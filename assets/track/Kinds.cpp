// The table of the models that stand in the world, and what of each stops a car.
#include "assets/track/Plan.h"

#include <algorithm>
#include <stdexcept>

namespace assets::track
{
namespace
{
// Between neighbours: spheres that touch push each other away as soon as the race begins.
constexpr double BodyGap = 0.06;

// Something long and thin, met from the front: circles in a row behind its face, a little before it.
std::vector<Guard> Front(double halfX, double halfZ, double radius)
{
    constexpr double Before = 0.3;
    const int count = static_cast<int>(std::ceil(2 * halfX / (2 * radius + BodyGap)));
    const double r = halfX / count - BodyGap / 2;
    std::vector<Guard> row;
    for (int i = 0; i < count; ++i)
        row.push_back({halfX * (2 * i + 1) / count - halfX, r - halfZ - Before, r});
    return row;
}

// A building: circles side by side over its footprint.
std::vector<Guard> Walls(double halfX, double halfZ)
{
    const double most = std::min({halfX, halfZ, 2.6});
    const int across = static_cast<int>(std::ceil(halfX / most)), deep = static_cast<int>(std::ceil(halfZ / most));
    const double r = std::min(halfX / across, halfZ / deep) - BodyGap / 2;
    std::vector<Guard> body;
    for (int i = 0; i < across; ++i)
        for (int k = 0; k < deep; ++k)
            body.push_back({halfX * (2 * i + 1) / across - halfX, halfZ * (2 * k + 1) / deep - halfZ, r});
    return body;
}

std::vector<Guard> Trunk(double radius = 0.7)
{
    return {{0, 0, radius}};
}

const std::vector<Guard> Air;

std::vector<Kind> Buildings()
{
    return {
        {"house_a", 5.0, 4.0, 6.5, Shadow::Block, false, Walls(5, 4)},
        {"house_b", 4.0, 4.5, 8.5, Shadow::Block, false, Walls(4, 4.5)},
        {"house_c", 6.5, 4.0, 6.0, Shadow::Block, false, Walls(6.5, 4)},
        {"house_d", 3.6, 3.6, 9.5, Shadow::Block, false, Walls(3.6, 3.6)},
        {"rowhouse_a", 3.0, 3.5, 8.0, Shadow::Block, false, Front(3, 3.5, 1.6)},
        {"rowhouse_b", 3.5, 3.5, 9.0, Shadow::Block, false, Front(3.5, 3.5, 1.8)},
        {"rowhouse_c", 4.0, 3.5, 10.0, Shadow::Block, false, Front(4, 3.5, 2)},
        {"villa", 8.0, 5.0, 8.0, Shadow::Block, false, Walls(8, 5)},
        {"church", 5.0, 9.0, 9.0, Shadow::Block, false, Walls(5, 9)},
        {"tower", 2.3, 2.3, 27.0, Shadow::Block, false, Walls(2.3, 2.3)},
        {"stand", 13.0, 5.5, 9.5, Shadow::Block, false, Front(13, 5.5, 4.4)},
        {"pits", 38.0, 4.5, 6.5, Shadow::Block, false, Front(38, 4.5, 4.3)},
        {"gantry", 1.0, 11.6, 12.0, Shadow::None, false, {{0, 11.15, 0.7}, {0, -11.15, 0.7}}},
        {"arch", 13.5, 1.5, 11.0, Shadow::Block, false, {{11.5, 0, 1.95}, {-11.5, 0, 1.95}}},
        {"gallery", 3.0, 2.0, 5.5, Shadow::Block, false, {{-2.35, -1.6, 0.6}, {2.35, -1.6, 0.6}, {0, 1.2, 0.6}}},
        {"shedbox", 3.5, 1.5, 3.2, Shadow::Block, false, Front(3.5, 1.5, 1.2)},
        {"marshal", 1.2, 1.2, 3.0, Shadow::Block, false, Trunk(1.1)},
    };
}

std::vector<Kind> Plants()
{
    return {
        {"cypress", 1.2, 1.2, 11.0, Shadow::Cone, false, Trunk()},
        {"cypress_r", 1.2, 1.2, 11.0, Shadow::Cone, true, Air},
        {"pine", 4.2, 4.2, 11.5, Shadow::Crown, false, Trunk()},
        {"pine_r", 4.2, 4.2, 11.5, Shadow::Crown, true, Air},
        {"plane", 6.0, 6.0, 13.0, Shadow::Crown, false, Trunk(0.8)},
        {"oak", 3.4, 3.4, 7.5, Shadow::Crown, false, Trunk()},
        {"olive", 2.2, 2.2, 4.4, Shadow::Crown, false, Trunk(0.6)},
        {"bush", 1.5, 1.5, 1.8, Shadow::Crown, false, Air},
        {"hedge", 3.0, 0.7, 2.4, Shadow::Block, false, Front(3, 0.7, 1.6)},
    };
}

std::vector<Kind> Furniture()
{
    std::vector<Kind> kinds{
        {"stonewall", 6.0, 0.35, 1.3, Shadow::Block, false, Front(6, 0.35, 2)},
        {"pitwall", 6.0, 0.25, 1.0, Shadow::Block, false, Front(6, 0.25, 1)},
        {"fence", 6.0, 0.1, 2.6, Shadow::None, false, Front(6, 0.1, 2)},
        {"tyres", 0.75, 0.75, 1.1, Shadow::Block, true, Air},
        {"cone", 0.3, 0.3, 0.75, Shadow::Block, false, Air},
        {"bollard", 0.2, 0.2, 1.0, Shadow::Block, false, Air},
        {"bale", 1.0, 0.8, 1.9, Shadow::Block, false, Trunk(0.9)},
        {"sign_100", 0.9, 0.1, 2.2, Shadow::None, false, Air},
        {"sign_50", 0.9, 0.1, 2.2, Shadow::None, false, Air},
        {"arrows", 3.0, 0.1, 1.8, Shadow::Block, false, Front(3, 0.1, 1.5)},
        {"arrows_r", 3.0, 0.1, 1.8, Shadow::Block, false, Front(3, 0.1, 1.5)},
        {"pier", 1.5, 12.0, 1.2, Shadow::None, false, Air},
        {"sailboat", 1.3, 3.2, 9.0, Shadow::None, false, Air},
        {"rowboat", 0.8, 2.0, 0.8, Shadow::None, false, Air},
        {"parasol", 1.5, 1.5, 2.4, Shadow::Roof, false, Air},
        {"flag", 0.2, 0.2, 8.0, Shadow::None, false, Air},
    };
    for (int i = 1; i <= 6; ++i)
        kinds.push_back({"board_" + std::to_string(i), 4.0, 0.1, 1.6, Shadow::Block, false, Front(4, 0.1, 2)});
    return kinds;
}
}

const std::vector<Kind>& Kinds()
{
    static const std::vector<Kind> kinds = []
    {
        std::vector<Kind> all = Buildings();
        for (const std::vector<Kind>& more : {Plants(), Furniture()})
            all.insert(all.end(), more.begin(), more.end());
        return all;
    }();
    return kinds;
}

const Kind& KindOf(const std::string& name)
{
    for (const Kind& kind : Kinds())
        if (kind.Name == name)
            return kind;
    throw std::runtime_error("no model kind named " + name);
}
}
