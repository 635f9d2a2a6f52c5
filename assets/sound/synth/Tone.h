// SPDX-License-Identifier: Zlib
// assets/sound/synth/Tone.h: one note as an instrument hears it.
#pragma once
#include "assets/sound/synth/Stereo.h"

#include <functional>

namespace assets::sound
{
struct Tone
{
    double Start = 0, Length = 0.5; // seconds; the key is let go after Length
    double Hz = 440;
    double FromHz = 440;    // where a slide begins; Hz without one
    double Force = 0.75;    // 0 .. 1
    double Bright = 0;      // octaves by which filters open further
    std::uint32_t Seed = 1; // two tones with one seed sound alike to the last bit
};

// Adds the tone to the sound, its tail included.
using Instrument = std::function<void(const Tone&, Stereo&)>;
}
