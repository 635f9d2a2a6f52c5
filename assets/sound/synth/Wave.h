// SPDX-License-Identifier: Zlib
// assets/sound/synth/Wave.h: a sawtooth without aliasing, from tables with fewer harmonics the higher the note, and
// sines.
#pragma once
#include <functional>
#include <vector>

namespace assets::sound
{
class Wave
{
public:
    // `strength` gives the amplitude of the sine of harmonic 1, 2, 3, ...
    explicit Wave(const std::function<double(int)>& strength);
    // The table for a pitch; step: cycles a frame.
    static int Level(double step);
    // phase: 0 .. 1.
    double At(double phase, int level) const;

private:
    std::vector<std::vector<float>> Tables; // each one turn, the first point repeated at the end
};

const Wave& Saw();

// Sine of `turns` full turns.
double Sine(double turns);

// A running phase that reads the waves.
class Oscillator
{
public:
    explicit Oscillator(double phase = 0) : Phase(phase) {}
    void SetHz(double hz);
    void Advance();
    double SawNow() const { return Saw().At(Phase, Level); }
    double SineNow() const { return Sine(Phase); }
    // width: share of the period, 0 .. 1.
    double PulseNow(double width) const;

private:
    double Phase, Step = 0;
    int Level = 0;
};
}
