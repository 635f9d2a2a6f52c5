// SPDX-License-Identifier: Zlib
#include "assets/sound/score/Chords.h"

#include "assets/common/Numbers.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <map>
#include <stdexcept>

namespace assets::sound
{
namespace
{
const std::map<std::string, std::vector<int>>& Kinds()
{
    static const std::map<std::string, std::vector<int>> kinds{
        {"", {4, 0, 7}},          {"m", {3, 0, 7}},           {"5", {0, 7}},
        {"7", {4, 10, 0, 7}},     {"m7", {3, 10, 7, 0}},      {"maj7", {4, 11, 7, 0}},
        {"6", {4, 9, 0, 7}},      {"m6", {3, 9, 0, 7}},       {"69", {4, 9, 2, 7, 0}},
        {"9", {4, 10, 2, 7, 0}},  {"m9", {3, 10, 2, 7, 0}},   {"maj9", {4, 11, 2, 7, 0}},
        {"13", {4, 10, 9, 2, 0}}, {"sus4", {5, 0, 7}},        {"sus2", {2, 0, 7}},
        {"7sus4", {5, 10, 0, 7}}, {"9sus4", {5, 10, 2, 7}},   {"add9", {4, 2, 0, 7}},
        {"madd9", {3, 2, 0, 7}},  {"dim", {3, 6, 0}},         {"dim7", {3, 9, 6, 0}},
        {"m7b5", {3, 10, 6, 0}},  {"7b9", {4, 10, 1, 7}},     {"m11", {3, 10, 5, 7, 2}},
        {"aug", {4, 8, 0}},       {"maj7#11", {4, 11, 6, 7}}, {"mmaj7", {3, 11, 7, 0}}};
    return kinds;
}

// Reads a note name at `at`, and moves on.
int ParseRoot(const std::string& name, std::size_t& at)
{
    static constexpr int Keys[] = {9, 11, 0, 2, 4, 5, 7}; // a to g
    if (at >= name.size() || name[at] < 'A' || name[at] > 'G')
        throw std::runtime_error("no chord: " + name);
    int key = Keys[name[at++] - 'A'];
    if (at < name.size() && (name[at] == '#' || name[at] == 'b'))
        key += name[at++] == '#' ? 1 : -1;
    return Wrap(key, 12);
}

using Keys = std::vector<int>;

bool HasKey(const Chord& chord, int key)
{
    const int tone = Wrap(key - chord.Root, 12);
    return std::find(chord.Tones.begin(), chord.Tones.end(), tone) != chord.Tones.end();
}

// What a layout costs by itself: missing or doubled tones, crowded low voices.
double CostOf(const Chord& chord, const Keys& keys)
{
    double cost = 0;
    for (std::size_t i = 0; i < std::min(chord.Tones.size(), keys.size()); ++i)
        if (std::none_of(keys.begin(), keys.end(),
                         [&](int key) { return Wrap(key - chord.Root, 12) == chord.Tones[i]; }))
            cost += 20;
    for (std::size_t i = 1; i < keys.size(); ++i)
    {
        const int gap = keys[i] - keys[i - 1];
        if (gap < 3)
            cost += keys[i - 1] < 57 ? 6 : 1.5;
        if (gap > 9)
            cost += 4;
    }
    return cost;
}

double MoveCost(const Keys& from, const Keys& to)
{
    double cost = 0;
    for (std::size_t i = 0; i < std::min(from.size(), to.size()); ++i)
        cost += std::abs(to[i] - from[i]);
    return cost + 0.6 * std::abs(to.back() - from.back()); // the highest voice is heard best
}

// Calls visit for every ascending choice of chord tones within the range.
template <class Visit> void Choose(const Chord& chord, const Range& range, Keys& keys, Visit&& visit)
{
    if (static_cast<int>(keys.size()) == range.Voices)
    {
        visit(keys);
        return;
    }
    const int first = keys.empty() ? range.Low : keys.back() + 1;
    for (int key = first; key <= std::min(range.High, first + 13); ++key)
        if (HasKey(chord, key))
        {
            keys.push_back(key);
            Choose(chord, range, keys, visit);
            keys.pop_back();
        }
}
}

Chord ParseChord(const std::string& name)
{
    Chord chord;
    std::size_t at = 0;
    chord.Root = chord.Bass = ParseRoot(name, at);
    const std::size_t slash = name.find('/', at);
    const auto kind = Kinds().find(name.substr(at, slash == std::string::npos ? slash : slash - at));
    if (kind == Kinds().end())
        throw std::runtime_error("no chord: " + name);
    chord.Tones = kind->second;
    if (slash != std::string::npos)
    {
        at = slash + 1;
        chord.Bass = ParseRoot(name, at);
    }
    return chord;
}

Chord Shifted(Chord chord, int semitones)
{
    chord.Root = Wrap(chord.Root + semitones, 12);
    chord.Bass = Wrap(chord.Bass + semitones, 12);
    return chord;
}

std::vector<Keys> Lead(const std::vector<Chord>& chords, const Range& range)
{
    std::vector<Keys> layouts;
    for (const Chord& chord : chords)
    {
        Keys best, trial;
        double least = std::numeric_limits<double>::max();
        Choose(chord, range, trial,
               [&](const Keys& keys)
               {
                   double sum = 0;
                   for (const int key : keys)
                       sum += key;
                   const double middle = sum / range.Voices - (range.Low + range.High) / 2.0;
                   const double cost = CostOf(chord, keys) + (layouts.empty() ? 0 : MoveCost(layouts.back(), keys)) +
                                       0.12 * middle * middle;
                   if (cost < least)
                   {
                       least = cost;
                       best = keys;
                   }
               });
        if (best.empty())
            throw std::runtime_error("no room for a chord");
        layouts.push_back(best);
    }
    return layouts;
}
}
