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
    {144.6, 3.84, 9.6},    {184.7, 3.34, 9.6},    {225.9, -3.16, 11.7},  {269.4, -0.14, 8.0},   {319.6, 6.16, 8.6},
    {348.9, -3.92, 18.1},  {373.4, 3.58, 8.0},    {418.2, -3.95, 15.4},  {659.9, -2.92, 14.5},  {696.4, -0.68, 9.9},
    {779.5, -3.11, 10.7},  {862.6, -5.55, 11.5},  {890.4, -3.36, 14.6},  {909.5, -4.44, 16.4},  {927.1, -7.17, 15.8},
    {1072.7, -2.91, 12.0}, {1088.4, 1.50, 14.0},  {1107.8, 2.53, 17.9},  {1161.7, 4.75, 10.7},  {1218.2, -5.83, 8.0},
    {1236.2, -1.60, 13.4}, {1310.2, -4.56, 14.2}, {1337.0, 0.60, 16.0},  {1355.6, 2.43, 12.4},  {1438.9, 3.35, 8.3},
    {1507.1, 5.86, 9.5},   {1526.2, 2.00, 11.9},  {1604.0, -1.44, 14.8}, {1654.4, -4.06, 12.6}, {1724.2, 1.11, 19.6},
    {1752.6, 0.83, 15.8},  {1779.4, -0.80, 11.0}, {1846.1, -4.07, 18.7}, {1944.0, 6.18, 8.0},   {1971.2, 4.28, 8.0},
    {2007.6, -1.42, 13.5}, {2022.7, -0.98, 14.7}, {2041.1, -1.11, 15.2}, {2104.4, 0.16, 15.3},  {2120.0, 0.25, 11.5},
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
        {0.0640, 5.25, 1.3, 0.0460, 0.045, 0.0025}, {0.0640, 5.22, 1.2, 0.0360, 0.042, 0.0025},
        {0.0640, 5.20, 1.2, 0.0345, 0.042, 0.0025}, {0.0640, 5.17, 1.2, 0.0330, 0.042, 0.0025},
        {0.0630, 5.13, 1.2, 0.0315, 0.042, 0.0025}, {0.0630, 5.09, 1.2, 0.0300, 0.042, 0.0025},
        {0.0620, 5.05, 1.2, 0.0285, 0.042, 0.0025}, {0.0620, 5.00, 1.2, 0.0270, 0.042, 0.0025},
    };
    return drivers;
}

const std::vector<int>& GridSlots()
{
    static const std::vector<int> slots{1, 0, 2, 3, 4, 5, 6, 7};
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
