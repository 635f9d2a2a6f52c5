// SPDX-License-Identifier: Zlib
// assets/common/Output.h: how every generated file is written.
#pragma once
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace assets
{
// Both make the folders of `path` that are missing and replace the file. They throw std::runtime_error with the path
// when it cannot be written.
void WriteBytes(const std::string& path, std::span<const std::uint8_t> bytes);
void WriteText(const std::string& path, std::string_view text);

// Appends the low `bytes` bytes (1 to 4) of the value, the lowest first.
void AppendLittle(std::vector<std::uint8_t>& out, std::uint32_t value, int bytes);

// At most four decimals, without trailing zeros: a tenth of a millimetre, and the same text everywhere.
std::string NumberText(double value);
}
