// SPDX-License-Identifier: Zlib
#include "assets/sound/Engine.h"

#include "assets/common/Numbers.h"
#include "base/Numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>

namespace assets::sound
{
namespace
{
using Complex = std::complex<double>;

constexpr int Length = 1024;
// Eight cycles of four cylinders. Both numbers divide Length, so what nearest-sample playback mirrors above the
// sample's own band falls on multiples of the firing frequency again and sounds like more of the engine.
constexpr int Cycles = 8, Cylinders = 4;
constexpr int Firings = Cycles * Cylinders;
// Harmonics of the loop; the firing frequency is the 32nd. The last ones fade out.
constexpr int FadeFrom = 200, Harmonics = 430;
constexpr int Fine = Length * 4; // where the growl is bent, before it is cut to the band again
// Effective value: below the music beside it. With the gain of a full race the peaks stay 9 dB below full scale, which
// leaves room for the music: the machine adds both.
constexpr double Level = 23;

using Spectrum = std::array<Complex, Harmonics + 1>;
using Loop = std::vector<double>; // any length, one turn

double Angle(double harmonic, double turn)
{
    return 2 * Pi * harmonic * turn;
}

Loop Synthesise(const Spectrum& spectrum, int size)
{
    Loop loop(static_cast<std::size_t>(size));
    for (int i = 0; i < size; ++i)
    {
        double sum = 0;
        for (int h = 1; h <= Harmonics; ++h)
        {
            const double angle = Angle(h * i % size, 1.0 / size);
            const Complex& part = spectrum[static_cast<std::size_t>(h)];
            sum += part.real() * std::cos(angle) - part.imag() * std::sin(angle);
        }
        loop[static_cast<std::size_t>(i)] = sum;
    }
    return loop;
}

Spectrum Analyse(const Loop& loop)
{
    const int size = static_cast<int>(loop.size());
    Spectrum spectrum{};
    for (int h = 1; h <= Harmonics; ++h)
        for (int i = 0; i < size; ++i)
        {
            const double angle = Angle(h * i % size, 1.0 / size);
            spectrum[static_cast<std::size_t>(h)] +=
                loop[static_cast<std::size_t>(i)] * Complex(std::cos(angle), -std::sin(angle)) * (2.0 / size);
        }
    return spectrum;
}

// How a pipe or a box answers a blow: rings at `at` (in harmonics of the loop), the longer the larger q is.
Complex Resonance(double harmonic, double at, double q)
{
    const double ratio = harmonic / at;
    return 1.0 / Complex(1 - ratio * ratio, ratio / q);
}

// One firing as heard behind the car: the blow-down, the exhaust pipe with its echoes, the silencer, the intake.
Complex Blow(double harmonic)
{
    const Complex floor = Resonance(harmonic, 17, 1.6) * 0.9;
    const Complex body = Resonance(harmonic, 33, 1.1);
    const Complex pipe = Resonance(harmonic, 78, 2.4) * 0.50;
    const Complex silencer = Resonance(harmonic, 150, 4.0) * 0.20;
    const Complex intake = Resonance(harmonic, 250, 4.0) * 0.07;
    return (floor + body - pipe + silencer - intake) / Complex(1, harmonic / 110);
}

// No two cylinders breathe alike; the second and fourth share the longer pipe. That gives the half orders.
Spectrum Strokes()
{
    static constexpr std::array<double, Cylinders> Force{1.0, 0.66, 0.93, 0.60};
    static constexpr std::array<double, Cylinders> Late{0.0, 0.9, -0.3, 1.3}; // samples
    Spectrum spectrum{};
    for (int firing = 0; firing < Firings; ++firing)
    {
        const auto cylinder = static_cast<std::size_t>(firing % Cylinders);
        // A little unevenness from cycle to cycle: more would be heard as a beat when the loop comes round.
        const double force = Force[cylinder] * (1 + 0.05 * (HashUnit(firing, 1, 7) - 0.5));
        const int start = firing * (Length / Firings);
        const double at = start + Late[cylinder] + 0.5 * (HashUnit(firing, 2, 7) - 0.5);
        for (int h = 1; h <= Harmonics; ++h)
            spectrum[static_cast<std::size_t>(h)] += force * std::polar(1.0, -Angle(h, at / Length)) * Blow(h);
    }
    return spectrum;
}

// Gas rushing through the valves: noise that swells with every firing.
Spectrum Hiss()
{
    Loop noise(Length);
    for (int i = 0; i < Length; ++i)
    {
        const double sinceFiring = i % (Length / Firings);
        noise[static_cast<std::size_t>(i)] = (HashUnit(i, 3, 7) - 0.5) * (0.35 + std::exp(-sinceFiring / 9.0));
    }
    Spectrum spectrum = Analyse(noise);
    for (int h = 1; h <= Harmonics; ++h)
        spectrum[static_cast<std::size_t>(h)] *= SmoothStep(60, 200, h);
    return spectrum;
}

// Small loudspeakers give nothing below 200 Hz: there the engine is what its third to eighth harmonic make of it.
// They come a quarter turn late, so that their tips fall beside those of the low ones: as loud, and less high.
Complex Presence(double harmonic)
{
    constexpr double Raised = 5; // decibels
    const double order = harmonic / Firings, rise = SmoothStep(1.8, 2.8, order);
    return std::polar(std::pow(10.0, Raised / 20 * rise * SmoothStep(11, 8.4, order)), -Pi / 2 * rise);
}

void Shape(Spectrum& spectrum)
{
    for (int h = 1; h <= Harmonics; ++h)
        spectrum[static_cast<std::size_t>(h)] *= Presence(h) * SmoothStep(Harmonics + 1, FadeFrom, h);
}

double Largest(const Loop& loop)
{
    double largest = 0;
    for (const double value : loop)
        largest = std::max(largest, std::abs(value));
    return largest;
}

double Effective(const Loop& loop)
{
    double sum = 0;
    for (const double value : loop)
        sum += value * value;
    return std::sqrt(sum / static_cast<double>(loop.size()));
}

void Scale(Loop& loop, double factor)
{
    for (double& value : loop)
        value *= factor;
}

// The error of each rounding is handed to the next sample: what is left of it lies low in the band and leaves the top
// empty. The second round begins with the error that the first one ended with, as a circle does.
std::vector<std::uint8_t> Rounded(const Loop& loop)
{
    std::vector<std::uint8_t> bytes(loop.size());
    double error = 0;
    for (int round = 0; round < 2; ++round)
        for (std::size_t i = 0; i < loop.size(); ++i)
        {
            const double wanted = loop[i] + error;
            const int value = base::RoundEven(wanted);
            error = value - wanted;
            bytes[i] = static_cast<std::uint8_t>(128 + value);
        }
    return bytes;
}
}

std::vector<std::uint8_t> EngineLoop()
{
    Loop growl = Synthesise(Strokes(), Fine);
    Scale(growl, 1 / Largest(growl));
    // Loud pulses press against the pipe: bent, not cut, and unevenly, which adds the even harmonics of a rough engine.
    for (double& value : growl)
        value = std::tanh(2.6 * value + 0.3);
    Spectrum spectrum = Analyse(growl);
    const Spectrum hiss = Hiss();
    for (int h = 1; h <= Harmonics; ++h)
        spectrum[static_cast<std::size_t>(h)] += 0.16 * hiss[static_cast<std::size_t>(h)];
    Shape(spectrum);
    Loop loop = Synthesise(spectrum, Length);
    Scale(loop, Level / Effective(loop));
    return Rounded(loop);
}
}
