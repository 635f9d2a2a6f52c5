#include "world/NearStrips.h"

#include "base/Numbers.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace world
{
namespace
{
constexpr double StripsAUnit = 1.0 / 12.0; // 64 strips hold the usual world once
constexpr double Farthest = 1e6;           // beyond it, the slack below would not cover the rounding
constexpr double Slack = 0.01;

constexpr int All = NearStrips::StripCount;

std::size_t StripNumber(int number)
{
    return static_cast<std::size_t>(number & (All - 1));
}

struct Stretch
{
    int First, Count;
};

Stretch StretchOf(double middle, double reach)
{
    const int first = base::Floor((middle - reach) * StripsAUnit);
    const int last = base::Floor((middle + reach) * StripsAUnit);
    return {first, std::min(last - first + 1, All)};
}
}

Footprint FootprintOf(double x, double z, double radius)
{
    const double reach = std::fabs(radius) + Slack;
    if (!(std::fabs(x) < Farthest && std::fabs(z) < Farthest && reach < Farthest))
        return {0, All, 0, All};
    const Stretch alongX = StretchOf(x, reach);
    const Stretch alongZ = StretchOf(z, reach);
    return {alongX.First, alongX.Count, alongZ.First, alongZ.Count};
}

void NearStrips::Reset(std::size_t bodies)
{
    Bodies = bodies;
    Words = (bodies + 63) / 64;
    AlongX.assign(Words * StripCount, 0);
    AlongZ.assign(Words * StripCount, 0);
    Seen.resize(Words);
    SeenZ.resize(Words);
}

void NearStrips::Add(std::size_t body, const Footprint& at)
{
    const Bits bit = Bits{1} << (body % 64);
    for (int n = 0; n < at.CountX; ++n)
        AlongX[StripNumber(at.FirstX + n) * Words + body / 64] |= bit;
    for (int n = 0; n < at.CountZ; ++n)
        AlongZ[StripNumber(at.FirstZ + n) * Words + body / 64] |= bit;
}

void NearStrips::Remove(std::size_t body, const Footprint& at)
{
    const Bits others = ~(Bits{1} << (body % 64));
    for (int n = 0; n < at.CountX; ++n)
        AlongX[StripNumber(at.FirstX + n) * Words + body / 64] &= others;
    for (int n = 0; n < at.CountZ; ++n)
        AlongZ[StripNumber(at.FirstZ + n) * Words + body / 64] &= others;
}

// Whole strips are joined word by word: long runs of the same simple step, whatever the bodies are.
void NearStrips::Gather(const std::vector<Bits>& strips, int first, int count, std::size_t from,
                        std::vector<Bits>& into) const
{
    const std::size_t words = Words; // a copy, and plain pointers: no aliasing in the loop
    Bits* const found = into.data();
    std::fill(found + from, found + words, Bits{0});
    for (int n = 0; n < count; ++n)
    {
        const Bits* const strip = strips.data() + StripNumber(first + n) * words;
        for (std::size_t word = from; word < words; ++word)
            found[word] |= strip[word];
    }
}

void NearStrips::Look(const Footprint& at, std::size_t after)
{
    const std::size_t words = Words;
    const std::size_t from = (after + 1) / 64;
    if (from >= words)
        return;
    Gather(AlongX, at.FirstX, at.CountX, from, Seen);
    Gather(AlongZ, at.FirstZ, at.CountZ, from, SeenZ);
    Bits* const seen = Seen.data();
    const Bits* const seenZ = SeenZ.data();
    for (std::size_t word = from; word < words; ++word)
        seen[word] &= seenZ[word];
}

std::size_t NearStrips::Next(std::size_t after) const
{
    std::size_t body = after + 1;
    for (std::size_t word = body / 64; word < Words; ++word, body = word * 64)
    {
        const Bits left = Seen[word] & (~Bits{0} << (body % 64));
        if (left != 0)
            return word * 64 + static_cast<std::size_t>(std::countr_zero(left));
    }
    return Bodies;
}
}
