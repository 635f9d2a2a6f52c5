// SPDX-License-Identifier: Zlib
// tools/preview/Preview.h: the program, apart from the process that it is: a command line in, a picture in a file.
#pragma once
#include <filesystem>
#include <iosfwd>
#include <span>
#include <string_view>

namespace preview
{
// words: the command line without the program's name. executable: beside which the game is looked for where the words
// name no folder. Complaints and help go to the streams. The exit status: 0, 1 where a picture cannot be made, 2 where
// the words are wrong.
int Run(std::span<const std::string_view> words, const std::filesystem::path& executable, std::ostream& out,
        std::ostream& complaints);
}
