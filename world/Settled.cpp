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

Settled::Stance Settled::StanceOf(const render::Obj& object)
{
    return {object.Sfere.data(),
            std::to_address(object.Sfere.end()),
            object.X,
            object.Y,
            object.Z,
            object.AngleA,
            object.AngleB,
            object.Radius,
            object.Free};
}

// A vector that lies where it lay and ends where it ended may still hold other numbers, but can be looked into by what
// is known of it.
bool Settled::HasSpheresOf(const Stance& known, const render::Obj& object)
{
    return object.Sfere.data() == known.First && std::to_address(object.Sfere.end()) == known.End &&
           object.Free == known.Free;
}

// Numbers are compared by their bits, several at a time: what is no number is itself, and -0 is not 0. Those of a
// stance and of a ball lie in their records as they lie here.
bool Settled::StandsAs(const Stance& known, const render::Obj& object)
{
    using render::Obj;
    constexpr std::size_t skipped = offsetof(Stance, X) - offsetof(Obj, X);
    static_assert(offsetof(Obj, Radius) - offsetof(Obj, X) == 5 * sizeof(float));
    static_assert(offsetof(Stance, Y) == offsetof(Obj, Y) + skipped &&
                  offsetof(Stance, Z) == offsetof(Obj, Z) + skipped &&
                  offsetof(Stance, AngleA) == offsetof(Obj, AngleA) + skipped &&
                  offsetof(Stance, AngleB) == offsetof(Obj, AngleB) + skipped &&
                  offsetof(Stance, Radius) == offsetof(Obj, Radius) + skipped);
    return std::memcmp(BytesAt(&object, offsetof(Obj, X)), BytesAt(&known, offsetof(Stance, X)), 6 * sizeof(float)) ==
           0;
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

void Settled::Enlist(std::size_t object)
{
    if (Stirred[object] == 0)
        List.push_back(static_cast<std::int32_t>(object));
    Stirred[object] = 1;
}

// False where an object has other spheres than before, or another life: more must be learnt than how it stands.
bool Settled::CompareStances(const std::vector<render::Obj>& objects)
{
    Stance* known = Kept.data();
    for (const render::Obj& object : objects)
    {
        if (!HasSpheresOf(*known, object))
            return false;
        if (!StandsAs(*known, object))
        {
            *known = StanceOf(object);
            const auto index = static_cast<std::size_t>(known - Kept.data());
            if (IsBody(index))
                Enlist(index);
        }
        ++known;
    }
    return true;
}

void Settled::CompareBalls()
{
    for (Ball& ball : Balls)
    {
        if (IsAsKnown(ball))
            continue;
        const render::Sfera& sphere = *ball.Sphere;
        ball = {sphere.X, sphere.Y, sphere.Z, sphere.R, ball.Object, &sphere};
        Enlist(static_cast<std::size_t>(ball.Object));
    }
}

void Settled::LearnAll(const std::vector<render::Obj>& objects)
{
    Balls.clear();
    for (std::size_t index = 0; index < objects.size(); ++index)
    {
        const render::Obj& object = objects[index];
        const bool wasBody = IsBody(index);
        Kept[index] = StanceOf(object);
        if (wasBody || IsBody(index))
            Enlist(index);
        if (!IsBody(index))
            continue;
        for (const render::Sfera& sphere : object.Sfere)
            Balls.push_back({sphere.X, sphere.Y, sphere.Z, sphere.R, static_cast<std::int32_t>(index), &sphere});
    }
}

void Settled::Compare(const std::vector<render::Obj>& objects, const std::vector<std::int32_t>& cars)
{
    OtherList = objects.size() != Kept.size();
    if (OtherList)
        MakeRoom(objects.size());
    std::fill(Stirred.begin(), Stirred.end(), std::uint8_t{0});
    List.clear();
    if (CompareStances(objects))
        CompareBalls();
    else
        LearnAll(objects);
    for (const std::int32_t object : Moving)
    {
        Enlist(static_cast<std::size_t>(object));
        Moves[static_cast<std::size_t>(object)] = 0;
    }
    Moving.clear();
    for (const std::int32_t car : cars)
        KeepMoving(static_cast<std::size_t>(car));
}
}
