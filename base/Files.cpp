// SPDX-License-Identifier: Zlib
#include "base/Files.h"

#include "base/RuntimeError.h"
#include "base/Text.h"

#include <algorithm>

namespace base
{
namespace
{
namespace fs = std::filesystem;

constexpr std::uint64_t LargestFile = 512u << 20;

fs::path FromUtf8(std::string_view text)
{
    return fs::path(std::u8string(text.begin(), text.end()));
}

std::string ToUtf8(const fs::path& path)
{
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

// The entry of folder that differs from name only in case; the first by name where there are several.
fs::path OtherCase(const fs::path& folder, std::string_view name)
{
    const std::string wanted = LowerAscii(name);
    fs::path found;
    std::error_code error;
    for (fs::directory_iterator it(folder.empty() ? fs::path(".") : folder, error), end; !error && it != end;
         it.increment(error))
    {
        const fs::path entry = it->path().filename();
        if (LowerAscii(ToUtf8(entry)) == wanted && (found.empty() || entry < found))
            found = entry;
    }
    return found;
}
}

fs::path Files::Resolve(std::string_view path) const
{
    std::string text(path);
    std::replace(text.begin(), text.end(), '\\', '/');
    // A NUL byte would cut the name short below.
    std::replace(text.begin(), text.end(), '\0', '?');
    fs::path wanted = FromUtf8(text);
    fs::path result = wanted.is_absolute() ? fs::path() : Root;
    std::error_code error;
    if (fs::path whole = result / wanted; fs::exists(whole, error))
        return whole;
    for (const fs::path& step : wanted)
    {
        fs::path next = result / step;
        if (!fs::exists(next, error))
        {
            const fs::path other = OtherCase(result, ToUtf8(step));
            if (!other.empty())
                next = result / other;
        }
        result = next;
    }
    return result;
}

bool Files::Exists(std::string_view path) const
{
    std::error_code error;
    return fs::is_regular_file(Resolve(path), error);
}

OpenFile::OpenFile(const fs::path& name)
{
    std::error_code error;
    const fs::file_status status = fs::status(name, error);
    if (!fs::exists(status))
        throw RuntimeError(name.has_parent_path() && !fs::is_directory(name.parent_path(), error) ? ErrorPathNotFound
                                                                                                  : ErrorFileNotFound);
    if (!fs::is_regular_file(status))
        throw RuntimeError(ErrorAccess);
    Bytes = fs::file_size(name, error);
    if (error)
        throw RuntimeError(ErrorAccess);
    if (Bytes > LargestFile)
        throw RuntimeError(ErrorMemory);
    In.open(name, std::ios::binary);
    if (!In)
        throw RuntimeError(ErrorAccess);
}

void OpenFile::Read(std::span<char> room)
{
    if (!room.empty() && !In.read(room.data(), static_cast<std::streamsize>(room.size())))
        throw RuntimeError(ErrorAccess);
}

OpenFile Files::Open(std::string_view path) const
{
    return OpenFile(Resolve(path));
}

std::string Files::Read(std::string_view path) const
{
    OpenFile file = Open(path);
    std::string bytes(static_cast<std::size_t>(file.Size()), '\0');
    file.Read(bytes);
    return bytes;
}

std::vector<std::string> Files::Names(std::string_view folder) const
{
    const fs::path path = Resolve(folder);
    std::vector<std::string> names;
    std::error_code error;
    if (!fs::is_directory(path, error))
        return names;
    fs::directory_iterator it(path, error);
    for (const fs::directory_iterator end; !error && it != end; it.increment(error))
    {
        std::error_code unreadable; // of one entry: it is no regular file then
        if (it->is_regular_file(unreadable))
            names.push_back(ToUtf8(it->path().filename()));
    }
    if (error)
        throw RuntimeError(ErrorAccess);
    return names;
}

std::string_view FolderOf(std::string_view path)
{
    const std::size_t last = path.rfind('\\');
    return last == std::string_view::npos ? path : path.substr(0, last + 1);
}
}
