// SPDX-License-Identifier: Zlib
// tools/race/Variation.h: what is changed in the game before a race starts: settings given on the command line, and the
// cross product of those that are varied.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace race
{
// Thrown where the command line asks for what cannot be done.
struct Misuse
{
    std::string Why;
};

// PATH=VALUE: a path of the driver's (docs/drive.md) and what becomes of the value there.
struct Setting
{
    enum class Change
    {
        Put,   // VALUE takes its place
        Times, // *NUMBER: it is multiplied
        Plus   // +NUMBER: it is added to
    };
    std::string Path; // an index may be *, all there are
    Change How = Change::Put;
    std::string Value;   // of Put
    double Operand = 0;  // of Times and Plus
    std::string Written; // the value as it was given

    std::string Text() const { return Path + "=" + Written; }
};

using Settings = std::vector<Setting>;

// Throws Misuse.
Setting ParseSetting(std::string_view text);
// PATH=VALUE,VALUE…: a setting a value. Throws Misuse.
Settings ParseAxis(std::string_view text);

// Every combination of one setting an axis; the last axis varies quickest. One empty combination without any axis.
std::vector<Settings> CrossProduct(const std::vector<Settings>& axes);
// "a=1 b=2"; "as it is" where nothing is changed.
std::string Describe(const Settings& settings);
}
