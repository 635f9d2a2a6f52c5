// SPDX-License-Identifier: Zlib
// base/BitmapFile.h: an uncompressed 24-bit bitmap file in memory.
#pragma once
#include <cstdint>
#include <span>
#include <string>

namespace base
{
// bits: rows from the bottom upward of blue, green, red, each padded to 4 bytes. Width and height at least 1; bits that
// fall short of them are continued in black.
std::string BitmapFile(std::int32_t width, std::int32_t height, std::span<const std::uint8_t> bits);
}
