// SPDX-License-Identifier: Zlib
// tools/preview/DrivenLines.h: where cars were driven, as a table of comma-separated values tells it.
#pragma once
#include "tools/preview/Canvas.h"

#include <filesystem>
#include <vector>

namespace preview
{
struct DrivenLine
{
    int Car = 0;                           // as the table numbers it
    std::vector<std::vector<Spot>> Drives; // x and z in world units; a new one begins where the ticks begin anew
};

// One a car, by rising number. The table begins with the line "tick,car,x,z,speed,heading,damage"; every other line has
// these seven numbers. Failure, with the line, where it is anything else, and where no line follows the header.
std::vector<DrivenLine> ReadDrivenLines(const std::filesystem::path& file);
}
