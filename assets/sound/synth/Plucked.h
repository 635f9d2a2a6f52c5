// SPDX-License-Identifier: Zlib
// assets/sound/synth/Plucked.h: plucked strings as travelling waves: guitar, bass guitar, mandolin.
#pragma once
#include "assets/sound/synth/Tone.h"

namespace assets::sound
{
struct PluckedSettings
{
    double Ring = 3;       // seconds to -60 dB while held
    double Damp = 0.06;    // the same once let go
    double Softness = 0.3; // loss of high overtones, 0 .. 0.5
    double Pick = 0.13;    // where the string is plucked, share of its length
    double Edge = 3500;    // Hz, brightness of the plectrum at medium force
    double Grain = 0.35;   // 0: the same clean pluck each time, 1: noise
    int Course = 1;        // strings sounding together
    double Detune = 4;     // cents between them
    double Width = 0;      // how far apart they stand in stereo, 0 .. 1
    double Snap = 0;       // the string slaps the fret: drive at the beginning
};

Instrument Plucked(const PluckedSettings& settings);
}
