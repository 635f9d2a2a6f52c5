// SPDX-License-Identifier: Zlib
// assets/sound/synth/Analog.h: the subtractive voice behind pads, basses, leads, plucks, brass and reeds.
#pragma once
#include "assets/sound/synth/Envelope.h"
#include "assets/sound/synth/Tone.h"

namespace assets::sound
{
struct AnalogSettings
{
    int Voices = 1;          // copies, spread over pitch and stereo
    double Detune = 0;       // cents to the outermost copies
    double Width = 0;        // 0: all in the middle, 1: copies at the edges
    double Pulse = 0;        // 0: sawtooth, 1: pulse
    double PulseWidth = 0.5; // share of the period
    double PulseDrift = 0;   // how far the width moves, slowly
    double Sub = 0;          // a sine an octave below
    double Noise = 0;
    double Cutoff = 1500;   // Hz, for middle C
    double Track = 0.5;     // octaves of cutoff an octave of pitch
    double Sweep = 0;       // octaves the filter envelope opens
    double Resonance = 0.2; // 0 .. 1
    double Touch = 1;       // octaves between a soft and a hard note
    double Vibrato = 0;     // cents, 0.25 s into the note
    double Scoop = 0;       // semitones below the note at its beginning
    double Glide = 0.06;    // seconds of a slide
    double Drive = 1;       // into the filter, which bends
    Envelope Amp{}, Filter{};
};

Instrument Analog(const AnalogSettings& settings);
}
