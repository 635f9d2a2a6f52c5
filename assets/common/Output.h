// common/Output.h: where every generated file is written.
#pragma once
#include <cstdint>
#include <span>
#include <string>

namespace assets
{
// Makes the folders of `path` that are missing. Throws std::runtime_error when the file cannot be written.
void WriteBytes(const std::string& path, std::span<const std::uint8_t> bytes);
}
