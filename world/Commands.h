// SPDX-License-Identifier: Zlib
// world/Commands.h: model files and map scripts are streams of commands: a keyword and its fields. Each reader has a
// table of what it knows.
#pragma once
#include "base/RuntimeError.h"

#include <string>

namespace world
{
// The entry of the table with that Keyword, exact; RuntimeError 514 for one that is not in it.
template <class Table> const auto& FindCommand(const Table& commands, const std::string& keyword)
{
    for (const auto& command : commands)
        if (command.Keyword == keyword)
            return command;
    // Deliberate: the double negative.
    throw base::RuntimeError(base::ErrorFormat, "'" + keyword + "' non è un'istruzione non valida");
}
}
