// SPDX-License-Identifier: Zlib
#include "assets/track/Scatter.h"

#include "assets/common/Noise.h"

#include <algorithm>

namespace assets::track
{
namespace
{
double LineDistance(const std::vector<Point>& line, double x, double z)
{
    double least = 1e9;
    for (std::size_t i = 0; i + 1 < line.size(); ++i)
        least = std::min(least, SegmentDistance(line[i], line[i + 1], {x, z}));
    return least;
}

class Grove
{
public:
    explicit Grove(Plan& plan) : Layout(plan) {}

    // Free ground with this much room to roads, houses and other trees.
    bool Free(double x, double z, double room) const
    {
        if (x < 3 || z < 3 || x > WorldSize - 3 || z > WorldSize - 3 || InsideOutline(Layout.Lake, x, z))
            return false;
        const RoadPoint& road = Layout.Road.At(Layout.Road.Nearest(x, z));
        if (std::hypot(road.X - x, road.Z - z) < road.HalfWidth + 8 + room)
            return false;
        if (OnGravelOrPits(x, z) || InLayBy(x, z, room) || InsideOutline(Layout.Plaza, x, z))
            return false;
        for (const Path& path : Layout.Paths)
            if (LineDistance(path.Line, x, z) < path.Width / 2 + 0.6 + room * 0.3)
                return false;
        for (const Standing& item : Layout.Items)
        {
            const Kind& kind = KindOf(item.Name);
            if (std::hypot(item.X - x, item.Z - z) < std::max(kind.HalfX, kind.HalfZ) + room)
                return false;
        }
        return true;
    }
    bool InField(double x, double z) const
    {
        return std::any_of(Layout.Fields.begin(), Layout.Fields.end(),
                           [&](const Field& field) { return InsideOutline(field.Outline, x, z); });
    }
    bool Try(const std::string& name, double x, double z, double room)
    {
        if (!Free(x, z, room))
            return false;
        Layout.Items.push_back({name, x, z, 0});
        return true;
    }
    // A tree near the road, with a trunk that stops cars.
    void Roadside(const std::string& name, double s, double left)
    {
        const Point p = Layout.Road.Place(s, left);
        if (!InsideOutline(Layout.Lake, p.X, p.Y))
            Layout.Items.push_back({name, p.X, p.Y, 0});
    }

private:
    bool InLayBy(double x, double z, double room) const
    {
        const double s = Layout.Road.Nearest(x, z) * Layout.Road.Length / Layout.Road.Count();
        return LayByEdge(Layout, s, Layout.Road.Offset(x, z)) < 3 + room;
    }
    bool OnGravelOrPits(double x, double z) const
    {
        const int nearest = Layout.Road.Nearest(x, z);
        const double offset = Layout.Road.Offset(x, z);
        const double s = nearest * Layout.Road.Length / Layout.Road.Count();
        if ((s < PitTo || s > Layout.Road.Length + PitFrom) && offset > 0 && offset < 40)
            return true;
        if ((s < 30 || s > Layout.Road.Length - 104) && offset < 0 && offset > -30)
            return true; // the stands
        for (const Gravel& bed : Layout.Gravels)
            if (s > bed.S0 - 6 && s < bed.S1 + 6 && offset > bed.Near - 4 && offset < bed.Far + 4)
                return true;
        return false;
    }
    Plan& Layout;
};

void Avenues(Grove& grove)
{
    // Cypresses in file: up to the villa, along the lake road, round the village, along the east wall.
    for (int i = 0; i < 11; ++i)
        grove.Try("cypress", 112 + 1.2 * i, 352 + 11.0 * i, 1.0);
    for (int i = 0; i < 9; ++i)
        grove.Try("cypress", 566 - 0.5 * i, 180 + 12.0 * i, 1.2);
    for (int i = 0; i < 12; ++i)
        grove.Try("cypress", 300 + 16.0 * i, 250 - 1.1 * i, 1.2);
    for (int i = 0; i < 10; ++i)
        grove.Try("cypress", 240 + 14.0 * i, 187 - 1.3 * i, 1.4);
    for (int i = 0; i < 6; ++i)
        grove.Roadside("cypress_r", 612 + 10.0 * i, 12.2);
    for (int i = 0; i < 9; ++i)
        grove.Roadside("cypress_r", 728 + 11.0 * i, 12.2);
    for (int i = 0; i < 8; ++i)
        grove.Roadside("cypress", 1386 + 11.0 * i, -13.0);
    for (int i = 0; i < 7; ++i)
        grove.Roadside("cypress_r", 1682 + 34.0 * i, 11.5);
    for (int i = 0; i < 4; ++i)
        grove.Roadside("pine_r", 1246 + 16.0 * i, 11.8);
    for (int i = 0; i < 4; ++i)
        grove.Roadside("pine_r", 150 + 34.0 * i, -25.0);
}

void Olives(Grove& grove, const Plan& plan, Sequence& dice)
{
    for (const Field& field : plan.Fields)
    {
        if (field.Grows != Field::Olives)
            continue;
        const double c = std::cos(field.RowAngle), s = std::sin(field.RowAngle);
        for (int row = -14; row <= 14; ++row)
            for (int place = -14; place <= 14; ++place)
            {
                const double a = row * 17.0 + dice.Between(-2, 2), b = place * 15.0 + dice.Between(-2, 2);
                const double x = 260 + a * c - b * s, z = 260 + a * s + b * c;
                if (InsideOutline(field.Outline, x, z))
                    grove.Try("olive", x, z, 1.5);
            }
    }
}

void Bales(Grove& grove, const Plan& plan, Sequence& dice)
{
    for (const Field& field : plan.Fields)
        if (field.Grows == Field::Stubble)
            for (int i = 0; i < 40; ++i)
            {
                const double x = dice.Between(140, 460), z = dice.Between(240, 634);
                if (InsideOutline(field.Outline, x, z) && dice.Next() < 0.9)
                    grove.Try("bale", x, z, 7);
            }
}

void Wild(Grove& grove, Sequence& dice)
{
    for (int i = 0; i < 1700; ++i)
    {
        const double x = dice.Between(4, WorldSize - 4), z = dice.Between(4, WorldSize - 4);
        const double rim = std::min({WorldSize - x, WorldSize - z, z}); // thicker toward the rim
        const double thick = Fbm(x / 55, z / 55, 301, 3) + SmoothStep(60, 8, rim) * 0.9;
        const double pick = dice.Next(), luck = dice.Next();
        if (grove.InField(x, z) || thick < 0.12 || luck > 0.25 + thick)
            continue;
        if (pick < 0.42)
            grove.Try("oak", x, z, 3.2);
        else if (pick < 0.6)
            grove.Try("pine", x, z, 4.5);
        else if (pick < 0.78)
            grove.Try("cypress", x, z, 2.4);
        else
            grove.Try("bush", x, z, 1.6);
    }
}
}

void ScatterTrees(Plan& plan)
{
    Grove grove(plan);
    Sequence dice(4711);
    Avenues(grove);
    Olives(grove, plan, dice);
    Bales(grove, plan, dice);
    Wild(grove, dice);
}

void ThinFarTrees(Plan& plan)
{
    constexpr double Beside = 24;    // from the middle of the road
    constexpr double BushesEnd = 60; // a bush farther away is lost in the grass
    const auto away = [&](const Standing& item)
    {
        const RoadPoint& road = plan.Road.At(plan.Road.Nearest(item.X, item.Z));
        return std::hypot(item.X - road.X, item.Z - road.Z);
    };
    std::erase_if(plan.Items, [&](const Standing& item) { return item.Name == "bush" && away(item) > BushesEnd; });
    for (Standing& item : plan.Items)
        if (HasFarModel(item.Name) && away(item) > Beside)
            item.Name += Far;
}
}
