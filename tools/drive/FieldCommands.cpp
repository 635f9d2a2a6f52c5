// SPDX-License-Identifier: Zlib
// Reading and writing the state of the game by name, and the sum over it.
#include "tools/drive/Checksum.h"
#include "tools/drive/Paths.h"
#include "tools/drive/Session.h"

#include <array>
#include <cstdio>

namespace drive
{
namespace
{
void PeekPath(Session& session, Words& words, Object& answer)
{
    const std::string_view path = Word(words, "the path");
    RequireEnd(words);
    std::string value;
    RequireDone(Peek(*session.Form(), session.Machine, path, value));
    answer.Raw("value", value);
}

void PokePath(Session& session, Words& words, Object&)
{
    const std::string_view path = Word(words, "the path");
    RequireDone(Poke(*session.Form(), session.Machine, path, words.Rest()));
}

void Sum(Session& session, Words& words, Object& answer)
{
    RequireEnd(words);
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(Checksum(session.Form()->State())));
    AppendText(answer.Field("checksum"), digits);
}
}

std::span<const Command> FieldCommands()
{
    static constexpr std::array commands = {
        Command{"peek", true, PeekPath},
        Command{"poke", true, PokePath},
        Command{"checksum", true, Sum},
    };
    return commands;
}
}
