#include "world/NearStrips.h"

#include "base/Numbers.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace modDinamica
{
namespace
{
constexpr double StripWidth = 12.0; // world units: 64 strips hold the usual world once
constexpr double Farthest = 1e6;    // beyond it, the slack below would not cover the rounding
constexpr double Slack = 0.01;

constexpr int All = NearStrips::StripCount;

int Strip(int number)
{
    return number & (All - 1);
}

std::uint64_t Gather(const std::uint64_t* strips, int first, int count)
{
    std::uint64_t bits = 0;
    for (int n = 0; n < count; ++n)
        bits |= strips[Strip(first + n)];
    return bits;
}

struct Stretch
{
    int First, Count;
};

Stretch StretchOf(double middle, double reach)
{
    const int first = base::Floor((middle - reach) / StripWidth);
    const int last = base::Floor((middle + reach) / StripWidth);
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
    Blocks.assign((bodies + 63) / 64, Block{});
}

void NearStrips::Add(std::size_t body, const Footprint& at)
{
    Block& block = Blocks[body / 64];
    const std::uint64_t bit = std::uint64_t{1} << (body % 64);
    for (int n = 0; n < at.CountX; ++n)
        block.X[Strip(at.FirstX + n)] |= bit;
    for (int n = 0; n < at.CountZ; ++n)
        block.Z[Strip(at.FirstZ + n)] |= bit;
}

std::size_t NearStrips::Next(const Footprint& at, std::size_t after) const
{
    std::size_t body = after + 1;
    for (std::size_t index = body / 64; index < Blocks.size(); ++index, body = index * 64)
    {
        const Block& block = Blocks[index];
        const std::uint64_t shared = Gather(block.X, at.FirstX, at.CountX) & Gather(block.Z, at.FirstZ, at.CountZ) &
                                     (~std::uint64_t{0} << (body % 64));
        if (shared != 0)
            return index * 64 + static_cast<std::size_t>(std::countr_zero(shared));
    }
    return Bodies;
}
}
