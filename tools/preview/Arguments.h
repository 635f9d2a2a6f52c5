// SPDX-License-Identifier: Zlib
// tools/preview/Arguments.h: the command line, understood and checked before anything is read or loaded.
#pragma once
#include "platform/Platform.h"

#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>
#include <vector>

namespace preview
{
enum class Subject
{
    Help,
    Turntable,
    Map,
    Lap
};

// What no option says stands at its default; 0 where the default depends on the rest. Sizes in pixels.
struct Arguments
{
    Subject What = Subject::Help;
    std::filesystem::path Root;  // the folder that holds data/; empty: found as the game finds it
    std::filesystem::path Out;   // the picture
    std::filesystem::path Model; // turntable: the file that is shown
    std::filesystem::path Lines; // map: what was driven; empty none
    platform::Size Size;         // turntable: of a tile; lap: of the game
    int Sides = 8;               // turntable: from how many the model is seen
    double Scale = 2;            // map: pixels a world unit
    int Places = 24;             // lap
    int TileWidth = 0;           // lap: of the game's picture on the sheet
    bool IsComputer = false;     // lap: the computer drives it
    // lap: render::View each, in the order of the columns.
    std::vector<std::int16_t> Views;
};

// words: the command line without the program's name. Misuse where it is none.
Arguments ParseArguments(std::span<const std::string_view> words);

// The name of a render::View on the command line and in captions.
std::string_view ViewName(std::int16_t view);

// What --help prints.
std::string_view HelpText();
}
