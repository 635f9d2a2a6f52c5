// SPDX-License-Identifier: Zlib
// assets/sound/synth/Keys.h: instruments made of sines: electric piano, bells, organ, whistle.
#pragma once
#include "assets/sound/synth/Envelope.h"
#include "assets/sound/synth/Tone.h"

namespace assets::sound
{
// One sine bends the phase of another: metal and tines.
struct MetalSettings
{
    double Ratio = 1;       // of the bending sine to the note
    double Depth = 1.5;     // radians at full force
    double DepthTime = 0.4; // seconds, how long the bite lasts
    double Chime = 0.2;     // strength of a second, high pair
    double ChimeRatio = 14;
    double ChimeTime = 0.12;
    double Tremolo = 0; // depth of a slow swing from side to side
    Envelope Amp{0.002, 1.6, 0.0, 0.25};
};
Instrument Metal(const MetalSettings& settings);

// Drawbars: strengths of 1/2, 3/2, 1, 2, 3, 4, 5, 6 and 8 times the pitch. Turns slowly like a rotating speaker.
struct OrganSettings
{
    double Bars[9] = {0.6, 0.5, 1, 0.6, 0.1, 0.3, 0, 0, 0.2};
    double Knock = 0.5;   // the short third harmonic at the beginning
    double Turning = 0.8; // turns a second of the speaker
    Envelope Amp{0.006, 0.1, 1.0, 0.05};
};
Instrument Organ(const OrganSettings& settings);

// A breathy whistle or flute with a late vibrato; slides where the score does.
struct WhistleSettings
{
    double Breath = 0.06;
    double Octave = 0.15; // strength of the second harmonic
    double Twelfth = 0.08;
    double Vibrato = 22; // cents
    double Glide = 0.07;
    Envelope Amp{0.035, 0.2, 0.85, 0.12};
};
Instrument Whistle(const WhistleSettings& settings);
}
