// SPDX-License-Identifier: Zlib
// Compress and Limit of assets/sound/synth/Effects.h.
#include "assets/sound/synth/Effects.h"

#include "assets/sound/synth/Oversample.h"

#include <deque>

namespace assets::sound
{
namespace
{
// For every frame, the largest value at it and at the finer places around it.
std::vector<float> Peaks(const Stereo& sound)
{
    std::vector<float> peaks(sound.Size());
    for (const std::vector<float>* side : {&sound.Left, &sound.Right})
    {
        Upsampler up;
        for (std::size_t i = 0; i < sound.Size() + Upsampler::Reach; ++i)
        {
            double largest = 0;
            for (const double value : up.Next(i < sound.Size() ? (*side)[i] : 0.0))
                largest = std::max(largest, std::abs(value));
            if (i < Upsampler::Reach)
                continue;
            const std::size_t at = i - Upsampler::Reach;
            peaks[at] = static_cast<float>(
                std::max({static_cast<double>(peaks[at]), largest, std::abs(static_cast<double>((*side)[at]))}));
            if (at + 1 < peaks.size()) // the finer places lie between this frame and the next
                peaks[at + 1] = std::max(peaks[at + 1], static_cast<float>(largest));
        }
    }
    return peaks;
}
}

void Compress(Stereo& sound, double threshold, double ratio, double attack, double release)
{
    const double up = 1 - std::exp(-1 / (attack * Rate)), down = 1 - std::exp(-1 / (release * Rate));
    double power = 0, lowered = 0; // decibels
    for (std::size_t i = 0; i < sound.Size(); ++i)
    {
        const double l = sound.Left[i], r = sound.Right[i];
        power += 0.004 * (0.5 * (l * l + r * r) - power);
        const double over = 10 * std::log10(power + 1e-12) - threshold;
        // The bend at the threshold is 6 dB wide.
        const double knee = over <= -3 ? 0 : over >= 3 ? over : (over + 3) * (over + 3) / 12;
        const double wanted = knee * (1 - 1 / ratio);
        lowered += (wanted > lowered ? up : down) * (wanted - lowered);
        const double gain = Decibels(-lowered);
        sound.Put(i, l * gain, r * gain);
    }
}

void Limit(Stereo& sound, double ceiling)
{
    constexpr std::size_t Ahead = 132; // 3 ms
    const double top = Decibels(ceiling), recover = 1 - std::exp(-1 / (0.08 * Rate));
    std::vector<float> peaks = Peaks(sound);
    std::deque<std::size_t> loudest; // falling peaks within the window
    std::vector<double> window(Ahead, 1.0);
    double gain = 1, sum = Ahead;
    std::size_t seen = 0;
    for (std::size_t i = 0; i < sound.Size(); ++i)
    {
        for (; seen < std::min(sound.Size(), i + Ahead); ++seen)
        {
            while (!loudest.empty() && peaks[loudest.back()] <= peaks[seen])
                loudest.pop_back();
            loudest.push_back(seen);
        }
        while (loudest.front() < i)
            loudest.pop_front();
        const double needed = std::min(1.0, top / std::max(1e-9, static_cast<double>(peaks[loudest.front()])));
        gain = std::min(needed, gain + recover * (1 - gain));
        // The mean of the last gains: each of them already knew this frame.
        double& oldest = window[i % Ahead];
        sum += gain - oldest;
        oldest = gain;
        const double smooth = sum / Ahead;
        sound.Put(i, sound.Left[i] * smooth, sound.Right[i] * smooth);
    }
}
}
