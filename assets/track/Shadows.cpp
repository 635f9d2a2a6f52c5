// SPDX-License-Identifier: Zlib
// The long shadows of a low sun.
#include "assets/track/Ground.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "assets/track/Gate.h"
#include "assets/track/Light.h"
#include "base/Numbers.h"

#include <algorithm>

namespace assets::track
{
namespace
{
// Convex hull, anticlockwise.
std::vector<Point> Hull(std::vector<Point> points)
{
    std::sort(points.begin(), points.end(), [](Point a, Point b) { return a.X < b.X || (a.X == b.X && a.Y < b.Y); });
    std::vector<Point> hull;
    const auto add = [&](Point p, std::size_t keep)
    {
        const auto right = [&]
        {
            const Point a = hull[hull.size() - 2], b = hull.back();
            return (b.X - a.X) * (p.Y - a.Y) - (b.Y - a.Y) * (p.X - a.X) <= 0;
        };
        while (hull.size() > keep && right())
            hull.pop_back();
        hull.push_back(p);
    };
    for (const Point& p : points)
        add(p, 1);
    const std::size_t upper = hull.size();
    for (std::size_t i = points.size() - 1; i-- > 0;)
        add(points[i], upper);
    hull.pop_back();
    return hull;
}

struct Caster
{
    Mask& Sun;     // full shadow
    Mask& Leaves;  // broken shadow
    Mask& Contact; // darkening at the foot
};

Point Shifted(Point p, double height)
{
    return {p.X - SunX * ShadowLength * height, p.Y - SunZ * ShadowLength * height};
}

std::vector<Point> Footprint(const Standing& item, const Kind& kind)
{
    std::vector<Point> corners;
    for (const auto& [u, v] : {std::pair{-1, -1}, {1, -1}, {1, 1}, {-1, 1}})
    {
        const double x = u * kind.HalfX, z = v * kind.HalfZ, c = std::cos(item.Angle), s = std::sin(item.Angle);
        corners.push_back({item.X + c * x - s * z, item.Z + s * x + c * z});
    }
    return corners;
}

std::vector<Point> InTexels(std::vector<Point> line)
{
    for (Point& p : line)
        p = {p.X * TexelsPerUnit, p.Y * TexelsPerUnit};
    return line;
}

void CastBlock(const Caster& to, const Standing& item, const Kind& kind)
{
    std::vector<Point> points = Footprint(item, kind);
    FillPolygon(to.Contact, InTexels(points));
    // A pitched roof is lower at its eaves: the far corners reach not quite so far.
    const std::size_t corners = points.size();
    for (std::size_t i = 0; i < corners; ++i)
        points.push_back(Shifted(points[i], kind.Height * (kind.Height > 4 ? 0.82 : 1.0)));
    if (kind.Height > 4)
        points.push_back(Shifted({item.X, item.Z}, kind.Height));
    FillPolygon(to.Sun, InTexels(Hull(points)));
}

void CastCone(const Caster& to, const Standing& item, const Kind& kind)
{
    const Point foot{item.X, item.Z};
    std::vector<Point> outline;
    const double sideX = -SunZ * kind.HalfX, sideZ = SunX * kind.HalfX;
    constexpr double Profile[][2] = {{0.0, 0.35},  {0.08, 0.8},  {0.25, 1.0}, {0.5, 0.9},
                                     {0.75, 0.62}, {0.92, 0.28}, {1, 0}};
    for (const auto& [height, width] : Profile)
    {
        const Point p = Shifted(foot, height * kind.Height);
        outline.push_back({p.X + sideX * width, p.Y + sideZ * width});
    }
    for (std::size_t i = std::size(Profile); i-- > 0;)
    {
        const Point p = Shifted(foot, Profile[i][0] * kind.Height);
        outline.push_back({p.X - sideX * Profile[i][1], p.Y - sideZ * Profile[i][1]});
    }
    FillPolygon(to.Leaves, InTexels(outline));
    FillDisc(to.Contact, {foot.X * TexelsPerUnit, foot.Y * TexelsPerUnit}, kind.HalfX * TexelsPerUnit * 0.8);
}

void CastCrown(const Caster& to, const Standing& item, const Kind& kind)
{
    const Point foot{item.X, item.Z};
    const double low = kind.Name.starts_with("pine") ? 0.62 : kind.Name == "plane" ? 0.54 : 0.15;
    const Point trunk[] = {{foot.X * TexelsPerUnit, foot.Y * TexelsPerUnit},
                           InTexels({Shifted(foot, kind.Height * (low + 0.1))})[0]};
    Stroke(to.Sun, trunk, 0.5 * TexelsPerUnit);
    for (int i = 0; i < 14; ++i) // a crown is a handful of tufts
    {
        const int key = base::RoundEven(item.X * 7 + item.Z * 131);
        const double angle = 2 * Pi * HashUnit(key, i, 901), away = std::sqrt(HashUnit(key, i, 902)) * 0.62;
        const double high = kind.Height * Lerp(low + 0.12, 0.9, HashUnit(key, i, 903));
        const Point p =
            Shifted({foot.X + std::cos(angle) * away * kind.HalfX, foot.Y + std::sin(angle) * away * kind.HalfX}, high);
        FillDisc(to.Leaves, {p.X * TexelsPerUnit, p.Y * TexelsPerUnit}, kind.HalfX * TexelsPerUnit * 0.48, 1, 3);
    }
    FillDisc(to.Contact, {foot.X * TexelsPerUnit, foot.Y * TexelsPerUnit}, kind.HalfX * TexelsPerUnit * 0.4, 0.7);
}

void CastRoof(const Caster& to, const Standing& item, const Kind& kind)
{
    const Point p = Shifted({item.X, item.Z}, kind.Height);
    FillDisc(to.Sun, {p.X * TexelsPerUnit, p.Y * TexelsPerUnit}, kind.HalfX * TexelsPerUnit);
}

// A gantry: two legs and what lies over them. Its sides are at +-`Half` along the direction.
struct LegsAndBeam
{
    Point Side; // unit vector from the middle to one leg
    double Half, Leg, Beam;
};

void CastGantry(const Caster& to, const Standing& item, double height, const LegsAndBeam& gate)
{
    std::vector<Point> beam;
    for (const double side : {-1.0, 1.0})
    {
        const double out = side * gate.Half, middle = side * (gate.Half - gate.Leg / 2);
        const Point foot{item.X + gate.Side.X * middle, item.Z + gate.Side.Y * middle};
        const std::vector<Point> leg = InTexels({foot, Shifted(foot, height)});
        Stroke(to.Sun, leg, gate.Leg * TexelsPerUnit);
        const Point end{item.X + gate.Side.X * out, item.Z + gate.Side.Y * out};
        beam.push_back(Shifted(end, height));
        beam.push_back(Shifted(end, height - gate.Beam));
    }
    FillPolygon(to.Sun, InTexels(Hull(beam)));
}

// The gate's outline in slices from its front to its back, so that the sun falls through the opening.
void CastGate(const Caster& to, const Standing& item)
{
    constexpr int Slices = 12;
    const std::vector<Point> outline = GateOutline();
    const double c = std::cos(item.Angle), s = std::sin(item.Angle);
    for (int i = 0; i <= Slices; ++i)
    {
        const double z = GateDeep * (2.0 * i / Slices - 1);
        std::vector<Point> slice;
        for (const Point& p : outline)
            slice.push_back(Shifted({item.X + c * p.X - s * z, item.Z + s * p.X + c * z}, p.Y));
        FillPolygon(to.Sun, InTexels(slice));
    }
}

// A roof on columns, open between them: the columns stand at both ends of the front.
void CastGallery(const Caster& to, const Standing& item, const Kind& kind)
{
    std::vector<Point> roof;
    for (const Point& corner : Footprint(item, kind))
    {
        roof.push_back(Shifted(corner, kind.Height));
        roof.push_back(Shifted(corner, kind.Height - 1.1));
        const std::vector<Point> column = InTexels({corner, Shifted(corner, kind.Height)});
        Stroke(to.Sun, column, 0.5 * TexelsPerUnit);
    }
    FillPolygon(to.Sun, InTexels(Hull(roof)));
    FillPolygon(to.Contact, InTexels(Footprint(item, kind)), 0.6);
}

bool CastByName(const Caster& to, const Standing& item, const Kind& kind)
{
    const double c = std::cos(item.Angle), s = std::sin(item.Angle);
    if (kind.Name == "gantry")
        CastGantry(to, item, kind.Height, {{-s, c}, kind.HalfZ, 0.9, 2.6});
    else if (kind.Name == "arch")
        CastGate(to, item);
    else if (kind.Name == "gallery")
        CastGallery(to, item, kind);
    else
        return false;
    return true;
}

void CastShadow(const Caster& to, const Standing& item)
{
    const Kind& kind = KindOf(item.Name);
    if (CastByName(to, item, kind))
        return;
    switch (kind.Cast)
    {
    case Shadow::Block:
        return CastBlock(to, item, kind);
    case Shadow::Cone:
        return CastCone(to, item, kind);
    case Shadow::Crown:
        return CastCrown(to, item, kind);
    case Shadow::Roof:
        return CastRoof(to, item, kind);
    case Shadow::None:
        return;
    }
}
}

void PaintShadows(Canvas& ground, const Plan& plan)
{
    Mask sun(GroundSize, GroundSize), leaves(GroundSize, GroundSize), contact(GroundSize, GroundSize);
    const Caster caster{sun, leaves, contact};
    for (const Standing& item : plan.Items)
        CastShadow(caster, item);
    Blur(sun, 1);
    Blur(leaves, 1.4);
    Blur(contact, 4);
    for (int z = 0; z < GroundSize; ++z)
        for (int x = 0; x < GroundSize; ++x)
        {
            double shade = sun.At(x, z);
            if (const double leaf = leaves.At(x, z); leaf > 0)
            {
                const double holes = SmoothStep(0.22, 0.5, Fbm(x / 4.5, z / 4.5, 910, 2)); // sun between the leaves
                shade = std::max(shade, leaf * (0.92 - 0.5 * holes));
            }
            ground.Shade(x, z, {0.50, 0.55, 0.68}, shade * 0.92);
            ground.Shade(x, z, {0.62, 0.64, 0.68}, contact.At(x, z) * (1 - 0.4 * shade));
        }
}
}
