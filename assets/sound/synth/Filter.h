// sound/synth/Filter.h: the filters that voices and effects are made with. Frequencies in Hz.
#pragma once
#include "sound/synth/Stereo.h"
#include <cmath>

namespace assets::sound
{
inline double FilterGain(double hz)
{
    return std::tan(Pi * std::clamp(hz, 10.0, 0.45 * Rate) / Rate);
}

// Two poles, swept without clicks (trapezoidal integration).
class StateFilter
{
public:
    StateFilter() { Set(1000, 0.7); }
    StateFilter(double hz, double q) { Set(hz, q); }
    void Set(double hz, double q)
    {
        const double g = FilterGain(hz);
        _damp = 1 / q;
        _a1 = 1 / (1 + g * (g + _damp));
        _a2 = g * _a1;
        _a3 = g * _a2;
    }
    double Low(double in)
    {
        Step(in);
        return _low;
    }
    double Band(double in)
    {
        Step(in);
        return _band;
    }
    double High(double in)
    {
        Step(in);
        return in - _damp * _band - _low;
    }

private:
    void Step(double in)
    {
        const double v3 = in - _ic2;
        _band = _a1 * _ic1 + _a2 * v3;
        _low = _ic2 + _a2 * _ic1 + _a3 * v3;
        _ic1 = 2 * _band - _ic1;
        _ic2 = 2 * _low - _ic2;
    }
    double _damp = 1, _a1 = 0, _a2 = 0, _a3 = 0;
    double _ic1 = 0, _ic2 = 0, _band = 0, _low = 0;
};

// Four poles with feedback that bends instead of running away: resonance 0 .. 1.1, it whistles from 1.
class Ladder
{
public:
    void Set(double hz, double resonance)
    {
        const double g = FilterGain(hz);
        _part = g / (1 + g);
        _feedback = 4 * resonance;
    }
    double Low(double in)
    {
        // The output half a step ahead is guessed from the last one, which is enough below a few kHz.
        double x = std::tanh(in - _feedback * _last);
        for (double& state : _state)
        {
            const double v = (x - state) * _part;
            x = v + state;
            state = x + v;
        }
        _last = x;
        return x;
    }

private:
    double _part = 0, _feedback = 0, _last = 0;
    double _state[4] = {};
};

// One pole: the difference to the input is its high-pass.
class OnePole
{
public:
    explicit OnePole(double hz = 1000) { Set(hz); }
    void Set(double hz) { _share = 1 - std::exp(-2 * Pi * hz / Rate); }
    double Low(double in) { return _state += _share * (in - _state); }
    double High(double in) { return in - Low(in); }

private:
    double _share = 1, _state = 0;
};
}
