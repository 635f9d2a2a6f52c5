// SPDX-License-Identifier: Zlib
// assets/sound/synth/Oversample.h: four frames out of one and back, by a long low-pass.
#pragma once
#include <array>
#include <cstddef>
#include <vector>

namespace assets::sound
{
inline constexpr std::size_t Times = 4;

// The values between: result[Times * i + k] lies k / Times after frame i.
class Upsampler
{
public:
    // The four values that end Reach frames before the newest one.
    std::array<double, Times> Next(double in);
    static constexpr std::size_t Reach = 8;

private:
    std::array<double, 2 * Reach> Past{};
    std::size_t At = 0;
};

// The way back: one frame out of four.
class Downsampler
{
public:
    double Next(const std::array<double, Times>& in);
    static constexpr std::size_t Reach = 8; // frames of delay

private:
    std::array<double, 2 * Reach * Times> Past{};
    std::size_t At = 0;
};
}
