// SPDX-License-Identifier: Zlib
// assets/sound/synth/Filter.h: the filters that voices and effects are made with. Frequencies in Hz.
#pragma once
#include "assets/common/Numbers.h"
#include "assets/sound/synth/Stereo.h"

#include <cmath>

namespace assets::sound
{
inline double FilterGain(double hz)
{
    return std::tan(Pi * std::clamp(hz, 10.0, 0.45 * Rate) / Rate);
}

// Two poles, swept without clicks (trapezoidal integration). One of Low, Band and High may be called a frame.
class StateFilter
{
public:
    StateFilter() { Set(1000, 0.7); }
    StateFilter(double hz, double q) { Set(hz, q); }
    void Set(double hz, double q)
    {
        const double g = FilterGain(hz);
        Damp = 1 / q;
        A1 = 1 / (1 + g * (g + Damp));
        A2 = g * A1;
        A3 = g * A2;
    }
    double Low(double in)
    {
        Step(in);
        return LowOut;
    }
    double Band(double in)
    {
        Step(in);
        return BandOut;
    }
    double High(double in)
    {
        Step(in);
        return in - Damp * BandOut - LowOut;
    }

private:
    void Step(double in)
    {
        const double v3 = in - Ic2;
        BandOut = A1 * Ic1 + A2 * v3;
        LowOut = Ic2 + A2 * Ic1 + A3 * v3;
        Ic1 = 2 * BandOut - Ic1;
        Ic2 = 2 * LowOut - Ic2;
    }
    double Damp = 1, A1 = 0, A2 = 0, A3 = 0;
    double Ic1 = 0, Ic2 = 0, BandOut = 0, LowOut = 0; // both integrators and their outputs
};

// Four poles with feedback that bends instead of running away: resonance 0 .. 1.1, it whistles from 1.
class Ladder
{
public:
    void Set(double hz, double resonance)
    {
        const double g = FilterGain(hz);
        Part = g / (1 + g);
        Feedback = 4 * resonance;
    }
    double Low(double in)
    {
        // The output half a step ahead is guessed from the last one, which is enough below a few kHz.
        double x = std::tanh(in - Feedback * Last);
        for (double& state : State)
        {
            const double v = (x - state) * Part;
            x = v + state;
            state = x + v;
        }
        Last = x;
        return x;
    }

private:
    double Part = 0, Feedback = 0, Last = 0;
    double State[4] = {};
};

// One pole: the difference to the input is its high-pass.
class OnePole
{
public:
    explicit OnePole(double hz = 1000) { Set(hz); }
    void Set(double hz) { Share = 1 - std::exp(-2 * Pi * hz / Rate); }
    double Low(double in) { return State += Share * (in - State); }
    double High(double in) { return in - Low(in); }

private:
    double Share = 1, State = 0;
};
}
