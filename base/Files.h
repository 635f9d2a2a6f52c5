// SPDX-License-Identifier: Zlib
// base/Files.h: the run-time tree. Paths are written the game's way ("data\models\cup.3dm", UTF-8) and stand under one
// folder; "\" and "/" both separate; where the exact letter case is missing a name that differs only in case is taken.
#pragma once
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace base
{
// A file that is read from its beginning, piece by piece.
class OpenFile
{
public:
    // As it was when it was opened, in bytes.
    std::uint64_t Size() const { return Bytes; }
    // The next bytes, as many as there is room for. RuntimeError 75 where they cannot be had.
    void Read(std::span<char> room);

private:
    friend class Files;
    explicit OpenFile(const std::filesystem::path& name);

    std::uint64_t Bytes = 0;
    std::ifstream In;
};

class Files
{
public:
    Files() = default;
    explicit Files(std::filesystem::path root) : Root(std::move(root)) {}

    // Where the path leads on this system; an absolute path stays as it is. The file need not exist.
    std::filesystem::path Resolve(std::string_view path) const;
    bool Exists(std::string_view path) const; // a regular file
    // RuntimeError 53 (no file), 76 (no folder), 75 (not a readable regular file), 7 (above 512 MB).
    OpenFile Open(std::string_view path) const;
    // The whole file; errors as above.
    std::string Read(std::string_view path) const;
    // The regular files of a folder, names alone, in no order; none where there is no folder. RuntimeError 75 where the
    // folder cannot be read.
    std::vector<std::string> Names(std::string_view folder) const;

private:
    std::filesystem::path Root;
};

// The path up to and including its last "\"; without one, the path itself.
std::string_view FolderOf(std::string_view path);
}
