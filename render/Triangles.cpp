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
// A corner on its way to the screen: camera space, texels not yet rounded.
struct ClipCorner
{
    double X = 0, Y = 0;
    float Z = 0;
    double U = 0, V = 0;
};

ClipCorner ToClip(const Corner& corner)
{
    return {corner.Seen.X, corner.Seen.Y, corner.Seen.Z, corner.Landed.U, corner.Landed.V};
}

// Where the edge from a corner in front to one behind meets the near plane.
ClipCorner Cut(const ClipCorner& front, const ClipCorner& behind, float nearZ)
{
    const double t = (static_cast<double>(front.Z) - nearZ) / (static_cast<double>(front.Z) - behind.Z);
    const auto at = [t](double a, double b) { return a + (b - a) * t; };
    return {at(front.X, behind.X), at(front.Y, behind.Y), nearZ, at(front.U, behind.U), at(front.V, behind.V)};
}

// What the near plane leaves of a triangle that it cuts: one or two.
struct Pieces
{
    std::size_t Count = 0;
    std::array<std::array<ClipCorner, 3>, 2> Triangle;
};

Pieces ClipNear(const ClipCorner& a, const ClipCorner& b, const ClipCorner& c, float nearZ)
{
    const std::array<ClipCorner, 3> corner{a, b, c};
    std::array<std::size_t, 3> front{}, behind{};
    std::size_t fronts = 0, behinds = 0;
    for (std::size_t i = 0; i < 3; ++i)
        if (corner[i].Z < nearZ)
            behind[behinds++] = i;
        else
            front[fronts++] = i;
    Pieces pieces;
    if (fronts == 2)
    {
        const ClipCorner &first = corner[front[0]], &second = corner[front[1]];
        const ClipCorner p = Cut(first, corner[behind[0]], nearZ), q = Cut(second, corner[behind[0]], nearZ);
        pieces.Count = 2;
        pieces.Triangle = {{{first, second, p}, {second, q, p}}};
    }
    else if (fronts == 1)
    {
        pieces.Count = 1;
        pieces.Triangle[0] = corner; // the cuts take the places of the corners behind
        for (const std::size_t i : {behind[0], behind[1]})
            pieces.Triangle[0][i] = Cut(corner[front[0]], corner[i], nearZ);
    }
    return pieces;
}

ScreenCorner Land(const Camera& camera, const Screen& screen, const ClipCorner& from)
{
    const ScreenPoint at = Project(from.X, from.Y, from.Z, camera.Zoom, screen.CenterX, screen.CenterY);
    return {at.X, at.Y, from.Z, from.U, from.V};
}

// False where it is on no screen: not a number, or farther than 32 bits of pixels.
bool HasPlace(const ScreenCorner& corner)
{
    return corner.X != base::OutOfRange && corner.Y != base::OutOfRange;
}

// Clips, and calls fill(a, b, c) for each piece that may show. Nearly every triangle is wholly in front, and then its
// corners need not be projected again.
template <class Fill>
void ForEachPiece(const Camera& camera, const Screen& screen, const Corner& a, const Corner& b, const Corner& c,
                  Fill&& fill)
{
    const auto fillLanded = [&](const ScreenCorner& p, const ScreenCorner& q, const ScreenCorner& r)
    {
        if (HasPlace(p) && HasPlace(q) && HasPlace(r) && !IsRejected(screen, p, q, r))
            fill(p, q, r);
    };
    const float nearZ = screen.NearZ;
    if (!(a.Seen.Z < nearZ || b.Seen.Z < nearZ || c.Seen.Z < nearZ))
        return fillLanded(a.Landed, b.Landed, c.Landed);
    const Pieces pieces = ClipNear(ToClip(a), ToClip(b), ToClip(c), nearZ);
    for (std::size_t i = 0; i < pieces.Count; ++i)
        fillLanded(Land(camera, screen, pieces.Triangle[i][0]), Land(camera, screen, pieces.Triangle[i][1]),
                   Land(camera, screen, pieces.Triangle[i][2]));
}

// Angle whose tangent is a / b, for a, b of 0 and above.
double Steepness(double a, double b)
{
    if (b == 0.0)
        return HalfPi;
    return a > b ? HalfPi - base::Atan(b / a) : base::Atan(a / b);
}
}

Corner SeeCorner(const Camera& camera, const Screen& screen, const Point3& world, std::int32_t u, std::int32_t v)
{
    const Point3 seen = WorldToCamera(camera, world.X, world.Y, world.Z);
    const ClipCorner texelled{seen.X, seen.Y, seen.Z, static_cast<double>(u), static_cast<double>(v)};
    return {world, seen, Land(camera, screen, texelled)};
}

double Extent(double a, double b, double c)
{
    return std::max({a, b, c}) - std::min({a, b, c});
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
    return 1.0 - (ey * Steepness(ez, ex) + ex * Steepness(ey, ez) + ez * Steepness(ey, ex)) / 18.849552154541016;
}

void DrawTriFlat(const Scene& scene, const Camera& camera, Screen& screen, const Point3& a, const Point3& b,
                 const Point3& c, Rgb colour)
{
    DrawSeenFlat(scene, camera, screen, SeeCorner(camera, screen, a), SeeCorner(camera, screen, b),
                 SeeCorner(camera, screen, c), colour);
}

void DrawSeenFlat(const Scene& scene, const Camera& camera, Screen& screen, const Corner& a, const Corner& b,
                  const Corner& c, Rgb colour)
{
    bool shaded = false; // the arctangents are left until something shows
    double shade = 1.0;
    ForEachPiece(camera, screen, a, b, c,
                 [&](const ScreenCorner& p, const ScreenCorner& q, const ScreenCorner& r)
                 {
                     if (!shaded)
                     {
                         shade = FaceShade(a.World, b.World, c.World);
                         shaded = true;
                     }
                     if (!(shade == shade))
                         return;
                     FillTriFlat(screen, p, q, r,
                                 {base::RoundByte(colour.R * shade * scene.LightR),
                                  base::RoundByte(colour.G * shade * scene.LightG),
                                  base::RoundByte(colour.B * shade * scene.LightB)});
                 });
}

void DrawTriTex(const Camera& camera, Screen& screen, const Corner& a, const Corner& b, const Corner& c,
                const base::ConstSurface& texture)
{
    if (texture.Width < 1 || texture.Height < 1)
        return;
    ForEachPiece(camera, screen, a, b, c,
                 [&](const ScreenCorner& p, const ScreenCorner& q, const ScreenCorner& r)
                 { FillTriTex(screen, p, q, r, texture); });
}
}
