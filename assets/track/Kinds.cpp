// SPDX-License-Identifier: Zlib
// The table of the models that stand in the world.
#include "assets/track/Plan.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace assets::track
{
namespace
{
std::vector<Kind> Buildings()
{
    return {
        {"house_a", 5.0, 4.0, 6.5, Shadow::Block, false},      {"house_b", 4.0, 4.5, 8.5, Shadow::Block, false},
        {"house_c", 6.5, 4.0, 6.0, Shadow::Block, false},      {"house_d", 3.6, 3.6, 9.5, Shadow::Block, false},
        {"rowhouse_a", 3.0, 3.5, 8.0, Shadow::Block, false},   {"rowhouse_b", 3.5, 3.5, 9.0, Shadow::Block, false},
        {"rowhouse_c", 4.0, 3.5, 10.0, Shadow::Block, false},  {"rowhouse_a_s", 3.0, 3.5, 8.0, Shadow::Block, false},
        {"rowhouse_b_s", 3.5, 3.5, 9.0, Shadow::Block, false}, {"rowhouse_c_s", 4.0, 3.5, 10.0, Shadow::Block, false},
        {"villa", 8.0, 5.0, 8.0, Shadow::Block, false},        {"church", 5.0, 9.0, 9.0, Shadow::Block, false},
        {"tower", 2.3, 2.3, 27.0, Shadow::Block, false},       {"stand", 13.0, 5.5, 9.5, Shadow::Block, false},
        {"pits", 38.0, 4.5, 6.5, Shadow::Block, false},        {"gantry", 1.0, 11.6, 12.0, Shadow::None, false},
        {"arch", 13.5, 1.5, 11.0, Shadow::Block, false},       {"gallery", 3.0, 2.0, 5.5, Shadow::Block, false},
        {"shedbox", 3.5, 1.5, 3.2, Shadow::Block, false},      {"marshal", 1.2, 1.2, 3.0, Shadow::Block, false},
    };
}

std::vector<Kind> Plants()
{
    std::vector<Kind> kinds{
        {"cypress", 1.2, 1.2, 11.0, Shadow::Cone, false}, {"cypress_r", 1.2, 1.2, 11.0, Shadow::Cone, true},
        {"pine", 4.2, 4.2, 11.5, Shadow::Crown, false},   {"pine_r", 4.2, 4.2, 11.5, Shadow::Crown, true},
        {"plane", 6.2, 6.2, 16.0, Shadow::Crown, false},  {"oak", 3.4, 3.4, 7.5, Shadow::Crown, false},
        {"olive", 2.2, 2.2, 4.4, Shadow::Crown, false},   {"bush", 1.5, 1.5, 1.8, Shadow::Crown, false},
        {"hedge", 3.0, 0.7, 2.4, Shadow::Block, false},   {"hedge_rim", 6.0, 0.7, 2.4, Shadow::Block, false},
    };
    for (const Kind& tree : std::vector<Kind>(kinds))
        if (HasFarModel(tree.Name))
            kinds.push_back({tree.Name + Far, tree.HalfX, tree.HalfZ, tree.Height, tree.Cast, false});
    return kinds;
}

std::vector<Kind> Furniture()
{
    std::vector<Kind> kinds{
        {"stonewall", 6.0, 0.35, 1.3, Shadow::Block, false},
        {"pitwall", 6.0, 0.25, 1.0, Shadow::Block, false},
        {"fence", 6.0, 0.1, 2.6, Shadow::None, false},
        {"tyres", 0.75, 0.75, 1.1, Shadow::Block, true},
        {"cone", 0.3, 0.3, 0.75, Shadow::Block, false},
        {"bollard", 0.2, 0.2, 1.0, Shadow::Block, false},
        {"bale", 1.0, 0.8, 1.9, Shadow::Block, false},
        {"sign_100", 0.9, 0.1, 2.2, Shadow::None, false},
        {"sign_50", 0.9, 0.1, 2.2, Shadow::None, false},
        {"arrows", 3.0, 0.1, 1.8, Shadow::Block, false},
        {"arrows_r", 3.0, 0.1, 1.8, Shadow::Block, false},
        {"pier", 1.5, 12.0, 1.2, Shadow::None, false},
        {"sailboat", 1.3, 3.2, 9.0, Shadow::None, false},
        {"rowboat", 0.8, 2.0, 0.8, Shadow::None, false},
        {"parasol", 1.5, 1.5, 2.4, Shadow::Roof, false},
        {"flag", 0.2, 0.2, 8.0, Shadow::None, false},
        {"stonewall_rim", 6.0, 0.35, 1.3, Shadow::Block, false},
        {"wallend", 0.55, 0.55, 1.6, Shadow::Block, false},
        {"backdrop", 0, 0, 0, Shadow::None, false},
    };
    for (int i = 1; i <= 6; ++i)
        kinds.push_back({"board_" + std::to_string(i), 4.0, 0.1, 1.6, Shadow::Block, false});
    return kinds;
}
}

bool HasFarModel(const std::string& name)
{
    const std::array trees{"plane", "oak", "cypress", "pine", "olive", "bush"};
    return std::find(trees.begin(), trees.end(), name) != trees.end();
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
