// SPDX-License-Identifier: Zlib
#include "assets/sound/synth/Biquad.h"

#include "assets/common/Numbers.h"

namespace assets::sound
{
namespace
{
struct Turn
{
    double Cos, Alpha;
    Turn(double hz, double q) : Cos(std::cos(2 * Pi * hz / Rate)), Alpha(std::sin(2 * Pi * hz / Rate) / (2 * q)) {}
};

Biquad Scaled(double b0, double b1, double b2, double a0, double a1, double a2)
{
    return {b0 / a0, b1 / a0, b2 / a0, a1 / a0, a2 / a0};
}
}

Biquad HighPassOf(double hz, double q)
{
    const Turn t(hz, q);
    return Scaled((1 + t.Cos) / 2, -(1 + t.Cos), (1 + t.Cos) / 2, 1 + t.Alpha, -2 * t.Cos, 1 - t.Alpha);
}

Biquad LowPassOf(double hz, double q)
{
    const Turn t(hz, q);
    return Scaled((1 - t.Cos) / 2, 1 - t.Cos, (1 - t.Cos) / 2, 1 + t.Alpha, -2 * t.Cos, 1 - t.Alpha);
}

Biquad BellOf(double hz, double q, double decibels)
{
    const Turn t(hz, q);
    const double a = std::sqrt(Decibels(decibels));
    return Scaled(1 + t.Alpha * a, -2 * t.Cos, 1 - t.Alpha * a, 1 + t.Alpha / a, -2 * t.Cos, 1 - t.Alpha / a);
}

Biquad HighShelfOf(double hz, double decibels)
{
    const Turn t(hz, 0.7071);
    const double a = std::sqrt(Decibels(decibels)), root = 2 * std::sqrt(a) * t.Alpha, c = t.Cos;
    return Scaled(a * (a + 1 + (a - 1) * c + root), -2 * a * (a - 1 + (a + 1) * c), a * (a + 1 + (a - 1) * c - root),
                  a + 1 - (a - 1) * c + root, 2 * (a - 1 - (a + 1) * c), a + 1 - (a - 1) * c - root);
}

void RunBoth(Stereo& sound, const Biquad& filter)
{
    Biquad left = filter, right = filter;
    for (std::size_t i = 0; i < sound.Size(); ++i)
        sound.Put(i, left.Run(sound.Left[i]), right.Run(sound.Right[i]));
}
}
