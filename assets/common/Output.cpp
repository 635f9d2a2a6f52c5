// SPDX-License-Identifier: Zlib
#include "assets/common/Output.h"

#include <array>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>

namespace assets
{
void WriteText(const std::string& path, std::string_view text)
{
    const std::filesystem::path file(path);
    if (file.has_parent_path())
        std::filesystem::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary);
    stream.write(text.data(), static_cast<std::streamsize>(text.size()));
    stream.close();
    if (!stream)
        throw std::runtime_error("cannot write " + path);
}

void WriteBytes(const std::string& path, std::span<const std::uint8_t> bytes)
{
    WriteText(path, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

void AppendLittle(std::vector<std::uint8_t>& out, std::uint32_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        out.push_back(static_cast<std::uint8_t>((value >> (8 * i)) & 255u));
}

std::string NumberText(double value)
{
    std::array<char, 64> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 4);
    if (result.ec != std::errc())
        throw std::runtime_error("a coordinate does not fit its text");
    std::string out(text.data(), result.ptr);
    while (out.back() == '0')
        out.pop_back();
    if (out.back() == '.')
        out.pop_back();
    return out == "-0" ? "0" : out;
}
}
