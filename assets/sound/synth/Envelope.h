// SPDX-License-Identifier: Zlib
// assets/sound/synth/Envelope.h: how a note swells and fades. Times in seconds.
#pragma once
#include <algorithm>
#include <cmath>

namespace assets::sound
{
struct Envelope
{
    double Attack = 0.004; // from silence to full
    double Decay = 0.2;    // to within 5 per cent of Sustain
    double Sustain = 0.7;  // share of full, while the key is held
    double Release = 0.1;  // to silence

    // At t seconds from the beginning of a note whose key is let go after `held`.
    double At(double t, double held) const
    {
        const double down = Down(std::min(t, held));
        return t <= held ? down : down * Tail((t - held) / Release);
    }

private:
    double Down(double t) const
    {
        if (t < Attack)
            return t / Attack * (2 - t / Attack);
        return Sustain + (1 - Sustain) * std::exp(-3 * (t - Attack) / Decay);
    }
    static double Tail(double part) { return part >= 1 ? 0 : std::exp(-5 * part) * (1 - part); }
};

// What is struck and left to ring: to within 2 per cent of silence after `ring`.
inline double Fall(double t, double ring)
{
    return std::exp(-4 * t / ring);
}
}
