// SPDX-License-Identifier: Zlib
// assets/sound/synth/Stereo.h: a stretch of stereo sound, 1 is full scale.
#pragma once
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace assets::sound
{
inline constexpr int Rate = 44100; // frames a second of everything but the engine

// Rounded; 0 for negative times.
inline std::size_t Frames(double seconds)
{
    return static_cast<std::size_t>(std::llrint(std::max(0.0, seconds) * Rate));
}

// The factor of a level in decibels.
inline double Decibels(double level)
{
    return std::pow(10.0, level / 20);
}

struct Stereo
{
    std::vector<float> Left, Right; // of one length

    explicit Stereo(std::size_t frames = 0) : Left(frames), Right(frames) {}
    std::size_t Size() const { return Left.size(); }
    // What falls beyond the end is dropped.
    void Add(std::size_t at, double left, double right)
    {
        if (at >= Size())
            return;
        Left[at] = static_cast<float>(Left[at] + left);
        Right[at] = static_cast<float>(Right[at] + right);
    }
    void Put(std::size_t at, double left, double right)
    {
        Left[at] = static_cast<float>(left);
        Right[at] = static_cast<float>(right);
    }
    void Add(const Stereo& other, double left, double right)
    {
        for (std::size_t i = 0; i < std::min(Size(), other.Size()); ++i)
            Add(i, other.Left[i] * left, other.Right[i] * right);
    }
};

// White noise, -1 .. 1, the same for the same seed.
class NoiseSource
{
public:
    explicit NoiseSource(std::uint32_t seed) : State(seed * 2654435761u + 1u) {}
    double Next()
    {
        State = State * 1664525u + 1013904223u;
        const std::uint32_t mixed = (State ^ (State >> 15)) * 0x2C1B3C6Du;
        return (mixed ^ (mixed >> 13)) * (2.0 / 4294967296.0) - 1;
    }

private:
    std::uint32_t State;
};
}
