// SPDX-License-Identifier: Zlib
// tools/race/Format.h: numbers as the reports write them, the same on every system.
#pragma once
#include <charconv>
#include <string>

namespace race
{
inline std::string Fixed(double value, int digits)
{
    char text[64];
    const std::to_chars_result end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, digits);
    return end.ec == std::errc() ? std::string(text, end.ptr) : "-";
}
}
