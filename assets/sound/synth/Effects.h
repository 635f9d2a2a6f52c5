// SPDX-License-Identifier: Zlib
// assets/sound/synth/Effects.h: what is done to a whole part or bus. Frequencies in Hz, times in seconds, levels in
// decibels.
#pragma once
#include "assets/sound/synth/Stereo.h"

namespace assets::sound
{
// Removes what lies below (above) the frequency, 12 dB an octave.
void CutLow(Stereo& sound, double hz);
void CutHigh(Stereo& sound, double hz);
// Raises or lowers a region; q: the narrower the larger.
void Bell(Stereo& sound, double hz, double q, double decibels);
// Raises or lowers everything above.
void HighShelf(Stereo& sound, double hz, double decibels);

// Bends loud passages like an overdriven amplifier. Worked at four times the rate, so that nothing folds back.
// `lean` bends one half more than the other.
void Drive(Stereo& sound, double decibels, double lean = 0.1);

// Moves what lies above the frequency further to the sides, and what lies below it into the middle. Both sides together
// sound as before.
void Widen(Stereo& sound, double hz, double decibels);

// Three slowly moving copies on either side.
void Chorus(Stereo& sound, double depth, double mix);

struct DelaySettings
{
    double Left = 0.3, Right = 0.45; // seconds; echoes go over to the other side
    double Feedback = 0.4;
    double Low = 250, High = 4500; // band of the echoes
};
// Only the echoes.
Stereo Echo(const Stereo& sound, const DelaySettings& settings);

struct RoomSettings
{
    double Seconds = 2.0; // to -60 dB
    double Size = 1.0;    // of a hall
    double Before = 0.02; // until the first reflection
    double Damp = 5000;   // above this it fades faster
    double Low = 220;     // nothing below gets in
};
// Only the reverberation.
Stereo Room(const Stereo& sound, const RoomSettings& settings);

// Lowers what is louder than the threshold. Both sides together.
void Compress(Stereo& sound, double threshold, double ratio, double attack, double release);
// Never lets a peak between two frames through that is above the ceiling.
void Limit(Stereo& sound, double ceiling);
}
