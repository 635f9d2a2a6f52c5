// SPDX-License-Identifier: Zlib
// world/Settled.h: which bodies nothing has happened to. Two bodies that were found apart, and stand as they stood
// then, are still apart: only pairs with a stirred body need be looked at.
#pragma once
#include "render/Scene.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace world
{
// Bodies are the objects that can touch: live ones with spheres. Each goes by the index of its object.
class Settled
{
public:
    // Compares every object with how it stood at the last call: all that a test of a pair reads, whoever wrote it.
    // cars: the objects that somebody drives; they are stirred at the next call too, because whether they are hit
    // depends on their speed.
    void Compare(const std::vector<render::Obj>& objects, const std::vector<std::int32_t>& cars);
    // Whether the last Compare was given another number of objects: all bodies are stirred then.
    bool IsOtherList() const { return OtherList; }
    // Who was stirred at the last Compare, in no order; also who has ceased to be a body.
    const std::vector<std::int32_t>& StirredAtFirst() const { return List; }
    bool IsBody(std::size_t object) const { return Kept[object].Free == 0 && Kept[object].First != Kept[object].End; }
    bool IsStirred(std::size_t object) const { return Stirred[object] != 0; }
    // The body was moved: stirred from now on, and at the next Compare too.
    void Stir(std::size_t object)
    {
        Stirred[object] = 1;
        KeepMoving(object);
    }

private:
    // How an object stands.
    struct Stance
    {
        // Where its spheres lie; compared, and not followed before.
        const render::Sfera *First = nullptr, *End = nullptr;
        float X = 0, Y = 0, Z = 0, AngleA = 0, AngleB = 0, Radius = 0; // as in the object, in its order
        std::uint8_t Free = 0;
    };
    struct Ball
    {
        float X = 0, Y = 0, Z = 0, R = 0; // as in the sphere, in its order
        std::int32_t Object = 0;
        const render::Sfera* Sphere = nullptr;
    };

    // As at the last Compare.
    std::vector<Stance> Kept; // by object
    std::vector<Ball> Balls;  // of all bodies

    std::vector<std::uint8_t> Stirred, Moves; // by object; Moves: it is in Moving
    std::vector<std::int32_t> List, Moving;   // StirredAtFirst; who will be there at the next Compare in any case
    bool OtherList = true;

    static Stance StanceOf(const render::Obj& object);
    static bool HasSpheresOf(const Stance& known, const render::Obj& object);
    static bool StandsAs(const Stance& known, const render::Obj& object);
    static bool IsAsKnown(const Ball& known);
    void MakeRoom(std::size_t objects);
    void KeepMoving(std::size_t object);
    void Enlist(std::size_t object);
    bool CompareStances(const std::vector<render::Obj>& objects);
    void CompareBalls();
    void LearnAll(const std::vector<render::Obj>& objects);
};
}
