// SPDX-License-Identifier: Zlib
#include "world/Shape.h"

#include "base/Math.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace world
{
namespace
{
constexpr double Rounding = 1e-9; // more than all that a distance is made of is rounded by, in proportion
constexpr double Infinite = std::numeric_limits<double>::infinity();

bool SameBits(float a, float b)
{
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
}

// The comparisons are false for what is no number: such a sphere touches nothing.
void Widen(Bounds& bounds, std::size_t axis, double centre, double radius)
{
    const double low = centre - radius, high = centre + radius;
    bounds.Low[axis] = low < bounds.Low[axis] ? low : bounds.Low[axis];
    bounds.High[axis] = high > bounds.High[axis] ? high : bounds.High[axis];
}

void AddSlack(Bounds& bounds)
{
    double most = 0;
    for (std::size_t axis = 0; axis < 3; ++axis)
        most = std::max({most, std::fabs(bounds.Low[axis]), std::fabs(bounds.High[axis])});
    bounds.Slack = most * Rounding;
}

// Whether nothing of the two meets along the axis, by more than the rounding.
bool AreApart(double lowA, double highA, double lowB, double highB, double slack)
{
    return lowA > highB + slack || lowB > highA + slack;
}

bool AreApart(const Bounds& a, const Bounds& b)
{
    const double slack = a.Slack + b.Slack;
    for (std::size_t axis = 0; axis < 3; ++axis)
        if (AreApart(a.Low[axis], a.High[axis], b.Low[axis], b.High[axis], slack))
            return true;
    return false;
}

bool IsApart(const Ball& ball, const Bounds& b, double slack)
{
    const double x = ball.X, y = ball.Y, z = ball.Z, r = ball.R;
    return AreApart(x - r, x + r, b.Low[0], b.High[0], slack) || AreApart(z - r, z + r, b.Low[2], b.High[2], slack) ||
           AreApart(y - r, y + r, b.Low[1], b.High[1], slack);
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
    Balls.reserve(object.Sfere.size());
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
    Balls.clear();
    Bounds.Low.fill(Infinite);
    Bounds.High.fill(-Infinite);
    for (const render::Sfera& sphere : object.Sfere)
    {
        const render::Point3 centre =
            render::RotatePoint(Rotation, {object.X, object.Y, object.Z}, {sphere.X, sphere.Y, sphere.Z});
        Balls.push_back({centre.X, centre.Y, centre.Z, sphere.R});
        Widen(Bounds, 0, centre.X, sphere.R);
        Widen(Bounds, 1, centre.Y, sphere.R);
        Widen(Bounds, 2, centre.Z, sphere.R);
    }
    AddSlack(Bounds);
}

bool FindContact(const Shape& i, const Shape& j, Contact& contact)
{
    if (AreApart(i.Bounds, j.Bounds))
        return false;
    const double slack = i.Bounds.Slack + j.Bounds.Slack;
    for (std::size_t a = 0; a < i.Balls.size(); ++a)
    {
        if (IsApart(i.Balls[a], j.Bounds, slack))
            continue;
        Contact found;
        for (std::size_t b = 0; b < j.Balls.size(); ++b)
            if (Touch(i.Balls[a], j.Balls[b], found))
            {
                contact = {a, b, found.Distance, found.Reach};
                return true;
            }
    }
    return false;
}
}
