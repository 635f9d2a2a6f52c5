// sound/synth/Wave.h: sawtooth and triangle without aliasing: tables with fewer harmonics the higher the note.
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
    std::vector<std::vector<float>> _tables; // each one turn, the first point repeated at the end
};

const Wave& Saw();
const Wave& Triangle();

// Sine of `turns` full turns.
double Sine(double turns);

// A running phase that reads the waves.
class Oscillator
{
public:
    explicit Oscillator(double phase = 0) : _phase(phase) {}
    void SetHz(double hz);
    void Advance();
    double SawNow() const { return Saw().At(_phase, _level); }
    double TriangleNow() const { return Triangle().At(_phase, _level); }
    double SineNow() const { return Sine(_phase); }
    // width: share of the period, 0 .. 1.
    double PulseNow(double width) const;

private:
    double _phase, _step = 0;
    int _level = 0;
};
}
