// SPDX-License-Identifier: Zlib
#include "assets/track/Guards.h"

#include "assets/track/Stops.h"
#include "base/Numbers.h"

#include <algorithm>

namespace assets::track
{
namespace
{
constexpr double RowInset = 8;       // of the hedges and walls, from the rim of the world
constexpr double RingRadius = 6;     // large: no car jumps past the middle of one in a tick
constexpr double RingInset = 1;      // of the ring's centres: behind the row, which has guards of its own near the road
constexpr double WaterRing = 14;     // of the ring's centres in the lake, from the shore
constexpr double GuardReach = 32;    // things farther from the middle of the road are seen and not met
constexpr double HedgeReach = 62;    // the rim is a hedge where the road is near, elsewhere a wall
constexpr double SolidRadius = 0.85; // at most, of the models that carry spheres
constexpr double GuardGap = 0.06;
constexpr double RingJoint = 3; // by which guards of the two rings may overlap, so that nothing slips between them

double RoadDistance(const Plan& plan, double x, double z)
{
    const RoadPoint& p = plan.Road.At(plan.Road.Nearest(x, z));
    return std::hypot(p.X - x, p.Z - z);
}

double ShoreDistance(const Plan& plan, Point p)
{
    double least = 1e9;
    for (std::size_t i = 0; i < plan.Lake.size(); ++i)
        least = std::min(least, SegmentDistance(plan.Lake[i], plan.Lake[(i + 1) % plan.Lake.size()], p));
    return least;
}

// A side of the square that lies `inset` within the rim: from `From` along `Dir`.
struct Side
{
    Point From, Dir, Inward;
};
std::vector<Side> Sides(double inset)
{
    const double low = inset, high = WorldSize - inset;
    return {{{low, low}, {1, 0}, {0, 1}},
            {{high, low}, {0, 1}, {-1, 0}},
            {{high, high}, {-1, 0}, {0, -1}},
            {{low, high}, {0, -1}, {1, 0}}};
}

// The largest radius up to the wanted one with which a guard touches nothing that is there already.
double RoomFor(const Plan& plan, const Guard& wanted)
{
    double room = wanted.R;
    for (const Guard& other : plan.Guards)
        room = std::min(room, std::hypot(other.X - wanted.X, other.Z - wanted.Z) - other.R - GuardGap);
    for (const Standing& item : plan.Items)
        if (KindOf(item.Name).Solid)
            room = std::min(room, std::hypot(item.X - wanted.X, item.Z - wanted.Z) - SolidRadius - GuardGap);
    return room;
}

// Radii in steps, so that a few models serve all guards. overlap: with others, units that are allowed.
void AddGuard(Plan& plan, Guard guard, double overlap = 0)
{
    const double room = RoomFor(plan, guard) + overlap;
    if (room < guard.R)
    {
        if (room < 0.5 * guard.R)
            return;
        guard.R = base::Floor(room * 4) / 4.0;
    }
    if (guard.R > 0)
        plan.Guards.push_back(guard);
}

double Inward(const Plan& plan, double x, double z)
{
    const RoadPoint& p = plan.Road.At(plan.Road.Nearest(x, z));
    return std::atan2(x - p.X, p.Z - z);
}

void RingOnLand(Plan& plan)
{
    const double step = 2 * RingRadius + GuardGap;
    for (const Side& side : Sides(RingInset))
        for (double t = 0; t < WorldSize - 2 * RingInset; t += step)
        {
            const double x = side.From.X + side.Dir.X * t, z = side.From.Y + side.Dir.Y * t;
            if (!InsideOutline(plan.Lake, x, z) || ShoreDistance(plan, {x, z}) < WaterRing)
                AddGuard(plan, {x, z, RingRadius, Inward(plan, x, z)});
        }
}

void RingInLake(Plan& plan)
{
    Point last{-1e9, -1e9};
    for (std::size_t i = 0; i < plan.Lake.size(); ++i)
    {
        const Point a = plan.Lake[i], b = plan.Lake[(i + 1) % plan.Lake.size()];
        const double length = std::hypot(b.X - a.X, b.Y - a.Y);
        const Point out{-(b.Y - a.Y) / length, (b.X - a.X) / length};
        for (double t = 0; t < length; t += 0.5)
        {
            const Point foot{Lerp(a.X, b.X, t / length), Lerp(a.Y, b.Y, t / length)};
            if (std::min(foot.X, foot.Y) < -30 || std::max(foot.X, foot.Y) > WorldSize + 30)
                continue;
            Point p{foot.X + WaterRing * out.X, foot.Y + WaterRing * out.Y};
            if (!InsideOutline(plan.Lake, p.X, p.Y))
                p = {foot.X - WaterRing * out.X, foot.Y - WaterRing * out.Y};
            if (ShoreDistance(plan, p) < WaterRing - 0.7 ||
                std::hypot(p.X - last.X, p.Y - last.Y) < 2 * RingRadius + GuardGap)
                continue;
            AddGuard(plan, {p.X, p.Y, RingRadius, Inward(plan, p.X, p.Y)}, RingJoint);
            last = p;
        }
    }
}

void GuardItem(Plan& plan, const Standing& item)
{
    const double c = std::cos(item.Angle), s = std::sin(item.Angle);
    for (const Stop& part : StopsOf(item.Name))
    {
        const double x = item.X + c * part.X - s * part.Z, z = item.Z + s * part.X + c * part.Z;
        const RoadPoint& road = plan.Road.At(plan.Road.Nearest(x, z));
        AddGuard(plan, {x, z, part.R, std::atan2(-road.DirX, road.DirZ)});
    }
}
}

void PutBorder(Plan& plan)
{
    for (const Side& side : Sides(RowInset))
    {
        const double length = WorldSize - 2 * RowInset;
        for (double t = 0; t < length;)
        {
            const auto at = [&](double run) {
                return Point{side.From.X + side.Dir.X * run, side.From.Y + side.Dir.Y * run};
            };
            const Point begin = at(t);
            const bool hedge = RoadDistance(plan, begin.X, begin.Y) < HedgeReach;
            const std::string name = hedge ? "hedge_rim" : "stonewall_rim";
            const double half = KindOf(name).HalfX;
            const Point p = at(t + half);
            if (t + 2 * half <= length + 2 && !InsideOutline(plan.Lake, p.X, p.Y))
                plan.Items.push_back({name, p.X, p.Y, AngleFacing(side.Inward.X, side.Inward.Y)});
            t += 2 * half;
        }
    }
}

void PutGuards(Plan& plan)
{
    RingOnLand(plan);
    RingInLake(plan);
    for (const Standing& item : std::vector<Standing>(plan.Items))
        if (RoadDistance(plan, item.X, item.Z) < GuardReach)
            GuardItem(plan, item);
}
}
