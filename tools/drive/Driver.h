// SPDX-License-Identifier: Zlib
// tools/drive/Driver.h: the scripted game: one line in, one line of JSON out. The language is told in docs/drive.md.
#pragma once
#include "tools/drive/Session.h"

#include <string>
#include <string_view>

namespace drive
{
class Driver
{
public:
    explicit Driver(base::Files files, FileWriter writer = WriteToDisk, Limits limits = {})
        : TheSession(std::move(files), std::move(writer), limits)
    {
    }

    // The answer to a line of a script; empty for a line that asks nothing (empty, or a comment).
    std::string Answer(std::string_view line);
    // The answer to a line that could not be taken in.
    std::string Refuse(std::string_view why);
    // Whether any line was answered with an error.
    bool HadErrors() const { return Errors; }
    Session& State() { return TheSession; }

private:
    std::string Finish(Object& answer, std::string_view error);

    Session TheSession;
    bool Errors = false;
};

inline constexpr std::size_t LongestLine = 1u << 20; // bytes
}
