// SPDX-License-Identifier: Zlib
// console/Commands.h: the commands by name. Each throws a RuntimeError whose description is the answer (Words.h: Fail),
// and has changed nothing then.
#pragma once
#include "console/Console.h"
#include "console/Words.h"

#include <optional>
#include <string>

namespace console
{
// What a command leaves on the display: an answer in place of the line, or none, and the console closes.
using Reply = std::optional<std::string>;

// The index of a player; fails where there is none. RuntimeError 6 where 16 bits do not hold the number.
std::int16_t PlayerIndex(const world::Race& race, double number);

// words: the whole line, the command's own name first.
Reply Set(Console& console, const Words& words);
Reply Get(Console& console, const Words& words);
}
