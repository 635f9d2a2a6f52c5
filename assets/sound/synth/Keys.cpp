// SPDX-License-Identifier: Zlib
#include "assets/sound/synth/Keys.h"

#include "assets/common/Numbers.h"
#include "assets/sound/synth/Filter.h"
#include "assets/sound/synth/Wave.h"

#include <array>

namespace assets::sound
{
namespace
{
void PlayMetal(const MetalSettings& s, const Tone& tone, Stereo& out)
{
    const std::size_t start = Frames(tone.Start), count = Frames(tone.Length + s.Amp.Release);
    // High notes bend less, or they would fold over.
    const double low = std::min(1.0, std::sqrt(440 / tone.Hz));
    const double depth = s.Depth * std::pow(tone.Force, 1.5) * low * std::exp2(tone.Bright) / (2 * Pi);
    const bool chimes = s.Chime > 0 && tone.Hz * (s.ChimeRatio + 1) < 0.45 * Rate;
    const double force = std::pow(tone.Force, 1.3) * 0.4;
    const double turn = HashUnit(0, 8, tone.Seed);
    for (std::size_t i = 0; i < count; ++i)
    {
        const double t = static_cast<double>(i) / Rate, turns = tone.Hz * t;
        const double bite = depth * (0.25 + 0.75 * std::exp(-3 * t / s.DepthTime));
        double wave = Sine(turns + bite * Sine(turns * s.Ratio));
        wave += 0.35 * Sine(turns * 1.0015 + turn); // a second string, hardly apart
        if (chimes)
            wave += s.Chime * std::exp(-3 * t / s.ChimeTime) * Sine(turns + 0.1 * Sine(turns * s.ChimeRatio)) +
                    s.Chime * 0.5 * std::exp(-3 * t / s.ChimeTime) * Sine(turns * s.ChimeRatio);
        const double amp = force * s.Amp.At(t, tone.Length), swing = s.Tremolo * Sine(4.6 * (tone.Start + t));
        out.Add(start + i, wave * amp * (1 + swing), wave * amp * (1 - swing));
    }
}

void PlayOrgan(const OrganSettings& s, const Tone& tone, Stereo& out)
{
    static constexpr std::array<double, 9> Ratio{0.5, 1.5, 1, 2, 3, 4, 5, 6, 8};
    const std::size_t start = Frames(tone.Start), count = Frames(tone.Length + s.Amp.Release);
    const double force = std::pow(tone.Force, 1.3) * 0.14;
    for (std::size_t i = 0; i < count; ++i)
    {
        const double t = static_cast<double>(i) / Rate, now = tone.Start + t;
        // The horn comes nearer and goes away: pitch, loudness and side turn together.
        const double turns = tone.Hz * (t + 0.00022 / s.Turning * Sine(s.Turning * now));
        const double swing = 0.22 * Sine(s.Turning * now + 0.25);
        double wave = s.Knock * std::exp(-t / 0.06) * Sine(turns * 3);
        for (std::size_t bar = 0; bar < Ratio.size(); ++bar)
            if (s.Bars[bar] > 0 && tone.Hz * Ratio[bar] < 0.45 * Rate)
                wave += s.Bars[bar] * Sine(turns * Ratio[bar]);
        const double amp = force * s.Amp.At(t, tone.Length);
        out.Add(start + i, wave * amp * (1 + swing), wave * amp * (1 - swing));
    }
}

void PlayWhistle(const WhistleSettings& s, const Tone& tone, Stereo& out)
{
    const std::size_t start = Frames(tone.Start), count = Frames(tone.Length + s.Amp.Release);
    const double force = std::pow(tone.Force, 1.2) * 0.4;
    StateFilter air(tone.Hz * 2, 3);
    NoiseSource noise(tone.Seed);
    double turns = 0;
    for (std::size_t i = 0; i < count; ++i)
    {
        const double t = static_cast<double>(i) / Rate;
        const double slide = std::pow(tone.FromHz / tone.Hz, std::exp(-4 * t / s.Glide));
        const double shake = SmoothStep(0.18, 0.5, t) * Sine(5.1 * t + HashUnit(0, 9, tone.Seed));
        turns += tone.Hz * slide * std::exp2(s.Vibrato * shake / 1200) / Rate;
        const double breath = air.Band(noise.Next()) * s.Breath * (1 + 2 * std::exp(-t / 0.05));
        const double wave = Sine(turns) + s.Octave * Sine(2 * turns + 0.1) + s.Twelfth * Sine(3 * turns + 0.3);
        const double amp = force * s.Amp.At(t, tone.Length) * (1 + 0.08 * shake);
        out.Add(start + i, (wave + breath) * amp, (wave + breath) * amp);
    }
}
}

Instrument Metal(const MetalSettings& settings)
{
    return [settings](const Tone& tone, Stereo& out) { PlayMetal(settings, tone, out); };
}

Instrument Organ(const OrganSettings& settings)
{
    return [settings](const Tone& tone, Stereo& out) { PlayOrgan(settings, tone, out); };
}

Instrument Whistle(const WhistleSettings& settings)
{
    return [settings](const Tone& tone, Stereo& out) { PlayWhistle(settings, tone, out); };
}
}
