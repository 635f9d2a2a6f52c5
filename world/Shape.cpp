// SPDX-License-Identifier: Zlib
#include "world/Shape.h"

#include "base/Math.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <span>

namespace world
{
namespace
{
constexpr float Rounding = 1e-6f; // more than a place and a radius are rounded by, in proportion
constexpr float Hair = 1 + 1e-6f; // more than the rounding of a distance and of a sum of radii
constexpr float Speck = 1e-30f;   // more than the rounding of squares that are almost nothing
constexpr float Infinite = std::numeric_limits<float>::infinity();

// Four singles, one operation for all of them.
using Lanes [[gnu::vector_size(16)]] = float;

Lanes LanesOf(const Balls::Numbers& numbers)
{
    return std::bit_cast<Lanes>(numbers);
}

// A collision sphere in the world.
struct Ball
{
    float X, Y, Z, R;
};

Ball BallAt(const Shape& shape, std::size_t index)
{
    const Balls& four = shape.Fours[index / 4];
    const std::size_t n = index % 4;
    return {four.X[n], four.Y[n], four.Z[n], four.R[n]};
}

bool SameBits(float a, float b)
{
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
}

// How far spheres reach along one axis. The comparisons are false for what is no number: such a sphere touches nothing.
struct Extent
{
    Lanes Low = Lanes{} + Infinite, High = Lanes{} - Infinite;

    void Widen(const Balls::Numbers& centres, Lanes radii)
    {
        const Lanes low = LanesOf(centres) - radii, high = LanesOf(centres) + radii;
        Low = low < Low ? low : Low;
        High = high > High ? high : High;
    }
    void Close(Bounds& bounds, std::size_t axis) const
    {
        bounds.Low[axis] = std::min(std::min(Low[0], Low[1]), std::min(Low[2], Low[3]));
        bounds.High[axis] = std::max(std::max(High[0], High[1]), std::max(High[2], High[3]));
        bounds.Slack =
            std::max({bounds.Slack, std::fabs(bounds.Low[axis]) * Rounding, std::fabs(bounds.High[axis]) * Rounding});
    }
};

Bounds BoundsOf(std::span<const Balls> fours)
{
    Extent x, y, z;
    for (const Balls& four : fours)
    {
        const Lanes radii = LanesOf(four.R);
        x.Widen(four.X, radii);
        y.Widen(four.Y, radii);
        z.Widen(four.Z, radii);
    }
    Bounds bounds;
    x.Close(bounds, 0);
    y.Close(bounds, 1);
    z.Close(bounds, 2);
    return bounds;
}

// Whether nothing of the two meets along the axis, by more than the rounding.
bool AreApart(float lowA, float highA, float lowB, float highB, float slack)
{
    return lowA > highB + slack || lowB > highA + slack;
}

bool AreApart(const Bounds& a, const Bounds& b)
{
    const float slack = a.Slack + b.Slack;
    for (std::size_t axis = 0; axis < 3; ++axis)
        if (AreApart(a.Low[axis], a.High[axis], b.Low[axis], b.High[axis], slack))
            return true;
    return false;
}

bool IsApart(const Ball& ball, const Bounds& b, float slack)
{
    const float x = ball.X, y = ball.Y, z = ball.Z, r = ball.R;
    return AreApart(x - r, x + r, b.Low[0], b.High[0], slack) || AreApart(z - r, z + r, b.Low[2], b.High[2], slack) ||
           AreApart(y - r, y + r, b.Low[1], b.High[1], slack);
}

// Whether one of the four may touch it: in single precision, with room for its rounding.
bool MayTouch(const Ball& p, const Balls& four)
{
    const Lanes x = LanesOf(four.X) - p.X, y = LanesOf(four.Y) - p.Y, z = LanesOf(four.Z) - p.Z;
    const Lanes reach = LanesOf(four.R) + p.R;
    const auto near = x * x + y * y + z * z <= reach * reach * Hair + Speck;
    const auto halves = std::bit_cast<std::array<std::uint64_t, 2>>(near);
    return (halves[0] | halves[1]) != 0;
}

// The root is drawn only where the squares leave a doubt: a length below the reach has a square that is not above the
// reach's.
bool Touch(const Ball& p, const Ball& q, Contact& contact)
{
    const double x = static_cast<double>(q.X) - p.X;
    const double y = static_cast<double>(q.Y) - p.Y;
    const double z = static_cast<double>(q.Z) - p.Z;
    const double square = x * x + y * y + z * z;
    const double reach = static_cast<double>(p.R) + q.R;
    if (!(reach > 0.0 && square <= reach * reach && std::isfinite(reach)))
        return false;
    contact.Distance = base::Sqrt(square);
    contact.Reach = reach;
    return contact.Distance < reach;
}
}

void Shape::Forget(const render::Obj& object)
{
    IsKnown = false;
    Fours.reserve((object.Sfere.size() + 3) / 4);
}

void Shape::Take(const render::Obj& object)
{
    if (IsKnown)
        return;
    IsKnown = true;
    if (!SameBits(object.AngleA, AngleA) || !SameBits(object.AngleB, AngleB))
    {
        AngleA = object.AngleA;
        AngleB = object.AngleB;
        Rotation = render::MakeRotation(AngleA, AngleB);
    }
    Count = object.Sfere.size();
    Fours.assign((Count + 3) / 4, {});
    const render::Rotation turn = Rotation;
    const render::Point3 place = {object.X, object.Y, object.Z};
    for (std::size_t index = 0; index < Count; ++index)
    {
        const render::Sfera& sphere = object.Sfere[index];
        const render::Point3 centre = render::RotatePoint(turn, place, {sphere.X, sphere.Y, sphere.Z});
        Balls& four = Fours[index / 4];
        const std::size_t n = index % 4;
        four.X[n] = centre.X;
        four.Y[n] = centre.Y;
        four.Z[n] = centre.Z;
        four.R[n] = sphere.R;
    }
    Bounds = BoundsOf(Fours);
}

namespace
{
// The first of the second body's spheres that touches it.
bool FindTouched(const Ball& ball, const Shape& j, Contact& contact)
{
    for (std::size_t four = 0; four < j.Fours.size(); ++four)
    {
        if (!MayTouch(ball, j.Fours[four]))
            continue;
        for (std::size_t b = 4 * four; b < std::min(4 * four + 4, j.Count); ++b)
            if (Touch(ball, BallAt(j, b), contact))
            {
                contact.B = b;
                return true;
            }
    }
    return false;
}
}

bool FindContact(const Shape& i, const Shape& j, Contact& contact)
{
    if (AreApart(i.Bounds, j.Bounds))
        return false;
    const float slack = i.Bounds.Slack + j.Bounds.Slack;
    for (std::size_t a = 0; a < i.Count; ++a)
    {
        const Ball ball = BallAt(i, a);
        Contact found = {.A = a};
        if (IsApart(ball, j.Bounds, slack) || !FindTouched(ball, j, found))
            continue;
        contact = found;
        return true;
    }
    return false;
}
}
