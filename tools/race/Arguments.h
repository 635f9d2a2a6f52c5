// SPDX-License-Identifier: Zlib
// tools/race/Arguments.h: the command line of velkar-race.
#pragma once
#include "tools/race/Skill.h"
#include "tools/race/Variation.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace race
{
struct Arguments
{
    bool Help = false;
    std::string Root; // empty: to be found beside the program
    int Laps = 5;
    std::uint64_t FirstSeed = 1, LastSeed = 8;
    int Jobs = 0;                 // 0: as many as there are processors
    const Skill* Human = nullptr; // null: the computer drives the user's car too
    bool Repairs = false;         // the human-like driver goes to a repair box
    int Grid = 0;                 // position of the user's car at the start, 1 in front; 0: as the map has it
    std::vector<Settings> Axes;   // in the order given; a setting that is not varied is an axis of one
    std::string Csv, Json, Trace; // files to be written; empty: none
    int Limit = 0;                // seconds of game time that a race may take; 0: two minutes a lap
    int Escapes = 0;              // places to escape from; 0: races are run
    int EscapeSeconds = 40;       // of game time that an attempt takes

    int LimitSeconds() const { return Limit > 0 ? Limit : 120 * Laps; }
    // Every combination of the settings.
    std::vector<Settings> Variations() const { return CrossProduct(Axes); }
};

// Without the program's own name. Throws Misuse.
Arguments ParseArguments(const std::vector<std::string_view>& words);
// What --help shows.
std::string HelpText();
}
