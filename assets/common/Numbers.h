// SPDX-License-Identifier: Zlib
// assets/common/Numbers.h: clamping, mixing and repeatable random numbers for the generators. Rounding is in
// base/Numbers.h.
// All randomness comes from hashes of positions, so a picture never depends on drawing order.
#pragma once
#include <cmath>
#include <cstdint>

namespace assets
{
inline constexpr double Pi = 3.14159265358979323846;

inline double Clamp01(double value)
{
    return value < 0 ? 0 : value > 1 ? 1 : value;
}

inline double Lerp(double a, double b, double t)
{
    return a + (b - a) * t;
}

// 0 below a, 1 above b, smooth between. With a > b it falls instead of rising.
inline double SmoothStep(double a, double b, double value)
{
    const double t = Clamp01((value - a) / (b - a));
    return t * t * (3 - 2 * t);
}

// value folded into 0 .. period - 1, also for negative values.
inline int Wrap(int value, int period)
{
    const int rest = value % period;
    return rest < 0 ? rest + period : rest;
}

// A well mixed 32-bit number for a lattice point.
inline std::uint32_t Hash(int x, int y, std::uint32_t seed)
{
    std::uint32_t h = seed * 0x9E3779B9u + 0x7F4A7C15u;
    h ^= static_cast<std::uint32_t>(x) * 0x85EBCA6Bu;
    h = (h << 13) | (h >> 19);
    h ^= static_cast<std::uint32_t>(y) * 0xC2B2AE35u;
    h ^= h >> 16;
    h *= 0x7FEB352Du;
    h ^= h >> 15;
    h *= 0x846CA68Bu;
    return h ^ (h >> 16);
}

// The same as a number in [0, 1).
inline double HashUnit(int x, int y, std::uint32_t seed)
{
    return Hash(x, y, seed) * (1.0 / 4294967296.0);
}

// A sequence of numbers in [0, 1) for placing things.
class Sequence
{
public:
    explicit Sequence(std::uint32_t seed) : Seed(seed) {}
    double Next() { return HashUnit(Index++, 17, Seed); }
    double Between(double low, double high) { return low + (high - low) * Next(); }

private:
    std::uint32_t Seed;
    int Index = 0;
};
}
