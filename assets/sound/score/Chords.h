// SPDX-License-Identifier: Zlib
// assets/sound/score/Chords.h: chord names and how they are laid out for several voices.
#pragma once
#include <string>
#include <vector>

namespace assets::sound
{
struct Chord
{
    int Root = 0, Bass = 0; // 0 is c, 11 is b
    // Semitones above the root, the most telling first: with few voices the last ones are left out.
    std::vector<int> Tones;
};

// "Am9", "F#m7b5", "G/B"; throws std::runtime_error for what it does not know.
Chord ParseChord(const std::string& name);
// Root and bass moved, folded into one octave.
Chord Shifted(Chord chord, int semitones);

struct Range
{
    int Low = 52, High = 72; // keys
    int Voices = 4;
};

// One layout a chord, keys upward; each chosen so that the voices move as little as possible from the one before.
std::vector<std::vector<int>> Lead(const std::vector<Chord>& chords, const Range& range);
}
