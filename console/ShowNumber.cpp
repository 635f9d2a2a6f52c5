// SPDX-License-Identifier: Zlib
#include "console/ShowNumber.h"

#include "base/Numbers.h"

#include <charconv>
#include <cmath>

namespace console
{
std::string ShowNumber(float value)
{
    if (std::isnan(value))
        return "Non un numero";
    if (std::isinf(value))
        return value < 0 ? "-Infinito" : "Infinito";
    if (value == 0)
        return "0"; // also where it is negative
    constexpr int significant = 7;
    char digits[32];
    const std::to_chars_result end =
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::general, significant);
    std::string text(digits, end.ptr);
    for (char& c : text)
        c = c == '.' ? ',' : (c == 'e' ? 'E' : c);
    return text;
}

std::string ShowNumber(std::int32_t value)
{
    return std::to_string(value);
}

std::string ShowCoordinate(float value)
{
    // Beyond, a single has no third decimal.
    constexpr float exact = 1 << 21;
    if (!(std::fabs(value) < exact))
        return ShowNumber(value);
    return ShowNumber(static_cast<float>(base::RoundEven(value * 1000.0) / 1000.0));
}
}
