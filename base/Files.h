// base/Files.h: the run-time tree. Paths are written the game's way ("data\models\cup.3dm", UTF-8) and stand under one
// folder; "\" and "/" both separate; where the exact letter case is missing a name that differs only in case is taken.
#pragma once
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace base
{
class Files
{
public:
    Files() = default;
    explicit Files(std::filesystem::path root) : Root(std::move(root)) {}

    // Where the path leads on this system; an absolute path stays as it is. The file need not exist.
    std::filesystem::path Resolve(std::string_view path) const;
    bool Exists(std::string_view path) const; // a regular file
    // The whole file. RuntimeError 53 (no file), 76 (no folder), 75 (not a readable regular file), 7 (above 512 MB).
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
