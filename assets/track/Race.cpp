// SPDX-License-Identifier: Zlib
#include "assets/track/Race.h"

#include "base/Numbers.h"

#include <algorithm>

namespace assets::track
{
namespace
{
// Along the lap, to the left of the centre, radius. Found by driving: the computer drivers steer in straight lines from
// centre to centre, so these make their line, and their laps stay on the road. Pushed aside, they steer straight for
// the next centre as well: before the village, the avenue, the hedges and the pits a gate in the middle of the road
// leads them in, else they end at the first wall.
struct Gate
{
    double S, Left, R;
};
const Gate Gates[] = {
    {157.4, 5.61, 10.0},   {162.2, 5.51, 9.2},    {312.9, 5.31, 8.0},   {347.2, -0.44, 24.0},  {351.2, -0.83, 20.0},
    {369.4, -4.04, 16.3},  {387.1, -1.61, 10.3},  {417.0, -6.04, 19.2}, {454.0, 0.00, 9.0},    {653.0, -0.12, 8.0},
    {778.4, -1.43, 8.9},   {836.8, -5.52, 8.4},   {892.9, 2.47, 9.2},   {928.3, -5.74, 15.6},  {962.0, 1.00, 9.0},
    {1017.6, -2.22, 18.0}, {1073.0, -1.51, 10.1}, {1086.4, 2.16, 21.1}, {1167.8, -0.07, 24.0}, {1206.2, -6.09, 8.1},
    {1214.3, -4.46, 8.0},  {1238.3, 6.50, 17.0},  {1301.7, 2.32, 8.3},  {1308.8, 3.14, 11.6},  {1378.0, 0.00, 9.0},
    {1414.3, 2.24, 14.6},  {1502.8, 2.13, 9.9},   {1517.5, 2.01, 11.0}, {1560.7, -6.50, 23.9}, {1585.4, 6.21, 16.3},
    {1615.7, 0.38, 20.3},  {1624.3, 0.18, 23.3},  {1641.0, 0.81, 11.5}, {1651.6, -2.69, 17.9}, {1725.4, -2.44, 19.0},
    {1731.8, -2.23, 24.0}, {1826.7, -4.60, 15.0}, {1879.8, -1.90, 8.0}, {1926.0, -0.07, 8.0},  {1947.0, -1.05, 12.0},
    {1959.8, -1.87, 8.9},  {2004.0, -1.83, 8.0},  {2072.0, 0.00, 9.0},
};

double Tenth(double value)
{
    return std::round(value * 10) / 10;
}

// Distance from the edge of everything a car may drive on without loss; positive on grass.
double GrassRoom(const Plan& plan, double x, double z)
{
    const int nearest = plan.Road.Nearest(x, z);
    const RoadPoint& p = plan.Road.At(nearest);
    const double offset = (z - p.Z) * p.DirX - (x - p.X) * p.DirZ;
    double room = std::hypot(p.X - x, p.Z - z) - p.HalfWidth - 2.2; // kerbs are free
    const double length = plan.Road.Length, along = nearest * length / plan.Road.Count();
    const double s = along > length / 2 ? along - length : along;
    if (s > PitFrom - 44 && s < PitTo + 44 && offset > 0)
        room = std::min(room, std::max({offset - (BoxLeft + 5.5), PitFrom - 40 - s, s - PitTo - 40}));
    room = std::min(room, LayByEdge(plan, along, offset) - 0.8);
    return std::min(room, 60.0);
}

// Covers the cells where `room` is positive with circles no larger than their room, large ones first.
template <class Room> std::vector<Zone> FillWithZones(double cell, double least, double most, const Room& room)
{
    const int count = base::RoundEven(WorldSize / cell);
    struct Place
    {
        double X, Z, R;
    };
    std::vector<Place> places;
    for (int j = 0; j < count; ++j)
        for (int i = 0; i < count; ++i)
        {
            const double x = (i + 0.5) * cell, z = (j + 0.5) * cell, r = std::min(room(x, z), most);
            if (r >= least)
                places.push_back({x, z, r});
        }
    std::stable_sort(places.begin(), places.end(), [](const Place& a, const Place& b) { return a.R > b.R; });
    std::vector<Zone> zones;
    for (const Place& place : places)
    {
        const bool covered = std::any_of(
            zones.begin(), zones.end(),
            [&](const Zone& zone)
            { return std::hypot(zone.X - place.X, zone.Z - place.Z) < zone.R - 0.4 * std::min(place.R, 2.5); });
        if (!covered)
            zones.push_back({place.X, place.Z, Tenth(place.R)});
    }
    return zones;
}
}

std::vector<Zone> Checkpoints(const Circuit& road)
{
    std::vector<Zone> zones;
    for (const Gate& gate : Gates)
    {
        const Point p = road.Place(gate.S, gate.Left);
        zones.push_back({Tenth(p.X), Tenth(p.Y), gate.R});
    }
    return zones;
}

std::vector<Zone> AlternativeCheckpoints(const Circuit& road)
{
    constexpr double Ahead = 10;
    std::vector<Zone> zones;
    for (const Gate& gate : Gates)
    {
        const Point p = road.Place(gate.S, gate.Left);
        const RoadPoint q = road.Along(gate.S);
        zones.push_back({Tenth(p.X + q.DirX * Ahead), Tenth(p.Y + q.DirZ * Ahead), gate.R + Ahead});
    }
    return zones;
}

std::vector<Zone> RepairBoxes(const Plan& plan)
{
    constexpr double Reach = 4.4;
    std::vector<Zone> zones;
    const auto add = [&](double s, double left)
    {
        const Point p = plan.Road.Place(s, left);
        zones.push_back({Tenth(p.X), Tenth(p.Y), Reach});
    };
    for (int box = 0; box < PitBoxes; ++box)
        add(BoxFirst + BoxLength * box, BoxLeft);
    for (const LayBy& bay : plan.LayBys)
        add(bay.S, bay.Side * (plan.Road.Along(bay.S).HalfWidth + LayByBox));
    return zones;
}

std::vector<Zone> GrassZones(const Plan& plan)
{
    return FillWithZones(
        2.5, 2.2, 40, [&](double x, double z) { return InsideOutline(plan.Lake, x, z) ? -1 : GrassRoom(plan, x, z); });
}

std::vector<Zone> WaterZones(const Plan& plan)
{
    const auto shore = [&](double x, double z)
    {
        if (!InsideOutline(plan.Lake, x, z))
            return -1.0;
        double least = 60;
        for (std::size_t i = 0; i < plan.Lake.size(); ++i)
            least = std::min(least, SegmentDistance(plan.Lake[i], plan.Lake[(i + 1) % plan.Lake.size()], {x, z}));
        return least - 1.5;
    };
    return FillWithZones(2.5, 2.0, 40, shore);
}

const std::vector<Driver>& Drivers()
{
    constexpr double Rolling = 0.0005; // so little that a car with any damage still moves
    // The user's; three that race for the first place; four for whoever is learning.
    static const std::vector<Driver> drivers{
        {0.0640, 5.35, 1.3, 0.0410, 0.045, Rolling}, {0.0640, 5.59, 1.2, 0.0434, 0.042, Rolling},
        {0.0640, 5.63, 1.2, 0.0443, 0.042, Rolling}, {0.0640, 5.67, 1.2, 0.0451, 0.042, Rolling},
        {0.0640, 5.22, 1.2, 0.0335, 0.042, Rolling}, {0.0640, 5.18, 1.2, 0.0310, 0.042, Rolling},
        {0.0640, 5.16, 1.2, 0.0290, 0.042, Rolling}, {0.0640, 5.12, 1.2, 0.0270, 0.042, Rolling},
    };
    return drivers;
}

const std::vector<int>& GridSlots()
{
    static const std::vector<int> slots{7, 0, 1, 2, 3, 4, 5, 6};
    return slots;
}

Standing GridPlace(const Circuit& road, int slot)
{
    const double s = GridFront - 2.4 - GridStep * slot, left = slot % 2 == 0 ? GridLeft : -GridLeft;
    const Point p = road.Place(s, left);
    const RoadPoint q = road.Along(s);
    return {"", p.X, p.Y, std::atan2(-q.DirX, q.DirZ)};
}
}
