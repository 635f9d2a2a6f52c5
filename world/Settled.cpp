#include "world/Settled.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace world
{
namespace
{
std::uint32_t SpheresOf(const render::Obj& object)
{
    return object.Free == 0 ? static_cast<std::uint32_t>(object.Sfere.size()) : 0;
}

// The bytes of a record from one of its members on.
const std::byte* BytesAt(const void* record, std::size_t offset)
{
    return static_cast<const std::byte*>(record) + offset;
}
}

// Numbers are compared by their bits, several at a time: what is no number is itself, and -0 is not 0. The numbers of a
// stance and of a ball lie in their records as they lie here.
bool Settled::IsAsKnown(const Stance& known, const render::Obj& object)
{
    using render::Obj;
    static_assert(offsetof(Obj, Radius) - offsetof(Obj, X) == offsetof(Stance, Radius) &&
                  offsetof(Obj, AngleB) - offsetof(Obj, X) == offsetof(Stance, AngleB) &&
                  offsetof(Obj, AngleA) - offsetof(Obj, X) == offsetof(Stance, AngleA) &&
                  offsetof(Obj, Z) - offsetof(Obj, X) == offsetof(Stance, Z) &&
                  offsetof(Obj, Y) - offsetof(Obj, X) == offsetof(Stance, Y));
    return std::memcmp(BytesAt(&object, offsetof(Obj, X)), &known, sizeof known) == 0;
}

// known: as many as there are spheres.
bool Settled::AreAsKnown(const Ball* known, const std::vector<render::Sfera>& spheres)
{
    using render::Sfera;
    static_assert(offsetof(Sfera, X) == offsetof(Ball, X) && offsetof(Sfera, Y) == offsetof(Ball, Y) &&
                  offsetof(Sfera, Z) == offsetof(Ball, Z) && offsetof(Sfera, R) == offsetof(Ball, R));
    for (const Sfera& sphere : spheres)
        if (std::memcmp(BytesAt(&sphere, 0), known++, sizeof *known) != 0)
            return false;
    return true;
}

void Settled::MakeRoom(std::size_t objects)
{
    Stances.resize(objects);
    Counts.assign(objects, 0); // no body is one that was known
    Starts.resize(objects);
    Stirred.resize(objects);
    Moved.assign(objects, 0);
    List.reserve(objects);
}

// Copies and plain pointers: this walk over all objects is most of a quiet tick.
bool Settled::ListStirred(const std::vector<render::Obj>& objects)
{
    List.clear();
    bool otherCounts = false;
    const std::uint32_t *const counts = Counts.data(), *const starts = Starts.data();
    const std::uint8_t* const moved = Moved.data();
    const Stance* const stances = Stances.data();
    const Ball* const balls = Balls.data();
    for (std::size_t index = 0; index < objects.size(); ++index)
    {
        const render::Obj& object = objects[index];
        const std::uint32_t count = SpheresOf(object);
        const bool sameCount = count == counts[index];
        if (sameCount && (count == 0 || (moved[index] == 0 && IsAsKnown(stances[index], object) &&
                                         AreAsKnown(balls + starts[index], object.Sfere))))
            continue;
        otherCounts |= !sameCount;
        List.push_back(static_cast<std::int32_t>(index));
    }
    return otherCounts;
}

void Settled::Learn(const render::Obj& object, std::size_t index)
{
    Stances[index] = {object.X, object.Y, object.Z, object.AngleA, object.AngleB, object.Radius};
    Ball* ball = Balls.data() + Starts[index];
    if (IsBody(index))
        for (const render::Sfera& sphere : object.Sfere)
            *ball++ = {sphere.X, sphere.Y, sphere.Z, sphere.R};
}

void Settled::LearnAll(const std::vector<render::Obj>& objects)
{
    std::uint32_t end = 0;
    for (std::size_t index = 0; index < objects.size(); ++index)
    {
        Starts[index] = end;
        Counts[index] = SpheresOf(objects[index]);
        end += Counts[index];
    }
    Balls.resize(end);
    for (std::size_t index = 0; index < objects.size(); ++index)
        Learn(objects[index], index);
}

void Settled::Compare(const std::vector<render::Obj>& objects, const std::vector<std::int16_t>& carOf)
{
    OtherList = objects.size() != Counts.size();
    if (OtherList)
        MakeRoom(objects.size());
    const bool otherCounts = ListStirred(objects);
    if (otherCounts)
        LearnAll(objects);
    else
        for (const std::int32_t index : List)
            Learn(objects[static_cast<std::size_t>(index)], static_cast<std::size_t>(index));
    std::fill(Stirred.begin(), Stirred.end(), std::uint8_t{0});
    for (const std::int32_t index : List)
        Stirred[static_cast<std::size_t>(index)] = 1;
    std::transform(carOf.begin(), carOf.end(), Moved.begin(),
                   [](std::int16_t car) { return static_cast<std::uint8_t>(car >= 0); });
}
}
