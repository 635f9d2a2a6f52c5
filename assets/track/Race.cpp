#include "assets/track/Race.h"

#include "base/Numbers.h"

#include <algorithm>

namespace assets::track
{
namespace
{
// Along the lap, to the left of the centre, radius. Found by driving: the computer drivers steer in straight lines from
// centre to centre, so these make their line, and their laps stay on the road.
struct Gate
{
    double S, Left, R;
};
const Gate Gates[] = {
    {155.5, 5.76, 8.3},    {197.4, 6.50, 15.4},   {231.4, -2.78, 12.4},  {307.4, 0.52, 10.3},   {338.4, -4.87, 20.2},
    {377.6, 2.74, 9.9},    {413.8, -4.14, 15.0},  {668.7, 1.25, 9.6},    {777.4, -3.87, 11.2},  {849.7, -3.38, 8.0},
    {925.1, -5.57, 15.6},  {1056.5, -4.24, 8.1},  {1086.5, 1.64, 15.6},  {1096.0, 1.29, 14.0},  {1107.5, -3.07, 18.2},
    {1120.6, -1.30, 13.5}, {1143.9, -2.98, 13.6}, {1155.2, -4.69, 16.9}, {1193.2, -5.94, 14.0}, {1220.5, 4.28, 16.7},
    {1241.8, 4.73, 20.9},  {1294.4, 3.14, 13.7},  {1334.2, 0.41, 17.6},  {1346.5, 2.85, 17.8},  {1356.4, 2.06, 10.7},
    {1506.8, 2.98, 10.9},  {1528.7, -2.59, 21.3}, {1602.7, -1.19, 12.4}, {1663.6, -6.09, 22.6}, {1723.9, -0.67, 11.6},
    {1755.8, -3.33, 24.0}, {1823.4, -3.14, 20.5}, {1942.9, 3.39, 9.9},   {1962.7, 2.95, 8.0},   {2117.8, -0.85, 11.9},
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
    static const std::vector<Driver> drivers{
        {0.0640, 5.35, 1.3, 0.0414, 0.045, Rolling}, {0.0640, 5.22, 1.2, 0.0336, 0.042, Rolling},
        {0.0640, 5.19, 1.2, 0.0319, 0.042, Rolling}, {0.0640, 5.16, 1.2, 0.0303, 0.042, Rolling},
        {0.0640, 5.13, 1.2, 0.0286, 0.042, Rolling}, {0.0640, 5.10, 1.2, 0.0270, 0.042, Rolling},
        {0.0640, 5.07, 1.2, 0.0253, 0.042, Rolling}, {0.0640, 5.04, 1.2, 0.0236, 0.042, Rolling},
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
