// world/Settled.h: which bodies nothing has happened to. Two bodies that were found apart, and stand as they stood
// then, are still apart: only pairs with a stirred body need be looked at.
#pragma once
#include "render/Scene.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace world
{
// A collision sphere without what hangs on it: its centre, in the object or in the world, and its radius.
struct Ball
{
    float X = 0, Y = 0, Z = 0, R = 0; // world units
};

// Bodies are the objects that can touch: live ones with spheres. Each goes by the index of its object.
class Settled
{
public:
    // Compares every object with how it stood at the last call: all that a test of a pair reads, whoever wrote it.
    // carOf: by object, -1 for none; a car is stirred at the next call too, because whether it is hit depends on its
    // speed.
    void Compare(const std::vector<render::Obj>& objects, const std::vector<std::int16_t>& carOf);
    // Whether the last Compare was given another number of objects: all bodies are stirred then.
    bool IsOtherList() const { return OtherList; }
    // Who was stirred at the last Compare, ascending; also who has ceased to be a body.
    const std::vector<std::int32_t>& StirredAtFirst() const { return List; }
    bool IsBody(std::size_t object) const { return Counts[object] != 0; }
    bool IsStirred(std::size_t object) const { return Stirred[object] != 0; }
    // The body was moved: stirred from now on, and at the next Compare too.
    void Stir(std::size_t object) { Stirred[object] = Moved[object] = 1; }

private:
    struct Stance
    {
        float X = 0, Y = 0, Z = 0, AngleA = 0, AngleB = 0, Radius = 0; // as in the object, in its order
    };

    std::vector<Stance> Stances;              // by object, as at the last Compare
    std::vector<std::uint32_t> Counts;        // by object: its spheres, 0 where it is no body
    std::vector<std::uint32_t> Starts;        // by object: the first of its balls
    std::vector<Ball> Balls;                  // of all bodies in turn
    std::vector<std::uint8_t> Stirred, Moved; // by object
    std::vector<std::int32_t> List;           // StirredAtFirst
    bool OtherList = true;

    static bool IsAsKnown(const Stance& known, const render::Obj& object);
    static bool AreAsKnown(const Ball* known, const std::vector<render::Sfera>& spheres);
    void MakeRoom(std::size_t objects);
    // Lists who was moved or is not as it is known. Whether some object has another number of spheres than is known.
    bool ListStirred(const std::vector<render::Obj>& objects);
    void Learn(const render::Obj& object, std::size_t index);
    void LearnAll(const std::vector<render::Obj>& objects);
};
}
