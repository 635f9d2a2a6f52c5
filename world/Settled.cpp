#include "world/Settled.h"

#include <cstring>
#include <utility>

namespace world
{
void Settled::Stances::Take(const std::vector<render::Obj>& objects, const std::vector<std::int16_t>& bodies)
{
    Numbers.clear();
    Starts.clear();
    for (const std::int16_t body : bodies)
    {
        const render::Obj& object = objects[static_cast<std::size_t>(body)];
        Starts.push_back(Numbers.size());
        Numbers.insert(Numbers.end(), {object.X, object.Y, object.Z, object.AngleA, object.AngleB, object.Radius});
        for (const render::Sfera& sphere : object.Sfere)
            Numbers.insert(Numbers.end(), {sphere.X, sphere.Y, sphere.Z, sphere.R});
    }
    Starts.push_back(Numbers.size());
}

bool Settled::Stances::SameAs(const Stances& other, std::size_t body) const
{
    const std::size_t from = Starts[body], count = Starts[body + 1] - from, otherFrom = other.Starts[body];
    return count == other.Starts[body + 1] - otherFrom &&
           std::memcmp(&Numbers[from], &other.Numbers[otherFrom], count * sizeof(float)) == 0;
}

void Settled::Compare(const std::vector<render::Obj>& objects, const std::vector<std::int16_t>& bodies,
                      const std::vector<std::int16_t>& carOf)
{
    std::swap(Now, Before);
    Now.Take(objects, bodies);
    OtherList = bodies != Bodies;
    if (OtherList)
    {
        Bodies = bodies;
        Moved.assign(bodies.size(), 0);
        Stirred.resize(bodies.size());
    }
    for (std::size_t body = 0; body < bodies.size(); ++body)
    {
        Stirred[body] = OtherList || Moved[body] != 0 || !Now.SameAs(Before, body);
        Moved[body] = carOf[static_cast<std::size_t>(bodies[body])] >= 0;
    }
}
}
