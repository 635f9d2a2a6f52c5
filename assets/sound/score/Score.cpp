// SPDX-License-Identifier: Zlib
#include "assets/sound/score/Score.h"

#include "assets/common/Numbers.h"
#include "assets/sound/score/Pattern.h"
#include "base/Numbers.h"

#include <algorithm>
#include <optional>
#include <sstream>
#include <stdexcept>

namespace assets::sound
{
namespace
{
constexpr double StepBeats = 0.25; // a pattern's sixteenth

void Shift(Line& line, double beats, int semitones)
{
    for (Note& note : line.Notes)
    {
        note.Start += beats;
        note.Key += semitones;
        note.FromKey += semitones;
    }
}

// The lowest key at or above `lowest` of a pitch class.
int AtOrAbove(int pitch, int lowest)
{
    return lowest + Wrap(pitch - lowest, 12);
}

bool HasTone(const Chord& chord, int tone)
{
    return std::find(chord.Tones.begin(), chord.Tones.end(), tone) != chord.Tones.end();
}

// The chord's own colour of a degree, or what stands for it in a chord without that degree.
int Degree(const Chord& chord, int major, int minor, int otherwise)
{
    return HasTone(chord, major) ? major : HasTone(chord, minor) ? minor : otherwise;
}

// The key that a sign of a bass pattern asks for over a chord before the next one; nothing for an unknown sign.
std::optional<int> BassKey(char sign, const Chord& chord, const Chord& next, int lowest)
{
    const int bass = AtOrAbove(chord.Bass, lowest), target = AtOrAbove(next.Bass, lowest);
    // Degrees count from the root, above the bass note.
    const int root = AtOrAbove(chord.Root, bass);
    switch (sign)
    {
    case '1':
        return bass;
    case '3':
        return root + Degree(chord, 4, 3, 5);
    case '5':
        return root + Degree(chord, 7, 6, 7);
    case '6':
        return root + 9;
    case '7':
        return root + Degree(chord, 11, 10, 12);
    case '8':
        return bass + 12;
    case '0':
        return root + Degree(chord, 7, 6, 7) - 12;
    case '<':
        return target - 1;
    case '>':
        return target + 1;
    default:
        return std::nullopt;
    }
}

std::vector<Chord> Sounding(const auto& placed)
{
    std::vector<Chord> chords;
    chords.reserve(placed.size());
    for (const auto& each : placed)
        chords.push_back(each.Sounding);
    return chords;
}
}

Score::Score(const Tempo& tempo, std::vector<Section> sections) : Pace(tempo), Sections(std::move(sections))
{
    for (const Section& section : Sections)
    {
        Starts.push_back(TotalBeats);
        const std::vector<std::string> bars = Bars(section.Chords);
        if (bars.empty())
            throw std::runtime_error("no chords: " + section.Name);
        for (int bar = 0; bar < section.Bars; ++bar)
        {
            const std::vector<std::string> names = Words(bars[static_cast<std::size_t>(bar) % bars.size()]);
            const double length = tempo.BarBeats / static_cast<double>(names.size());
            for (const std::string& name : names)
            {
                Chords.push_back({TotalBeats, length, Shifted(ParseChord(name), section.Shift)});
                TotalBeats += length;
            }
        }
    }
}

double Score::Seconds(double beat) const
{
    const double eighth = std::floor(beat * 2) / 2, part = (beat - eighth) * 2; // 0 .. 1 within the eighth
    const double swung = part < 0.5 ? part * 2 * Pace.Swing : Pace.Swing + (part - 0.5) * 2 * (1 - Pace.Swing);
    return (eighth + swung / 2) * 60 / Pace.Bpm;
}

const Section& Score::Named(const std::string& name) const
{
    const auto found = std::find_if(Sections.begin(), Sections.end(), [&](const Section& s) { return s.Name == name; });
    if (found == Sections.end())
        throw std::runtime_error("no section: " + name);
    return *found;
}

double Score::StartOf(const std::string& section) const
{
    return Starts[static_cast<std::size_t>(&Named(section) - Sections.data())];
}

double Score::EndOf(const std::string& section) const
{
    return StartOf(section) + Named(section).Bars * Pace.BarBeats;
}

std::size_t Score::ChordAt(double beat) const
{
    std::size_t at = 0;
    while (at + 1 < Chords.size() && Chords[at + 1].Start <= beat + 1e-9)
        ++at;
    return at;
}

Line Score::Melody(const std::string& section, const std::string& text) const
{
    Line line = ParseMelody(text, Pace.BarBeats);
    Shift(line, StartOf(section), Named(section).Shift);
    if (!line.Notes.empty() && line.Notes.back().Start >= EndOf(section))
        throw std::runtime_error("a melody longer than " + section);
    return line;
}

Line Score::Beat(const std::string& section, const std::string& pattern) const
{
    constexpr double Key = 60; // what has a pitch of its own does not ask
    Line line;
    const int barSteps = base::RoundEven(Pace.BarBeats / StepBeats);
    for (const Step& step : Steps(pattern, Named(section).Bars, barSteps))
    {
        const double start = StartOf(section) + step.At * StepBeats;
        if (!line.Notes.empty())
            line.Notes.back().Length = start - line.Notes.back().Start;
        line.Notes.push_back({start, step.Steps * StepBeats, Key, Key, ForceOf(step.Sign), 0});
        if (step.Sign == 'r')
        {
            line.Notes.back().Length = StepBeats / 2;
            line.Notes.push_back({start + StepBeats / 2, StepBeats / 2, Key, Key, ForceOf(step.Sign) + 0.08, 0});
        }
    }
    return line;
}

void Score::Drums(Kit& kit, const std::string& section, const std::string& patterns) const
{
    std::istringstream lines(patterns);
    for (std::string line; std::getline(lines, line);)
    {
        std::istringstream words(line);
        std::string name, pattern;
        if (!(words >> name))
            continue;
        std::getline(words, pattern);
        kit[name] += Beat(section, pattern);
    }
}

Line Score::Bass(const std::string& section, const std::string& pattern, int lowest) const
{
    Line line;
    const int barSteps = base::RoundEven(Pace.BarBeats / StepBeats);
    for (const Step& step : Steps(pattern, Named(section).Bars, barSteps))
    {
        const double start = StartOf(section) + step.At * StepBeats;
        const std::size_t index = ChordAt(start);
        const Chord& chord = Chords[index].Sounding;
        const Chord& next = Chords[std::min(index + 1, Chords.size() - 1)].Sounding;
        const std::optional<int> bass = BassKey(step.Sign, chord, next, lowest);
        if (!bass)
            throw std::runtime_error("no degree of a bass: " + pattern);
        const double key = *bass;
        const double force = step.At % 4 == 0 ? 0.82 : step.At % 2 == 0 ? 0.74 : 0.66;
        line.Notes.push_back({start, step.Steps * StepBeats * 0.92, key, key, force, 0});
    }
    return line;
}

Line Score::Held(const std::string& section, const Range& range) const
{
    Line line;
    const auto layouts = Lead(Sounding(Chords), range);
    for (std::size_t i = 0; i < Chords.size(); ++i)
        if (Chords[i].Start >= StartOf(section) - 1e-9 && Chords[i].Start < EndOf(section) - 1e-9)
            for (const int key : layouts[i])
                line.Notes.push_back(
                    {Chords[i].Start, Chords[i].Length, static_cast<double>(key), static_cast<double>(key), 0.7, 0});
    return line;
}

Line Score::Comp(const std::string& section, const std::string& pattern, const Range& range) const
{
    Line line;
    const auto layouts = Lead(Sounding(Chords), range);
    const int barSteps = base::RoundEven(Pace.BarBeats / StepBeats);
    for (const Step& step : Steps(pattern, Named(section).Bars, barSteps))
    {
        const double start = StartOf(section) + step.At * StepBeats;
        if (ForceOf(step.Sign) <= 0)
            throw std::runtime_error("no stroke: " + pattern);
        for (const int key : layouts[ChordAt(start)])
            line.Notes.push_back({start, step.Steps * StepBeats * 0.9, static_cast<double>(key),
                                  static_cast<double>(key), ForceOf(step.Sign), 0});
    }
    return line;
}

Line Score::Arpeggio(const std::string& section, const std::string& pattern, const Range& range) const
{
    Line line;
    const auto layouts = Lead(Sounding(Chords), range);
    const int barSteps = base::RoundEven(Pace.BarBeats / StepBeats);
    for (const Step& step : Steps(pattern, Named(section).Bars, barSteps))
    {
        const double start = StartOf(section) + step.At * StepBeats;
        const int voice = step.Sign - '0';
        if (voice < 0 || voice > 9)
            throw std::runtime_error("no voice of an arpeggio: " + pattern);
        const std::vector<int>& keys = layouts[ChordAt(start)];
        const int count = static_cast<int>(keys.size());
        const int octaves = voice / count;
        const double key = keys[static_cast<std::size_t>(voice % count)] + 12.0 * octaves;
        const double force = step.At % 4 == 0 ? 0.8 : step.At % 2 == 0 ? 0.68 : 0.6;
        line.Notes.push_back({start, step.Steps * StepBeats * 0.9, key, key, force, 0});
    }
    return line;
}

Line Score::Marks(const std::vector<std::string>& sections, double before) const
{
    Line line;
    for (const std::string& section : sections)
        line.Notes.push_back({StartOf(section) - before, before, 60, 60, 0.8, 0});
    return line;
}

Line Score::Below(const Line& melody, int distance) const
{
    Line line = melody;
    double last = -1;
    for (Note& note : line.Notes)
    {
        const Chord& chord = Chords[ChordAt(note.Start)].Sounding;
        const auto has = [&](int trial) { return HasTone(chord, Wrap(trial - chord.Root, 12)); };
        // Not a semitone above another tone of the chord: that would rub.
        int key = base::RoundEven(note.Key) - distance;
        const int lowest = key - 9;
        while (key > lowest && (!has(key) || has(key - 1)))
            --key;
        note.FromKey = note.FromKey == note.Key || last < 0 ? key : last;
        note.Key = last = key;
        note.Force *= 0.9;
    }
    return line;
}
}
