// SPDX-License-Identifier: Zlib
#include "assets/sound/score/Pattern.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <stdexcept>

namespace assets::sound
{
namespace
{
[[noreturn]] void Wrong(const std::string& what, const std::string& text)
{
    throw std::runtime_error(what + ": " + text);
}

// Reads "a#4" from the beginning of a word and moves on.
int ParseKey(const std::string& word, std::size_t& at)
{
    static constexpr int Naturals[] = {9, 11, 0, 2, 4, 5, 7}; // a to g
    if (word[at] < 'a' || word[at] > 'g')
        Wrong("no note", word);
    int key = Naturals[word[at++] - 'a'];
    if (at < word.size() && (word[at] == '#' || word[at] == 'b'))
        key += word[at++] == '#' ? 1 : -1;
    if (at >= word.size() || word[at] < '0' || word[at] > '9')
        Wrong("a note without octave", word);
    return key + 12 * (word[at++] - '0' + 1);
}

double ParseLength(const std::string& word, std::size_t& at)
{
    double total = 0;
    do
    {
        at += word[at] == '+';
        static const std::string Letters = "whqes";
        const std::size_t letter = at < word.size() ? Letters.find(word[at]) : std::string::npos;
        if (letter == std::string::npos)
            Wrong("a note without length", word);
        double length = 4 * std::exp2(-static_cast<double>(letter));
        ++at;
        if (at < word.size() && word[at] == '.')
        {
            length *= 1.5;
            ++at;
        }
        else if (at < word.size() && word[at] == '3')
        {
            length *= 2.0 / 3;
            ++at;
        }
        total += length;
    } while (at < word.size() && word[at] == '+');
    return total;
}

double Dynamic(const std::string& word)
{
    static const std::vector<std::pair<std::string, double>> Forces{
        {"p", 0.5}, {"mp", 0.6}, {"mf", 0.7}, {"f", 0.82}, {"ff", 0.94}};
    for (const auto& [name, force] : Forces)
        if (name == word)
            return force;
    return 0;
}

// What stands behind a note's length, at this place of its word; `last` is the key before it, -1 without one.
void Mark(Note& note, const std::string& word, std::size_t place, double last)
{
    switch (word[place])
    {
    case '>':
        note.Force = std::min(1.0, note.Force + 0.14);
        break;
    case '\'':
        note.Length *= 0.5;
        break;
    case '_':
        note.FromKey = last < 0 ? note.Key : last;
        break;
    default:
        Wrong("what is this", word);
    }
}
}

std::vector<std::string> Bars(const std::string& text)
{
    std::vector<std::string> bars;
    std::istringstream in(text);
    for (std::string bar; std::getline(in, bar, '|');)
        if (bar.find_first_not_of(" \n") != std::string::npos)
            bars.push_back(bar);
    return bars;
}

std::vector<std::string> Words(const std::string& text)
{
    std::istringstream in(text);
    std::vector<std::string> words;
    for (std::string word; in >> word;)
        words.push_back(word);
    return words;
}

std::vector<Step> Steps(const std::string& pattern, int bars, int barSteps)
{
    std::string signs, last;
    for (const std::string& bar : Bars(pattern))
    {
        std::string now;
        std::copy_if(bar.begin(), bar.end(), std::back_inserter(now), [](char c) { return c != ' ' && c != '\n'; });
        if (now == ".")
            now.assign(static_cast<std::size_t>(barSteps), '.');
        if (now == "%")
            now = last;
        if (now.size() != static_cast<std::size_t>(barSteps))
            Wrong("a bar of wrong length", bar);
        signs += now;
        last = now;
    }
    if (signs.empty())
        Wrong("no pattern", pattern);
    std::vector<Step> steps;
    for (int at = 0; at < bars * barSteps; ++at)
    {
        const char sign = signs[static_cast<std::size_t>(at) % signs.size()];
        if (sign == '-' && !steps.empty() && steps.back().At + steps.back().Steps == at)
            ++steps.back().Steps;
        else if (sign != '.' && sign != '-')
            steps.push_back({sign, at, 1});
    }
    return steps;
}

double ForceOf(char sign)
{
    switch (sign)
    {
    case 'X':
        return 0.95;
    case 'x':
        return 0.75;
    case 'r':
        return 0.65;
    case 'o':
        return 0.42;
    default:
        return 0;
    }
}

Line ParseMelody(const std::string& text, double barBeats)
{
    Line line;
    double at = 0, force = 0.75, last = -1;
    for (const std::string& bar : Bars(text))
    {
        const double begin = at;
        for (const std::string& word : Words(bar))
        {
            if (const double dynamic = Dynamic(word); dynamic > 0)
            {
                force = dynamic;
                continue;
            }
            std::size_t next = 0;
            if (word[0] == '~')
            {
                if (line.Notes.empty())
                    Wrong("nothing to tie to", word);
                line.Notes.back().Length += ParseLength(word, ++next);
                at = line.Notes.back().Start + line.Notes.back().Length;
                continue;
            }
            const bool rest = word[0] == 'r';
            const int key = rest ? 0 : ParseKey(word, next);
            next += rest;
            Note note{at, ParseLength(word, next), static_cast<double>(key), static_cast<double>(key), force, 0};
            at += note.Length;
            for (; next < word.size(); ++next)
                Mark(note, word, next, last);
            if (rest)
                continue;
            last = note.Key;
            line.Notes.push_back(note);
        }
        if (std::abs(at - begin - barBeats) > 1e-6)
            Wrong("a bar that is not full", bar);
        at = begin + barBeats;
    }
    return line;
}
}
