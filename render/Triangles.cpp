// SPDX-License-Identifier: Zlib
#include "render/Triangles.h"

#include "base/Math.h"
#include "base/Numbers.h"

#include <algorithm>
#include <array>
#include <limits>

namespace render
{
namespace
{
// A vertex in camera space with texels that are not rounded yet: one of the triangle or one that clipping made.
struct ClipVertex
{
    double X = 0, Y = 0;
    float Z = 0;
    double U = 0, V = 0;
};

ClipVertex ToClip(const Vertex& vertex)
{
    return {vertex.View.X, vertex.View.Y, vertex.View.Z, vertex.Screen.U, vertex.Screen.V};
}

// Where the edge from a vertex in front to one behind meets the near plane.
ClipVertex Cut(const ClipVertex& front, const ClipVertex& behind, float nearZ)
{
    const double t = (static_cast<double>(front.Z) - nearZ) / (static_cast<double>(front.Z) - behind.Z);
    const auto at = [t](double a, double b) { return a + (b - a) * t; };
    return {at(front.X, behind.X), at(front.Y, behind.Y), nearZ, at(front.U, behind.U), at(front.V, behind.V)};
}

// What the near plane leaves of a triangle that it cuts: one or two.
struct Pieces
{
    std::size_t Count = 0;
    std::array<std::array<ClipVertex, 3>, 2> Triangle;
};

Pieces ClipNear(const ClipVertex& a, const ClipVertex& b, const ClipVertex& c, float nearZ)
{
    const std::array<ClipVertex, 3> vertex{a, b, c};
    std::array<std::size_t, 3> front{}, behind{};
    std::size_t fronts = 0, behinds = 0;
    for (std::size_t i = 0; i < 3; ++i)
        if (vertex[i].Z < nearZ)
            behind[behinds++] = i;
        else
            front[fronts++] = i;
    Pieces pieces;
    if (fronts == 2)
    {
        const ClipVertex &first = vertex[front[0]], &second = vertex[front[1]];
        const ClipVertex p = Cut(first, vertex[behind[0]], nearZ), q = Cut(second, vertex[behind[0]], nearZ);
        pieces.Count = 2;
        pieces.Triangle = {{{first, second, p}, {second, q, p}}};
    }
    else if (fronts == 1)
    {
        pieces.Count = 1;
        pieces.Triangle[0] = vertex; // the cuts take the places of the vertices behind
        for (const std::size_t i : {behind[0], behind[1]})
            pieces.Triangle[0][i] = Cut(vertex[front[0]], vertex[i], nearZ);
    }
    return pieces;
}

ScreenVertex ProjectVertex(const Camera& camera, const Screen& screen, const ClipVertex& from)
{
    const ScreenPoint at = Project(from.X, from.Y, from.Z, camera.Zoom, screen.CenterX, screen.CenterY);
    return {at.X, at.Y, from.Z, from.U, from.V};
}

bool IsPlace(const ScreenVertex& vertex)
{
    return vertex.X != base::OutOfRange && vertex.Y != base::OutOfRange;
}

// Clips, and calls fill(a, b, c) for each piece that may show. Nearly every triangle is wholly in front, and then its
// vertices need not be projected again.
template <class Fill>
void ForEachPiece(const Camera& camera, const Screen& screen, const Triangle& triangle, Fill&& fill)
{
    const auto& [a, b, c] = triangle;
    if (IsOutside(triangle))
        return;
    if (IsWhole(triangle))
        return fill(a.Screen, b.Screen, c.Screen);
    if (((a.Outside | b.Outside | c.Outside) & BeforeNear) == 0)
        return;
    const Pieces pieces = ClipNear(ToClip(a), ToClip(b), ToClip(c), screen.NearZ);
    for (std::size_t i = 0; i < pieces.Count; ++i)
    {
        const auto project = [&](std::size_t vertex)
        { return ProjectVertex(camera, screen, pieces.Triangle[i][vertex]); };
        const ScreenVertex p = project(0), q = project(1), r = project(2);
        if (IsPlace(p) && IsPlace(q) && IsPlace(r))
            fill(p, q, r);
    }
}

// Angle whose tangent is a / b, for a, b of 0 and above.
double Steepness(double a, double b)
{
    if (b == 0.0)
        return HalfPi;
    return a > b ? HalfPi - base::Atan(b / a) : base::Atan(a / b);
}
}

double Extent(double a, double b, double c)
{
    return std::max({a, b, c}) - std::min({a, b, c});
}

namespace
{
// Six times Pi, in single precision: so that a face loses an eighth of its light or so.
constexpr double ShadeDivisor = static_cast<float>(6.0 * Pi);
}

double FaceShade(const Point3& a, const Point3& b, const Point3& c)
{
    double ex = Extent(a.X, b.X, c.X), ey = Extent(a.Y, b.Y, c.Y), ez = Extent(a.Z, b.Z, c.Z);
    if ((ex == 0.0) + (ey == 0.0) + (ez == 0.0) >= 2)
        return std::numeric_limits<double>::quiet_NaN();
    const double length = VecLen(ex, ey, ez);
    ex /= length;
    ey /= length;
    ez /= length;
    return 1.0 - (ey * Steepness(ez, ex) + ex * Steepness(ey, ez) + ez * Steepness(ey, ex)) / ShadeDivisor;
}

void DrawTriFlat(const Scene& scene, const Camera& camera, const Canvas& canvas, const Triangle& triangle,
                 base::Rgb colour)
{
    bool shaded = false; // the arctangents are left until something may show
    double shade = 1.0;
    ForEachPiece(camera, canvas.Screen, triangle,
                 [&](const ScreenVertex& p, const ScreenVertex& q, const ScreenVertex& r)
                 {
                     if (!MayShow(canvas, p, q, r))
                         return;
                     if (!shaded)
                     {
                         shade = FaceShade(triangle.A.World, triangle.B.World, triangle.C.World);
                         shaded = true;
                     }
                     if (!(shade == shade))
                         return;
                     FillTriFlat(canvas, p, q, r,
                                 {base::RoundByte(colour.R * shade * scene.LightR),
                                  base::RoundByte(colour.G * shade * scene.LightG),
                                  base::RoundByte(colour.B * shade * scene.LightB)});
                 });
}

void DrawTriTex(const Camera& camera, const Canvas& canvas, const Triangle& triangle, const base::ConstSurface& texture)
{
    if (texture.Width < 1 || texture.Height < 1)
        return;
    ForEachPiece(camera, canvas.Screen, triangle,
                 [&](const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c)
                 { FillTriTex(canvas, a, b, c, texture); });
}
}
