// SPDX-License-Identifier: Zlib
#include "assets/sound/synth/Analog.h"

#include "assets/common/Numbers.h"
#include "assets/sound/synth/Filter.h"
#include "assets/sound/synth/Wave.h"

#include <array>

namespace assets::sound
{
namespace
{
constexpr std::size_t Control = 16; // frames between new pitches and cutoffs
constexpr double MiddleC = 261.6256;

struct Copy
{
    Oscillator Wave;
    double Ratio;       // of its pitch to the note's
    double Left, Right; // shares
};

std::vector<Copy> Copies(const AnalogSettings& s, const Tone& tone)
{
    std::vector<Copy> copies;
    const double level = 1 / std::sqrt(static_cast<double>(s.Voices));
    for (int i = 0; i < s.Voices; ++i)
    {
        const double place = s.Voices == 1 ? 0 : 2.0 * i / (s.Voices - 1) - 1;
        // Neighbours in pitch stand on opposite sides.
        const double side = (i % 2 == 0 ? 1 : -1) * s.Width * std::abs(place);
        const double phase = HashUnit(i, 5, tone.Seed);
        copies.push_back({Oscillator(phase), std::exp2(s.Detune * place / 1200), level * std::sqrt((1 - side) / 2),
                          level * std::sqrt((1 + side) / 2)});
    }
    return copies;
}

double PitchAt(const AnalogSettings& s, const Tone& tone, double t)
{
    const double slide = std::exp(-4 * t / s.Glide);
    const double swell = SmoothStep(0.2, 0.55, t);
    const double bend =
        s.Vibrato / 100 * swell * Sine(5.3 * t + HashUnit(0, 6, tone.Seed)) - s.Scoop * std::exp(-t / 0.025);
    return tone.Hz * std::pow(tone.FromHz / tone.Hz, slide) * std::exp2(bend / 12);
}

double CutoffAt(const AnalogSettings& s, const Tone& tone, double t)
{
    const double octaves = s.Track * std::log2(tone.Hz / MiddleC) + s.Sweep * s.Filter.At(t, tone.Length) +
                           s.Touch * (tone.Force - 0.75) + tone.Bright;
    return std::min(s.Cutoff * std::exp2(octaves), 18000.0);
}

void Play(const AnalogSettings& s, const Tone& tone, Stereo& out)
{
    std::vector<Copy> copies = Copies(s, tone);
    Oscillator sub;
    NoiseSource noise(tone.Seed);
    std::array<Ladder, 2> filters;
    const std::size_t start = Frames(tone.Start), count = Frames(tone.Length + s.Amp.Release);
    const double force = std::pow(tone.Force, 1.3) * 0.35;
    double width = s.PulseWidth;
    for (std::size_t i = 0; i < count; ++i)
    {
        const double t = static_cast<double>(i) / Rate;
        if (i % Control == 0)
        {
            const double hz = PitchAt(s, tone, t);
            for (Copy& copy : copies)
                copy.Wave.SetHz(hz * copy.Ratio);
            sub.SetHz(hz / 2);
            width = s.PulseWidth + s.PulseDrift * Sine(0.4 * (tone.Start + t));
            for (Ladder& filter : filters)
                filter.Set(CutoffAt(s, tone, t), s.Resonance);
        }
        const double middle = s.Sub * sub.SineNow() + s.Noise * noise.Next();
        double left = middle, right = middle;
        for (Copy& copy : copies)
        {
            double wave = copy.Wave.SawNow() * (1 - s.Pulse);
            if (s.Pulse > 0)
                wave += copy.Wave.PulseNow(width) * s.Pulse;
            left += wave * copy.Left * 1.41421356;
            right += wave * copy.Right * 1.41421356;
            copy.Wave.Advance();
        }
        sub.Advance();
        // Bent less than fully: drive 1 leaves a single copy nearly clean.
        const double in = 0.4 * s.Drive, amp = s.Amp.At(t, tone.Length) * force / in;
        left = filters[0].Low(left * in) * amp;
        right = s.Width > 0 ? filters[1].Low(right * in) * amp : left;
        out.Add(start + i, left, right);
    }
}
}

Instrument Analog(const AnalogSettings& settings)
{
    return [settings](const Tone& tone, Stereo& out) { Play(settings, tone, out); };
}
}
