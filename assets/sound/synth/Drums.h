// SPDX-License-Identifier: Zlib
// assets/sound/synth/Drums.h: synthesised drums. Hz and seconds; strengths from 0. Skins here, metal and noises of the
// studio in assets/sound/synth/Cymbals.h.
#pragma once
#include "assets/sound/synth/Tone.h"

namespace assets::sound
{
struct KickSettings
{
    double Hz = 48;       // where the sweep ends
    double From = 190;    // where it begins
    double Sweep = 0.035; // seconds
    double Ring = 0.32;
    double Click = 0.3;
    double Drive = 1.5;
};
Instrument Kick(const KickSettings& settings);

struct SnareSettings
{
    double Hz = 185;
    double Body = 0.9;
    double BodyRing = 0.11;
    double Wires = 0.8;
    double WiresRing = 0.19;
    double Tone = 2600; // Hz, where the wires' noise begins to be full
    double Drive = 1.6;
};
Instrument Snare(const SnareSettings& settings);

Instrument Clap(double ring);
// The tone's pitch is the drum's.
Instrument Tom(double ring);
Instrument Conga();
Instrument Rim();
}
