// SPDX-License-Identifier: Zlib
// tests/fuzz/Folder.h: where a fuzzer puts its input, for the readers read files.
#pragma once
#include "base/Files.h"
#include "base/Trapped.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace fuzz
{
// A folder for the whole run, gone at its end.
class Folder
{
public:
    Folder()
    {
        Path = std::filesystem::temp_directory_path() / ("velkar-fuzz-" + std::to_string(std::random_device{}()));
        std::filesystem::create_directories(Path);
    }
    ~Folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(Path, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    void Write(const std::string& name, std::string_view bytes) const
    {
        std::ofstream(Path / name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    base::Files Files() const { return base::Files(Path); }

private:
    std::filesystem::path Path;
};

inline std::string_view Text(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

// Message boxes are read and forgotten.
struct NoMessages final : base::MessageSink
{
    void ShowMessage(base::Icon, const std::string&, const std::string&) override {}
};

// A bitmap of one red texel.
inline std::string OneTexel()
{
    std::string bytes(58, '\0');
    bytes[0] = 'B';
    bytes[1] = 'M';
    bytes[18] = bytes[22] = bytes[26] = 1;
    bytes[28] = 24;
    bytes[56] = '\xFF';
    return bytes;
}
}

// One input. libFuzzer calls it, or the replay of a corpus.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
