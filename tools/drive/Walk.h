// SPDX-License-Identifier: Zlib
// tools/drive/Walk.h: peek and poke: following a path through values.
#pragma once
#include "tools/drive/Values.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace drive
{
using Steps = std::span<const Step>;

// "players[0].Speed" as steps; nothing where the text is no path. The names point into the text.
std::optional<std::vector<Step>> ParsePath(std::string_view path);

// Hands the value at the end of the path to use. What stands in something read-only is read-only too.
Outcome Follow(const Value& value, Steps rest, const Visit& use);

// What to do at the end of a path: append the value to json; set it to the text as written behind the path.
Visit Reader(std::string& json);
Visit Writer(std::string_view text);
}
