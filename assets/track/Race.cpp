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
    {142.2, 3.26, 10.5},   {189.0, 3.12, 9.2},    {225.9, -3.16, 11.7},  {264.9, -0.43, 8.2},   {319.6, 6.16, 8.6},
    {348.9, -3.92, 18.1},  {376.7, 3.04, 8.0},    {418.2, -3.95, 15.4},  {659.9, -2.92, 14.5},  {691.6, -1.44, 8.8},
    {779.5, -3.11, 10.7},  {859.9, -2.81, 9.2},   {878.0, 0.96, 14.5},   {909.5, -4.44, 16.4},  {928.0, -7.23, 21.2},
    {1069.7, -4.08, 10.6}, {1089.7, 1.82, 15.5},  {1106.5, -1.39, 18.2}, {1160.2, 4.70, 9.6},   {1189.2, -1.49, 9.0},
    {1213.7, -5.81, 9.0},  {1238.4, -1.81, 13.1}, {1310.2, -4.56, 14.2}, {1339.5, 0.15, 17.4},  {1359.0, 4.87, 12.6},
    {1434.1, 3.91, 8.8},   {1507.1, 5.86, 9.5},   {1526.2, 2.00, 11.9},  {1598.0, -3.06, 19.0}, {1652.9, -4.93, 12.7},
    {1730.5, 1.84, 15.6},  {1752.6, 0.50, 15.8},  {1773.4, -0.81, 10.9}, {1845.7, -6.23, 23.7}, {1943.8, 5.17, 8.0},
    {1971.2, 4.28, 8.0},   {1996.6, -1.48, 13.9}, {2020.0, -0.94, 13.9}, {2041.1, -1.11, 15.2}, {2102.7, 0.17, 15.5},
    {2120.0, -0.85, 11.9},
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
        {0.0640, 5.40, 1.3, 0.0460, 0.045, Rolling}, {0.0640, 5.40, 1.2, 0.0445, 0.042, Rolling},
        {0.0640, 5.37, 1.2, 0.0440, 0.042, Rolling}, {0.0640, 5.34, 1.2, 0.0435, 0.042, Rolling},
        {0.0640, 5.31, 1.2, 0.0430, 0.042, Rolling}, {0.0640, 5.28, 1.2, 0.0425, 0.042, Rolling},
        {0.0640, 5.25, 1.2, 0.0420, 0.042, Rolling}, {0.0640, 5.22, 1.2, 0.0415, 0.042, Rolling},
    };
    return drivers;
}

const std::vector<int>& GridSlots()
{
    static const std::vector<int> slots{7, 0, 1, 2, 3, 4, 5, 6}; // the player starts last
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
