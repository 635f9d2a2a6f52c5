// SPDX-License-Identifier: Zlib
// assets/sound/synth/Biquad.h: two poles, two zeros, fixed: the tone controls of a mixing desk.
#pragma once
#include "assets/sound/synth/Stereo.h"

namespace assets::sound
{
struct Biquad
{
    double B0 = 1, B1 = 0, B2 = 0, A1 = 0, A2 = 0; // zeros and poles, A0 being 1
    double S1 = 0, S2 = 0;                         // what the next frames still get

    double Run(double in)
    {
        const double out = B0 * in + S1;
        S1 = B1 * in - A1 * out + S2;
        S2 = B2 * in - A2 * out;
        return out;
    }
};

// Frequencies in Hz; gains in decibels; q: the narrower the larger.
Biquad HighPassOf(double hz, double q);
Biquad LowPassOf(double hz, double q);
Biquad BellOf(double hz, double q, double decibels);
Biquad HighShelfOf(double hz, double decibels);
// The same filter on either side.
void RunBoth(Stereo& sound, const Biquad& filter);
}
