// SPDX-License-Identifier: Zlib
#include "assets/track/Stops.h"

#include <map>

namespace assets::track
{
namespace
{
// `count` stops along the model's front, `step` apart, their middle at `z`.
std::vector<Stop> StopRow(int count, double step, double z, double radius)
{
    std::vector<Stop> row;
    for (int i = 0; i < count; ++i)
        row.push_back({(i - (count - 1) / 2.0) * step, z, radius});
    return row;
}

// Two behind the front of a terraced house of this width.
std::vector<Stop> BehindFront(double width)
{
    const double radius = width / 4 - 0.05;
    return StopRow(2, width / 2, -3.4 + radius, radius);
}

const std::map<std::string, std::vector<Stop>>& AllStops()
{
    static const std::vector<Stop> board = StopRow(3, 2.7, 1.1, 1.2), arrows = StopRow(2, 3.0, 1.3, 1.4);
    static const std::map<std::string, std::vector<Stop>> stops{
        {"plane", {{0, 0, 0.55}}},
        {"oak", {{0, 0, 0.5}}},
        {"pine", {{0, 0, 0.5}}},
        {"olive", {{0, 0, 0.4}}},
        {"cypress", {{0, 0, 0.5}}},
        {"hedge", StopRow(3, 2.0, 0, 0.9)},
        {"hedge_rim", StopRow(6, 2.0, 0, 0.9)},
        {"gallery", {{-3, -1.6, 0.5}, {3, -1.6, 0.5}}},
        {"arch", {{-11.5, 0, 1.9}, {11.5, 0, 1.9}}},
        {"rowhouse_a", BehindFront(6)},
        {"rowhouse_b", BehindFront(7)},
        {"rowhouse_c", BehindFront(8)},
        {"rowhouse_a_s", BehindFront(6)},
        {"rowhouse_b_s", BehindFront(7)},
        {"rowhouse_c_s", BehindFront(8)},
        {"shedbox", StopRow(3, 2.4, 1.6, 0.8)},
        {"house_a", {{0, 0, 4.8}}},
        {"house_b", {{0, 0, 4.8}}},
        {"house_c", {{0, 0, 4.8}}},
        {"house_d", {{0, 0, 4.4}}},
        {"villa", {{0, 0, 5.8}}},
        {"church", {{0, 0, 5.8}}},
        {"tower", {{0, 0, 3.1}}},
        {"stand", StopRow(3, 8.7, 0, 4.2)},
        {"pits", StopRow(8, 9.0, 0, 4.2)},
        {"gantry", {{0, -11.15, 0.7}, {0, 11.15, 0.7}}},
        {"stonewall", StopRow(4, 3.0, 1.05, 1.4)},
        {"pitwall", StopRow(3, 4.0, 0, 0.9)},
        {"fence", StopRow(3, 4.0, 1.8, 1.9)},
        {"board_1", board},
        {"board_2", board},
        {"board_3", board},
        {"board_4", board},
        {"board_5", board},
        {"board_6", board},
        {"arrows", arrows},
        {"arrows_r", arrows},
        {"bale", {{0, 0, 0.95}}},
        {"marshal", {{0, 0, 1.2}}},
    };
    return stops;
}
}

std::vector<Stop> StopsOf(const std::string& model)
{
    const auto found = AllStops().find(model);
    return found == AllStops().end() ? std::vector<Stop>{} : found->second;
}
}
