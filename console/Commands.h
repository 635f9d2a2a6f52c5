// console/Commands.h: the commands by name. Each throws a RuntimeError whose description is the answer.
#pragma once
#include "console/Console.h"
#include "console/Words.h"

namespace console
{
void Answer(Console& console, std::string_view text); // shown in place of the line
void Close(Console& console);

// The index of a player; fails where there is none.
std::int16_t PlayerIndex(const world::Race& race, double number);

void Set(Console& console, const Words& words);
void Get(Console& console, const Words& words);
}
