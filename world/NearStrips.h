// world/NearStrips.h: which bodies may touch, without asking every pair. The ground is cut into strips along x and
// along z; a strip knows, one bit a body, who reaches into it. Two bodies nearer than the sum of their radii share a
// strip in both directions, so whoever walks the shared ones misses none; the test of the pair itself is the caller's.
// Strips repeat after StripCount, so that no coordinate lies outside: far bodies only give candidates more.
#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

namespace modDinamica
{
// The strips that a body reaches into, in both directions: `Count` from `First` on, in turn.
struct Footprint
{
    int FirstX = 0, CountX = 0, FirstZ = 0, CountZ = 0;
};
// Never too small, whatever the numbers; all strips for what is not finite or very far.
Footprint FootprintOf(double x, double z, double radius);

class NearStrips
{
public:
    // Takes away all bodies and makes room. No allocation for a number had before.
    void Reset(std::size_t bodies);
    // Also after a move: a body stays where it was as well, which only gives candidates more.
    void Add(std::size_t body, const Footprint& at);
    // The first body above `after` that shares strips with the footprint; the number of bodies when there is none.
    std::size_t Next(const Footprint& at, std::size_t after) const;

    static constexpr int StripCount = 64;

private:
    // For 64 bodies a word: their bits in the strips along x, then in those along z.
    struct Block
    {
        std::uint64_t X[StripCount], Z[StripCount];
    };
    std::size_t Bodies = 0;
    std::vector<Block> Blocks;
};
}
