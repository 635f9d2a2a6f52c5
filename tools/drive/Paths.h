// SPDX-License-Identifier: Zlib
// tools/drive/Paths.h: the roots of all paths: the state of the running game by name.
#pragma once
#include "platform/headless/Machine.h"
#include "shell/Form1.h"
#include "tools/drive/Walk.h"

#include <string>
#include <string_view>

namespace drive
{
// Appends the value at the path to json.
Outcome Peek(shell::Form1& form, headless::Machine& machine, std::string_view path, std::string& json);
// Whether the path leads to anything.
Outcome Find(shell::Form1& form, headless::Machine& machine, std::string_view path);
// Sets one number or text. Whatever does not end in Done has changed nothing.
Outcome Poke(shell::Form1& form, headless::Machine& machine, std::string_view path, std::string_view text);
// Throws a Refusal that says why, unless the outcome is Done.
void RequireDone(Outcome outcome);
}
