// SPDX-License-Identifier: Zlib
#include "assets/sound/synth/Plucked.h"

#include "assets/common/Numbers.h"
#include "assets/sound/synth/Filter.h"

namespace assets::sound
{
namespace
{
// One string: a delay line of one period whose end is softened and fed back.
class String
{
public:
    String(double hz, double softness) : Softness(softness)
    {
        const double period = Rate / hz - softness; // the softening filter delays by that much
        const double whole = std::floor(period - 0.5);
        const double part = period - whole;
        Tune = (1 - part) / (1 + part);
        Cells.assign(static_cast<std::size_t>(std::max(2.0, whole)), 0.0);
    }
    std::size_t Period() const { return Cells.size(); }
    double Step(double blow, double loss)
    {
        double& cell = Cells[At];
        const double end = cell;
        const double soft = (1 - Softness) * end + Softness * LastEnd;
        LastEnd = end;
        const double tuned = Tune * (soft - LastTuned) + LastSoft; // all-pass: the fraction of a frame
        LastSoft = soft;
        LastTuned = tuned;
        cell = blow + tuned * loss;
        At = At + 1 == Cells.size() ? 0 : At + 1;
        return cell;
    }

private:
    std::vector<double> Cells;
    std::size_t At = 0;
    double Softness, Tune, LastEnd = 0, LastSoft = 0, LastTuned = 0;
};

// What the plectrum gives the string in the first period, minus its echo from the bridge.
std::vector<double> Pluck(const PluckedSettings& s, const Tone& tone, std::size_t period, std::uint32_t seed)
{
    const double edge = s.Edge * std::exp2(2.5 * (tone.Force - 0.75) + tone.Bright);
    OnePole first(edge), second(edge * 1.5);
    NoiseSource noise(seed);
    std::vector<double> blow(period);
    const double size = static_cast<double>(period);
    for (std::size_t i = 0; i < period; ++i)
    {
        const double at = (static_cast<double>(i) + 0.5) / size;
        const double push = at < 0.18 ? 2.2 * std::sin(Pi * at / 0.18) : -0.25;
        blow[i] = second.Low(first.Low(Lerp(push, noise.Next() * 1.6, s.Grain)));
    }
    std::vector<double> heard = blow;
    const std::size_t echo = Frames(s.Pick * size / Rate);
    double mean = 0;
    for (std::size_t i = 0; i < period; ++i)
    {
        heard[i] -= 0.9 * blow[(i + period - echo) % period];
        mean += heard[i] / size;
    }
    for (double& value : heard)
        value -= mean;
    return heard;
}

double LossOf(double hz, double seconds)
{
    return std::pow(10.0, -3 / (hz * seconds));
}

void PlayString(const PluckedSettings& s, const Tone& tone, double cents, double side, std::uint32_t seed, Stereo& out)
{
    const double hz = tone.Hz * std::exp2(cents / 1200);
    String string(hz, s.Softness);
    const std::vector<double> blow = Pluck(s, tone, string.Period(), seed);
    const double held = LossOf(hz, s.Ring), damped = LossOf(hz, s.Damp);
    const std::size_t start = Frames(tone.Start), down = Frames(tone.Length),
                      count = Frames(tone.Length + s.Damp * 1.3);
    const double force = std::pow(tone.Force, 1.3) * 0.5;
    const double left = force * std::sqrt((1 - side) / 2) * 1.41421356;
    const double right = force * std::sqrt((1 + side) / 2) * 1.41421356;
    for (std::size_t i = 0; i < count; ++i)
    {
        double wave = string.Step(i < blow.size() ? blow[i] : 0, i < down ? held : damped);
        if (s.Snap > 0)
        {
            const double slap = s.Snap * tone.Force * std::exp(-static_cast<double>(i) / (0.03 * Rate));
            wave = Lerp(wave, 0.6 * std::tanh(3 * wave), std::min(1.0, slap));
        }
        const double fade = SmoothStep(1, 0.9, static_cast<double>(i) / static_cast<double>(count));
        out.Add(start + i, wave * left * fade, wave * right * fade);
    }
}
}

Instrument Plucked(const PluckedSettings& settings)
{
    return [settings](const Tone& tone, Stereo& out)
    {
        for (int i = 0; i < settings.Course; ++i)
        {
            const double place = settings.Course == 1 ? 0 : 2.0 * i / (settings.Course - 1) - 1;
            PlayString(settings, tone, settings.Detune / 2 * place, settings.Width * place,
                       tone.Seed + 77u * static_cast<std::uint32_t>(i), out);
        }
    };
}
}
