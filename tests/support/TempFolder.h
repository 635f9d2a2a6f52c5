// SPDX-License-Identifier: Zlib
// tests/support/TempFolder.h: a folder of a test's own, gone with it, and bitmap files to put in it.
#pragma once
#include "base/Files.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace support
{
struct TempFolder
{
    std::filesystem::path Path;

    TempFolder()
    {
        const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
        Path = std::filesystem::path(testing::TempDir()) /
               (std::string("velkar-") + test->test_suite_name() + "-" + test->name() + "-" +
                std::to_string(std::random_device{}())); // other builds may run the same test
        std::filesystem::remove_all(Path);
        std::filesystem::create_directories(Path);
    }
    ~TempFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(Path, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    base::Files Files() const { return base::Files(Path); }
    void Write(const std::string& name, const std::string& bytes) const
    {
        std::filesystem::create_directories((Path / name).parent_path());
        std::ofstream(Path / name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
};

// Whether two names in that folder can differ by capitals alone.
inline bool KnowsCapitals(const std::filesystem::path& folder)
{
    std::ofstream(folder / "capitals").put('x');
    const bool knows = !std::filesystem::exists(folder / "CAPITALS");
    std::filesystem::remove(folder / "capitals");
    return knows;
}

inline void AppendLittle(std::string& bytes, std::uint32_t value, int count)
{
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(value >> 8 * i & 0xFF);
}

// The 54 header bytes of an uncompressed 24-bit bitmap that claims this size.
inline std::string BitmapHeader(std::int32_t width, std::int32_t height)
{
    std::string bytes = "BM";
    AppendLittle(bytes, 0, 4); // file size, not read
    AppendLittle(bytes, 0, 4);
    AppendLittle(bytes, 54, 4); // data offset, not read
    AppendLittle(bytes, 40, 4);
    AppendLittle(bytes, static_cast<std::uint32_t>(width), 4);
    AppendLittle(bytes, static_cast<std::uint32_t>(height), 4);
    AppendLittle(bytes, 1, 2);
    AppendLittle(bytes, 24, 2);
    bytes.resize(54, '\0');
    return bytes;
}

// The bytes of a 24-bit bitmap of one colour.
inline std::string Bitmap(std::int32_t width, std::int32_t height, std::uint8_t blue, std::uint8_t green,
                          std::uint8_t red)
{
    std::string row;
    for (std::int32_t x = 0; x < width; ++x)
        row.append({static_cast<char>(blue), static_cast<char>(green), static_cast<char>(red)});
    row.resize((row.size() + 3) / 4 * 4, '\0');
    std::string bytes = BitmapHeader(width, height);
    for (std::int32_t y = 0; y < height; ++y)
        bytes += row;
    return bytes;
}
}
