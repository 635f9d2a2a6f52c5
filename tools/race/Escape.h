// SPDX-License-Identifier: Zlib
// tools/race/Escape.h: whether a stubborn driver can leave the map: from places round the lap and all over the ground
// the user's car, alone, is driven at the nearest border, round what is in the way; then an average human-like driver
// takes it back to the road, if it is still on the map.
#pragma once
#include "tools/race/Line.h"
#include "tools/race/Stage.h"
#include "tools/race/Trace.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace race
{
struct Attempt
{
    bool IsFromLap = false; // otherwise from somewhere on the ground
    Spot From = {};
    double Heading = 0;              // at the start
    double Margin = 0;               // units from the border where the car was nearest to it; below 0 it was outside
    Spot Nearest = {};               // there
    std::optional<double> Left = {}; // seconds after which it left the picture of the ground
    std::optional<double> Back = {}; // seconds that the way back to the line took, where it was found
};

// `places` attempts from places along the line, then as many from all over the dry ground, each in a game of its own,
// on `jobs` threads. trace: is given one car, that of the first attempt; may be null.
std::vector<Attempt> TryToEscape(const Setup& setup, int places, int seconds, int jobs, Trace* trace);

std::string EscapeTable(std::span<const Attempt> attempts);
std::string EscapeCsv(std::span<const Attempt> attempts);
std::string EscapeJson(std::span<const Attempt> attempts);
}
