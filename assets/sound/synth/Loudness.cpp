// SPDX-License-Identifier: Zlib
#include "assets/sound/synth/Loudness.h"

#include "assets/common/Numbers.h"
#include "assets/sound/synth/Biquad.h"

namespace assets::sound
{
namespace
{
// The head's shadow: a shelf of 4 dB above 1.7 kHz.
Biquad HeadShelf()
{
    constexpr double Q = 0.7071752369554196, Gain = 3.999843853973347;
    const double k = std::tan(Pi * 1681.974450955533 / Rate);
    const double high = Decibels(Gain), band = std::pow(high, 0.4996667741545416), a0 = 1 + k / Q + k * k;
    return {(high + band * k / Q + k * k) / a0, 2 * (k * k - high) / a0, (high - band * k / Q + k * k) / a0,
            2 * (k * k - 1) / a0, (1 - k / Q + k * k) / a0};
}

// The ear's deafness to the lowest tones.
Biquad LowEnd()
{
    constexpr double Q = 0.5003270373238773;
    const double k = std::tan(Pi * 38.13547087602444 / Rate), a0 = 1 + k / Q + k * k;
    return {1, -2, 1, 2 * (k * k - 1) / a0, (1 - k / Q + k * k) / a0};
}

constexpr std::size_t Hop = Rate / 10; // four of them are one block

std::vector<double> HopPowers(const Stereo& sound)
{
    std::vector<double> powers(sound.Size() / Hop);
    for (const std::vector<float>* side : {&sound.Left, &sound.Right})
    {
        Biquad shelf = HeadShelf(), low = LowEnd();
        for (std::size_t i = 0; i < powers.size() * Hop; ++i)
        {
            const double value = low.Run(shelf.Run((*side)[i]));
            powers[i / Hop] += value * value / Hop;
        }
    }
    return powers;
}

double Lufs(double power)
{
    return -0.691 + 10 * std::log10(power + 1e-15);
}

double MeanAbove(const std::vector<double>& blocks, double gate)
{
    double sum = 0, count = 0;
    for (const double power : blocks)
        if (Lufs(power) > gate)
        {
            sum += power;
            ++count;
        }
    return count > 0 ? sum / count : 0;
}
}

double Loudness(const Stereo& sound)
{
    const std::vector<double> hops = HopPowers(sound);
    std::vector<double> blocks;
    for (std::size_t i = 0; i + 4 <= hops.size(); ++i)
        blocks.push_back((hops[i] + hops[i + 1] + hops[i + 2] + hops[i + 3]) / 4);
    const double first = MeanAbove(blocks, -70);
    if (first <= 0)
        return -100;
    return Lufs(MeanAbove(blocks, Lufs(first) - 10));
}
}
