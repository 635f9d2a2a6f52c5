// tests/support/TempFolder.h: a folder of its own for the test that runs, removed with it.
#pragma once
#include "base/Files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace support
{
class TempFolder
{
public:
    TempFolder()
    {
        const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
        Root = std::filesystem::path(testing::TempDir()) /
               (std::string("velkar-") + test.test_suite_name() + "-" + test.name());
        std::filesystem::remove_all(Root);
        std::filesystem::create_directories(Root);
    }
    ~TempFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(Root, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    // Writes a file, making its folders. The path is written with "/".
    void Write(const std::string& path, std::string_view bytes) const
    {
        std::filesystem::create_directories((Root / path).parent_path());
        std::ofstream(Root / path, std::ios::binary) << bytes;
    }
    base::Files Files() const { return base::Files(Root); }

private:
    std::filesystem::path Root;
};

// The bytes of a 24-bit bitmap of one colour.
inline std::string Bitmap(std::int32_t width, std::int32_t height, std::uint8_t blue, std::uint8_t green,
                          std::uint8_t red)
{
    const auto number = [](std::int32_t value)
    {
        std::string bytes;
        for (int shift = 0; shift < 32; shift += 8)
            bytes += static_cast<char>((value >> shift) & 255);
        return bytes;
    };
    const std::int32_t rowBytes = (width * 3 + 3) & ~3;
    std::string row;
    for (std::int32_t x = 0; x < width; ++x)
        row.append({static_cast<char>(blue), static_cast<char>(green), static_cast<char>(red)});
    row.resize(static_cast<std::size_t>(rowBytes), '\0');
    std::string bytes = "BM" + number(54 + rowBytes * height) + number(0) + number(54);
    bytes += number(40) + number(width) + number(height) + std::string("\1\0\30\0", 4) + number(0);
    bytes += number(rowBytes * height) + number(0) + number(0) + number(0) + number(0);
    for (std::int32_t y = 0; y < height; ++y)
        bytes += row;
    return bytes;
}
}
