// world/NearStrips.h: which bodies may touch, without asking every pair. The ground is cut into strips along x and
// along z; a strip knows, one bit a body, who reaches into it. Two bodies nearer than the sum of their radii share a
// strip in both directions, so whoever walks the shared ones misses none; the test of the pair itself is the caller's.
// Strips repeat after StripCount, so that no coordinate lies outside: far bodies only give candidates more.
#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

namespace world
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
    static constexpr int StripCount = 64;

    // Takes away all bodies and makes room. No allocation for a number had before.
    void Reset(std::size_t bodies);
    void Add(std::size_t body, const Footprint& at);
    // at: where it was added.
    void Remove(std::size_t body, const Footprint& at);
    // Looks for the bodies above `after` that share strips with the footprint, itself among them; Next names them.
    static constexpr std::size_t BeforeAll = static_cast<std::size_t>(-1); // one below 0
    void Look(const Footprint& at, std::size_t after);
    // The first body above `after` that the last Look found; the number of bodies when there is none.
    std::size_t Next(std::size_t after) const;

private:
    using Bits = std::uint64_t; // one bit a body
    std::size_t Bodies = 0, Words = 0;
    std::vector<Bits> AlongX, AlongZ; // Words of every strip in turn
    std::vector<Bits> Seen, SeenZ;    // what Look found

    void Gather(const std::vector<Bits>& strips, int first, int count, std::size_t from, std::vector<Bits>& into) const;
};
}
