// SPDX-License-Identifier: Zlib
// assets/sound/score/Score.h: a piece on paper: its form and harmony, and the notations in which the players' lines are
// written.
//
// Chords:  "Am9 | Fmaj7 G | ..." the chords of a bar share it evenly.
// Melody:  "e5q. d5e c5h | rq ..." note and octave (c4 is middle c; # and b), then lengths: w h q e s for whole to
//          sixteenth, "." dotted, "3" third part of the next longer value, "+" ties another length on. r is a rest.
//          Behind it: > accent, ' short, _ slid into from the note before. ~ and a length holds the note before on,
//          also over a bar. The words p mp mf f ff set the force.
// Pattern: one character a sixteenth, bars parted by "|", blanks for the eye; a bar that is only "." is silent, "%" is
//          the bar before once more.
//          Beat and Comp: X loud, x, o soft, r a roll of two, . silence, - goes on sounding.
//          Bass: 1 3 5 7 8 the degree of the chord, 6 sixth, 0 the fifth below, < and > a semitone below and above the
//          next chord's root; capitals of silence and holding as above.
//          Arpeggio: 0 1 2 ... the voice of the chord from below; numbers beyond the voices go on an octave higher.
// Drums:   a line a drum: its name, then its pattern.
// Chords and patterns shorter than their section are repeated. Wrong text throws std::runtime_error.
#pragma once
#include "assets/sound/score/Chords.h"
#include "assets/sound/score/Line.h"

#include <map>
#include <string>
#include <vector>

namespace assets::sound
{
// What each drum plays, by its name.
using Kit = std::map<std::string, Line>;

struct Section
{
    std::string Name;
    int Bars;
    std::string Chords;
    int Shift = 0; // semitones by which everything in it is played higher
};

struct Tempo
{
    double Bpm = 120;
    double Swing = 0.5;  // where the second sixteenth of an eighth falls; 0.5 is even
    double BarBeats = 4; // quarter notes a bar
};

class Score
{
public:
    Score(const Tempo& tempo, std::vector<Section> sections);

    double Seconds(double beat) const; // when a moment is heard, swing included
    double Beats() const { return TotalBeats; }
    double StartOf(const std::string& section) const; // beats
    double EndOf(const std::string& section) const;

    Line Melody(const std::string& section, const std::string& text) const;
    // Strokes on one key; each lasts until the next one.
    Line Beat(const std::string& section, const std::string& pattern) const;
    void Drums(Kit& kit, const std::string& section, const std::string& patterns) const;
    Line Bass(const std::string& section, const std::string& pattern, int lowest) const;
    // Chords held for as long as they last.
    Line Held(const std::string& section, const Range& range) const;
    Line Comp(const std::string& section, const std::string& pattern, const Range& range) const;
    Line Arpeggio(const std::string& section, const std::string& pattern, const Range& range) const;
    // One stroke at the beginning of each section, or `before` beats earlier and as long.
    Line Marks(const std::vector<std::string>& sections, double before = 0) const;
    // A second voice: for every note the nearest tone of the chord at least `distance` semitones lower.
    Line Below(const Line& melody, int distance) const;

private:
    struct Placed // a chord in time
    {
        double Start, Length;
        Chord Sounding;
    };
    const Section& Named(const std::string& name) const;
    std::size_t ChordAt(double beat) const;

    Tempo Pace;
    std::vector<Section> Sections;
    std::vector<double> Starts; // beats, one a section
    std::vector<Placed> Chords;
    double TotalBeats = 0;
};
}
