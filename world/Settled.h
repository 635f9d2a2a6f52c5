// world/Settled.h: which bodies nothing has happened to. Two bodies that were found apart, and stand as they stood
// then, are still apart: only pairs with a stirred body need be looked at.
#pragma once
#include "render/Scene.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace world
{
class Settled
{
public:
    // Compares every body with how it stood at the last call: all that a test of a pair reads. bodies: indices of
    // objects. carOf: by object, -1 for none; a car is stirred at the next call too, because whether it is hit depends
    // on its speed.
    void Compare(const std::vector<render::Obj>& objects, const std::vector<std::int16_t>& bodies,
                 const std::vector<std::int16_t>& carOf);
    // Whether the last Compare was given another list: all bodies are stirred then.
    bool IsOtherList() const { return OtherList; }
    bool IsStirred(std::size_t body) const { return Stirred[body] != 0; }
    // The body was moved: stirred from now on, and at the next Compare too.
    void Stir(std::size_t body) { Stirred[body] = Moved[body] = 1; }

private:
    // Of all bodies in turn: place, angles, radius, then each sphere's centre and radius.
    struct Stances
    {
        std::vector<float> Numbers;
        std::vector<std::size_t> Starts; // by body, and the end

        void Take(const std::vector<render::Obj>& objects, const std::vector<std::int16_t>& bodies);
        // By their bits: what is no number is itself.
        bool SameAs(const Stances& other, std::size_t body) const;
    };

    std::vector<std::int16_t> Bodies;
    Stances Now, Before;
    std::vector<std::uint8_t> Stirred, Moved; // by body
    bool OtherList = true;
};
}
