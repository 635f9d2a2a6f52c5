// SPDX-License-Identifier: Zlib
// world/Shape.h: where a body's spheres are, kept as long as it stands, and whether two bodies' spheres touch.
#pragma once
#include "render/Scene.h"

#include <array>
#include <cstddef>
#include <limits>
#include <vector>

namespace world
{
// Four collision spheres in the world, side by side. Those that fill up the last four are no numbers: they touch
// nothing.
struct Balls
{
    using Numbers = std::array<float, 4>;
    static constexpr float None = std::numeric_limits<float>::quiet_NaN();
    static constexpr Numbers NoNumbers = {None, None, None, None};

    // Centres and radii, world units.
    Numbers X = NoNumbers, Y = NoNumbers, Z = NoNumbers, R = NoNumbers;
};

// The first pair of spheres that touch: by the first body's spheres, then by the second's.
struct Contact
{
    std::size_t A = 0, B = 0;
    double Distance = 0.0, Reach = 0.0; // of the centres; the sum of the radii
};

// The spheres reach no farther than this along x, y and z. Low lies above High where there is nothing to reach.
struct Bounds
{
    std::array<float, 3> Low = {}, High = {};
    float Slack = 0; // more than the rounding of anything within; infinite where there is no bound
};

class Shape
{
public:
    // The object stands elsewhere, or is another. Makes room for its spheres, so that Take allocates nothing.
    void Forget(const render::Obj& object);
    // Finds the spheres, unless they are known. object: the one that was given to Forget last.
    void Take(const render::Obj& object);

    std::size_t Count = 0;    // of the spheres
    std::vector<Balls> Fours; // of them, in the object's order
    world::Bounds Bounds;     // of them all

private:
    bool IsKnown = false;
    float AngleA = 0, AngleB = 0; // radians
    render::Rotation Rotation;    // of these angles: most that moves does not turn
};

// Both taken. False: no two touch, and contact stays as it was.
bool FindContact(const Shape& i, const Shape& j, Contact& contact);
}
