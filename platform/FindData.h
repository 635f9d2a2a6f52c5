// SPDX-License-Identifier: Zlib
// platform/FindData.h: where the run-time tree is (the folder that holds data/ and soundtracks/).
#pragma once
#include <filesystem>
#include <span>

namespace platform
{
// The running program's own file: as the system knows it, else from the first argument. In win32/ and posix/.
std::filesystem::path ExecutablePath(const char* firstArgument);

// The first that holds the start-up map of: the program's folder, its parent folders from the nearest outward, the
// folder where the game is installed. The program's folder where none does: the game then says what is missing.
std::filesystem::path FindData(const std::filesystem::path& executable);

// The same with the folders to try after the parents given.
std::filesystem::path FindDataAmong(const std::filesystem::path& executable,
                                    std::span<const std::filesystem::path> installed);
}
