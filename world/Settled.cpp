// SPDX-License-Identifier: Zlib
#include "world/Settled.h"

#include <algorithm>
#include <cstring>
#include <memory>

namespace world
{
namespace
{
// The bytes of a record from one of its members on.
const std::byte* BytesAt(const void* record, std::size_t offset)
{
    return static_cast<const std::byte*>(record) + offset;
}
}

Settled::Stance Settled::StanceOf(const render::Obj& object, std::int32_t index)
{
    return {object.X, object.Y, object.Z, object.AngleA, object.AngleB, object.Radius, index};
}

// Numbers are compared by their bits, several at a time: what is no number is itself, and -0 is not 0. Those of a
// stance and of a ball lie in their records as they lie here.
bool Settled::IsAsKnown(const Stance& known, const render::Obj& object)
{
    using render::Obj;
    static_assert(offsetof(Stance, X) == 0 && offsetof(Stance, Radius) == 5 * sizeof(float));
    static_assert(offsetof(Obj, Y) == offsetof(Obj, X) + offsetof(Stance, Y) &&
                  offsetof(Obj, Z) == offsetof(Obj, X) + offsetof(Stance, Z) &&
                  offsetof(Obj, AngleA) == offsetof(Obj, X) + offsetof(Stance, AngleA) &&
                  offsetof(Obj, AngleB) == offsetof(Obj, X) + offsetof(Stance, AngleB) &&
                  offsetof(Obj, Radius) == offsetof(Obj, X) + offsetof(Stance, Radius));
    return std::memcmp(BytesAt(&object, offsetof(Obj, X)), BytesAt(&known, 0), 6 * sizeof(float)) == 0;
}

bool Settled::IsAsKnown(const Ball& known)
{
    using render::Sfera;
    static_assert(offsetof(Sfera, X) == offsetof(Ball, X) && offsetof(Sfera, Y) == offsetof(Ball, Y) &&
                  offsetof(Sfera, Z) == offsetof(Ball, Z) && offsetof(Sfera, R) == offsetof(Ball, R));
    return std::memcmp(BytesAt(known.Sphere, 0), BytesAt(&known, 0), 4 * sizeof(float)) == 0;
}

void Settled::MakeRoom(std::size_t objects)
{
    Kept.assign(objects, {});
    Stirred.assign(objects, 0);
    Moves.assign(objects, 0);
    List.reserve(objects);
    Moving.clear();
    Moving.reserve(objects);
}

void Settled::KeepMoving(std::size_t object)
{
    if (Moves[object] != 0)
        return;
    Moves[object] = 1;
    Moving.push_back(static_cast<std::int32_t>(object));
}

void Settled::Enlist(std::int32_t object)
{
    std::uint8_t& stirred = Stirred[static_cast<std::size_t>(object)];
    if (stirred == 0)
        List.push_back(object);
    stirred = 1;
}

// Without a branch: this is asked of every object in every step. A vector that lies where it lay and ends where it
// ended may still hold other numbers, but can be looked into by what is known of it.
bool Settled::AreSpheresKept(const std::vector<render::Obj>& objects) const
{
    bool others = false;
    const Spheres* kept = Kept.data();
    for (const render::Obj& object : objects)
    {
        const bool otherFirst = object.Sfere.data() != kept->First;
        const bool otherEnd = std::to_address(object.Sfere.end()) != kept->End;
        const bool otherLife = object.Free != kept->Free;
        others |= otherFirst | otherEnd | otherLife;
        ++kept;
    }
    return !others;
}

void Settled::LearnAll(const std::vector<render::Obj>& objects)
{
    Stances.clear();
    Balls.clear();
    for (std::size_t index = 0; index < objects.size(); ++index)
    {
        const render::Obj& object = objects[index];
        const auto number = static_cast<std::int32_t>(index);
        const bool wasBody = IsBody(index);
        Kept[index] = {object.Sfere.data(), std::to_address(object.Sfere.end()), object.Free};
        if (wasBody || IsBody(index))
            Enlist(number);
        if (!IsBody(index))
            continue;
        Stances.push_back(StanceOf(object, number));
        for (const render::Sfera& sphere : object.Sfere)
            Balls.push_back({sphere.X, sphere.Y, sphere.Z, sphere.R, number, &sphere});
    }
}

// Stances and spheres by themselves: two walks straight through memory.
void Settled::CompareBodies(const std::vector<render::Obj>& objects)
{
    for (Stance& stance : Stances)
    {
        const render::Obj& object = objects[static_cast<std::size_t>(stance.Object)];
        if (IsAsKnown(stance, object))
            continue;
        stance = StanceOf(object, stance.Object);
        Enlist(stance.Object);
    }
    for (Ball& ball : Balls)
    {
        if (IsAsKnown(ball))
            continue;
        const render::Sfera& sphere = *ball.Sphere;
        ball = {sphere.X, sphere.Y, sphere.Z, sphere.R, ball.Object, &sphere};
        Enlist(ball.Object);
    }
}

void Settled::Compare(const std::vector<render::Obj>& objects, const std::vector<std::int32_t>& cars)
{
    OtherList = objects.size() != Kept.size();
    if (OtherList)
        MakeRoom(objects.size());
    std::fill(Stirred.begin(), Stirred.end(), std::uint8_t{0});
    List.clear();
    if (AreSpheresKept(objects))
        CompareBodies(objects);
    else
        LearnAll(objects);
    for (const std::int32_t object : Moving)
    {
        Enlist(object);
        Moves[static_cast<std::size_t>(object)] = 0;
    }
    Moving.clear();
    for (const std::int32_t car : cars)
        KeepMoving(static_cast<std::size_t>(car));
}
}
