// SPDX-License-Identifier: Zlib
// tools/preview/Failure.h: the two ways in which no picture comes about. Nothing has been written then.
#pragma once
#include <string>
#include <string_view>

namespace preview
{
// The command line asks for what there is not. Exit status 2.
struct Misuse
{
    std::string Why;
};

// What was asked for cannot be done: a file is missing or broken, a map has no lap. Exit status 1.
struct Failure
{
    std::string Why;
};

// A word of somebody else's, as complaints quote it.
inline std::string Quoted(std::string_view word)
{
    std::string text(1, '\'');
    text += word;
    text += '\'';
    return text;
}
}
