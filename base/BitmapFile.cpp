// SPDX-License-Identifier: Zlib
#include "base/BitmapFile.h"

#include "base/Pixels.h"

#include <algorithm>

namespace base
{
namespace
{
constexpr std::uint32_t HeaderBytes = 54;

void Append(std::string& file, std::uint32_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        file += static_cast<char>((value >> (8 * i)) & 0xFFu);
}
}

std::string BitmapFile(std::int32_t width, std::int32_t height, std::span<const std::uint8_t> bits)
{
    const std::size_t size = static_cast<std::size_t>(PaddedRow(width)) * static_cast<std::size_t>(height);
    std::string file;
    file.reserve(HeaderBytes + size);
    file += "BM";
    Append(file, static_cast<std::uint32_t>(HeaderBytes + size), 4);
    Append(file, 0, 4);
    Append(file, HeaderBytes, 4);
    Append(file, 40, 4); // the information header
    Append(file, static_cast<std::uint32_t>(width), 4);
    Append(file, static_cast<std::uint32_t>(height), 4);
    Append(file, 1, 2);  // planes
    Append(file, 24, 2); // bits a pixel
    Append(file, 0, 4);  // not compressed
    Append(file, static_cast<std::uint32_t>(size), 4);
    for (int i = 0; i < 4; ++i)
        Append(file, 0, 4); // resolution and palette
    const std::size_t given = std::min(size, bits.size());
    file.append(reinterpret_cast<const char*>(bits.data()), given);
    file.resize(HeaderBytes + size, '\0');
    return file;
}
}
