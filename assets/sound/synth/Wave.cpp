// SPDX-License-Identifier: Zlib
#include "assets/sound/synth/Wave.h"

#include "assets/common/Numbers.h"
#include "assets/sound/synth/Stereo.h"
#include "base/Numbers.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace assets::sound
{
namespace
{
constexpr int TableSize = 4096;
constexpr int LevelsPerOctave = 3;
constexpr int Levels = 10 * LevelsPerOctave;
constexpr double MostHarmonics = 1024;
constexpr double Band = 0.43; // of the sample rate: about 19 kHz

int HarmonicsOf(int level)
{
    return base::Floor(MostHarmonics * std::pow(2.0, -static_cast<double>(level) / LevelsPerOctave));
}

using SineTable = std::array<double, TableSize + 1>;

const SineTable& Sines()
{
    static const SineTable table = []
    {
        SineTable made{};
        for (std::size_t i = 0; i < made.size(); ++i)
            made[i] = std::sin(2 * Pi * static_cast<double>(i) / TableSize);
        return made;
    }();
    return table;
}

template <class Table> double Between(const Table& table, double phase)
{
    const double at = phase * TableSize;
    const auto index = static_cast<std::size_t>(base::Floor(at));
    const double part = at - static_cast<double>(index);
    return table[index] + (table[index + 1] - table[index]) * part;
}
}

Wave::Wave(const std::function<double(int)>& strength)
{
    for (int level = 0; level < Levels; ++level)
    {
        std::vector<double> sum(TableSize + 1);
        const int most = HarmonicsOf(level);
        for (int harmonic = 1; harmonic <= most; ++harmonic)
        {
            // The last harmonics fade, so that a sweep through the levels makes no step.
            const double fade = most > 4 ? SmoothStep(most + 1.0, most * 0.7, harmonic) : 1;
            const double s = strength(harmonic) * fade;
            if (s == 0)
                continue;
            for (int i = 0; i <= TableSize; ++i)
                sum[static_cast<std::size_t>(i)] += s * Sines()[static_cast<std::size_t>(harmonic * i % TableSize)];
        }
        Tables.emplace_back(sum.begin(), sum.end());
    }
}

int Wave::Level(double step)
{
    const double room = Band / std::max(step, Band / MostHarmonics);
    return std::clamp(-base::Floor(-LevelsPerOctave * std::log2(MostHarmonics / room)), 0, Levels - 1);
}

double Wave::At(double phase, int level) const
{
    return Between(Tables[static_cast<std::size_t>(level)], phase);
}

const Wave& Saw()
{
    static const Wave wave([](int harmonic) { return 2 / (Pi * harmonic); });
    return wave;
}

double Sine(double turns)
{
    return Between(Sines(), turns - std::floor(turns));
}

void Oscillator::SetHz(double hz)
{
    Step = hz / Rate;
    Level = Wave::Level(Step);
}

void Oscillator::Advance()
{
    Phase += Step;
    Phase -= std::floor(Phase);
}

double Oscillator::PulseNow(double width) const
{
    const double other = Phase + width;
    return Saw().At(Phase, Level) - Saw().At(other - std::floor(other), Level);
}
}
