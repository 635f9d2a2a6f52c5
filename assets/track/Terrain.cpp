// SPDX-License-Identifier: Zlib
#include "assets/track/Terrain.h"

#include "assets/common/Shapes.h"
#include "base/Numbers.h"

#include <algorithm>

namespace assets::track
{
Terrain::Terrain()
    : Offset(GroundSize, GroundSize, FarAway), Along(GroundSize, GroundSize), HalfWidth(GroundSize, GroundSize),
      Bend(GroundSize, GroundSize), Line(GroundSize, GroundSize), Shore(GroundSize, GroundSize, 60),
      Track(GroundSize, GroundSize, FarAway), Street(GroundSize, GroundSize, FarAway)
{
}

namespace
{
struct Area
{
    int X0, Z0, X1, Z1;
};

// The texels within `reach` units of a segment's box.
Area Around(Point a, Point b, double reach)
{
    const auto low = [&](double v) { return std::clamp(base::Floor((v - reach) * TexelsPerUnit), 0, GroundSize); };
    const auto high = [&](double v) { return std::clamp(base::Floor((v + reach) * TexelsPerUnit) + 1, 0, GroundSize); };
    return {low(std::min(a.X, b.X)), low(std::min(a.Y, b.Y)), high(std::max(a.X, b.X)), high(std::max(a.Y, b.Y))};
}

struct Foot
{
    double T;        // 0 to 1 along the segment
    double Left;     // signed distance to the left of its line
    double Distance; // to the segment
};

Foot FootOn(Point a, Point b, Point p)
{
    const double dx = b.X - a.X, dz = b.Y - a.Y, length = std::hypot(dx, dz);
    const double t = Clamp01(((p.X - a.X) * dx + (p.Y - a.Y) * dz) / (length * length));
    const double left = (dx * (p.Y - a.Y) - dz * (p.X - a.X)) / length;
    return {t, left, std::hypot(a.X + t * dx - p.X, a.Y + t * dz - p.Y)};
}

void SurveyRoad(const Circuit& road, Terrain& terrain)
{
    constexpr double Reach = 48;
    Mask nearest(GroundSize, GroundSize, FarAway);
    const double unit = road.Length / road.Count();
    for (int i = 0; i < road.Count(); i += 2)
    {
        const RoadPoint &p = road.At(i), &q = road.At(i + 2);
        const Point a{p.X, p.Z}, b{q.X, q.Z};
        const Area area = Around(a, b, Reach);
        for (int z = area.Z0; z < area.Z1; ++z)
            for (int x = area.X0; x < area.X1; ++x)
            {
                const Foot foot = FootOn(a, b, TexelPlace(x, z));
                if (foot.Distance >= nearest.At(x, z))
                    continue;
                nearest.At(x, z) = static_cast<float>(foot.Distance);
                terrain.Offset.At(x, z) = static_cast<float>(foot.Left < 0 ? -foot.Distance : foot.Distance);
                terrain.Along.At(x, z) = static_cast<float>((i + 2 * foot.T) * unit);
                terrain.HalfWidth.At(x, z) = static_cast<float>(Lerp(p.HalfWidth, q.HalfWidth, foot.T));
                terrain.Bend.At(x, z) = static_cast<float>(Lerp(p.Bend, q.Bend, foot.T));
                terrain.Line.At(x, z) = static_cast<float>(Lerp(p.Line, q.Line, foot.T));
            }
    }
}

void LowerToLine(Mask& mask, const std::vector<Point>& line, bool closed, double reach, double halfWidth)
{
    for (std::size_t i = 0; i + (closed ? 0 : 1) < line.size(); ++i)
    {
        const Point a = line[i], b = line[(i + 1) % line.size()];
        const Area area = Around(a, b, reach);
        for (int z = area.Z0; z < area.Z1; ++z)
            for (int x = area.X0; x < area.X1; ++x)
            {
                float& cell = mask.At(x, z);
                cell = std::min(cell, static_cast<float>(FootOn(a, b, TexelPlace(x, z)).Distance - halfWidth));
            }
    }
}

// A corner-cutting curve through the outline, so that the shore has no corners.
std::vector<Point> Rounded(std::vector<Point> line, int passes, bool closed)
{
    for (int pass = 0; pass < passes; ++pass)
    {
        std::vector<Point> finer;
        if (!closed)
            finer.push_back(line.front());
        for (std::size_t i = 0; i + (closed ? 0 : 1) < line.size(); ++i)
        {
            const Point a = line[i], b = line[(i + 1) % line.size()];
            finer.push_back({Lerp(a.X, b.X, 0.25), Lerp(a.Y, b.Y, 0.25)});
            finer.push_back({Lerp(a.X, b.X, 0.75), Lerp(a.Y, b.Y, 0.75)});
        }
        if (!closed)
            finer.push_back(line.back());
        line = finer;
    }
    return line;
}

void SurveyShore(const Plan& plan, Terrain& terrain)
{
    const std::vector<Point> shore = ShoreLine(plan);
    LowerToLine(terrain.Shore, shore, true, 60, 0);
    std::vector<Point> outline;
    outline.reserve(shore.size());
    for (const Point& p : shore)
        outline.push_back({p.X * TexelsPerUnit, p.Y * TexelsPerUnit});
    CoverPolygon(GroundSize, GroundSize, outline,
                 [&](int x, int z, double cover)
                 {
                     if (cover >= 0.5)
                         terrain.Shore.At(x, z) = -terrain.Shore.At(x, z);
                 });
}

void SurveyPaths(const Plan& plan, Terrain& terrain)
{
    for (const Path& path : plan.Paths)
        LowerToLine(path.Paved ? terrain.Street : terrain.Track, Rounded(path.Line, 3, false), false, 12,
                    path.Width / 2);
    LowerToLine(terrain.Street, plan.Plaza, true, 12, 0);
    std::vector<Point> plaza;
    for (const Point& p : plan.Plaza)
        plaza.push_back({p.X * TexelsPerUnit, p.Y * TexelsPerUnit});
    CoverPolygon(GroundSize, GroundSize, plaza,
                 [&](int x, int z, double cover)
                 {
                     if (cover >= 0.5)
                         terrain.Street.At(x, z) = std::min(-0.5f, -terrain.Street.At(x, z));
                 });
}
}

std::vector<Point> ShoreLine(const Plan& plan)
{
    return Rounded(plan.Lake, 3, true);
}

Terrain SurveyTerrain(const Plan& plan)
{
    Terrain terrain;
    SurveyRoad(plan.Road, terrain);
    SurveyShore(plan, terrain);
    SurveyPaths(plan, terrain);
    return terrain;
}
}
