#include "track/Race.h"

#include <algorithm>

namespace Assets
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
    {149.0, 2.43, 8.7},    {184.7, 3.34, 9.6},    {223.1, -4.18, 9.2},   {269.4, -0.14, 8.0},   {319.3, 6.00, 8.6},
    {350.9, -6.00, 16.0},  {392.4, 2.18, 8.0},    {417.3, -2.35, 15.9},  {647.5, -4.46, 12.0},  {706.7, -1.11, 9.1},
    {857.5, -3.45, 8.0},   {887.1, -3.69, 16.0},  {910.4, -3.37, 16.0},  {934.4, -6.00, 16.0},  {1062.7, -3.32, 8.3},
    {1087.8, -0.39, 13.8}, {1112.4, -2.02, 16.0}, {1145.2, 2.11, 12.3},  {1214.9, -6.00, 8.0},  {1238.5, -0.85, 12.8},
    {1310.2, -4.56, 14.2}, {1337.0, 0.60, 16.0},  {1359.2, 0.26, 14.0},  {1449.5, 1.92, 8.0},   {1506.5, 5.78, 8.0},
    {1529.6, 1.10, 10.4},  {1592.4, -0.05, 15.5}, {1666.2, -1.53, 10.6}, {1725.2, -0.66, 16.0}, {1790.1, 1.41, 13.1},
    {1866.5, 1.00, 16.0},  {1947.8, 6.00, 8.0},   {1974.2, 3.04, 8.3},   {2001.5, 1.81, 14.4},  {2041.1, -1.11, 15.2},
    {2096.5, -2.46, 16.0}, {2120.0, -1.38, 13.2},
};

double Tenth(double value)
{
    return std::round(value * 10) / 10;
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

std::vector<Zone> RepairBoxes(const Circuit& road)
{
    std::vector<Zone> zones;
    for (int box = 0; box < PitBoxes; ++box)
    {
        const Point p = road.Place(BoxFirst + BoxLength * box, BoxLeft);
        zones.push_back({Tenth(p.X), Tenth(p.Y), 4.4});
    }
    return zones;
}

namespace
{
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
    return std::min(room, 60.0);
}

// Covers the cells where `room` is positive with circles no larger than their room, large ones first.
template<class Room> std::vector<Zone> FillWithZones(double cell, double least, double most, const Room& room)
{
    const int count = RoundToInt(WorldSize / cell);
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
        {
            const Point a = plan.Lake[i], b = plan.Lake[(i + 1) % plan.Lake.size()];
            const double dx = b.X - a.X, dz = b.Y - a.Y;
            const double t = Clamp01(((x - a.X) * dx + (z - a.Y) * dz) / (dx * dx + dz * dz));
            least = std::min(least, std::hypot(a.X + t * dx - x, a.Y + t * dz - z));
        }
        return least - 1.5;
    };
    return FillWithZones(2.5, 2.0, 40, shore);
}

const std::vector<Driver>& Drivers()
{
    static const std::vector<Driver> drivers{
        {0.0640, 5.25, 1.3, 0.0420, 0.060, 0.0025}, {0.0620, 5.30, 1.2, 0.0390, 0.055, 0.0025},
        {0.0640, 5.15, 1.2, 0.0400, 0.055, 0.0025}, {0.0620, 5.18, 1.2, 0.0385, 0.055, 0.0025},
        {0.0630, 5.10, 1.2, 0.0380, 0.055, 0.0025}, {0.0610, 5.10, 1.2, 0.0370, 0.055, 0.0025},
        {0.0600, 5.00, 1.2, 0.0360, 0.053, 0.0025}, {0.0600, 4.95, 1.2, 0.0350, 0.052, 0.0025},
    };
    return drivers;
}

const std::vector<int>& GridSlots()
{
    static const std::vector<int> slots{0, 1, 2, 3, 4, 5, 6, 7};
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
