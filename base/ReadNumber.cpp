// SPDX-License-Identifier: Zlib
#include "base/ReadNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <limits>
#include <string>

namespace base
{
namespace
{
bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Whether a well-formed number that no double holds is too large; otherwise it is too small. The conversion tells both
// alike, the power of ten of its first significant digit does not.
bool IsTooLarge(std::string_view number)
{
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view digits = number.substr(0, mark);
    const std::size_t point = std::min(digits.find('.'), digits.size());
    const std::size_t first = digits.find_first_of("123456789");
    if (first == std::string_view::npos)
        return false;

    const bool negative = number.size() > mark + 1 && number[mark + 1] == '-';
    std::int64_t exponent = 0;
    for (const char c : number.substr(mark))
        if (IsDigit(c) && exponent < (std::int64_t{1} << 40))
            exponent = exponent * 10 + (c - '0');
    return static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first) + (negative ? -exponent : exponent) > 0;
}

// Digits with one separator or none, as nearly every number is written: nothing for all others. The digits as a whole
// number and the power of ten below it are both exact in a double, so that their quotient is the nearest one.
std::optional<double> ReadShort(std::string_view text, std::string_view separators)
{
    constexpr std::size_t Most = 15; // digits: below 2^53
    constexpr std::array<double, Most + 1> Powers = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                     1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    if (text.size() > Most + 1)
        return std::nullopt;
    std::int64_t whole = 0;
    std::size_t digits = 0;
    std::optional<std::size_t> point; // how many digits stand before it
    for (const char c : text)
    {
        if (IsDigit(c))
        {
            whole = whole * 10 + (c - '0');
            ++digits;
        }
        else if (!point && separators.find(c) != std::string_view::npos)
            point = digits;
        else
            return std::nullopt;
    }
    if (digits < 1 || digits > Most)
        return std::nullopt;
    return static_cast<double>(whole) / Powers[point ? digits - *point : 0];
}
}

std::optional<double> ReadNumber(std::string_view text, std::string_view separators)
{
    // Checked here: the conversion knows no "+" and one separator, and words such as "inf" are numbers to it.
    const bool negative = !text.empty() && text.front() == '-';
    if (negative || (!text.empty() && text.front() == '+'))
        text.remove_prefix(1);
    if (text.empty() || !(IsDigit(text.front()) || separators.find(text.front()) != std::string_view::npos))
        return std::nullopt;
    if (const std::optional<double> value = ReadShort(text, separators))
        return negative ? -*value : *value;
    std::string digits(text);
    for (char& c : digits)
        if (c == '.' || separators.find(c) != std::string_view::npos)
            c = separators.find(c) != std::string_view::npos ? '.' : ' ';

    double value = 0;
    const char* const end = digits.data() + digits.size();
    const std::from_chars_result result = std::from_chars(digits.data(), end, value);
    if (result.ec == std::errc::invalid_argument || result.ptr != end)
        return std::nullopt;
    if (result.ec == std::errc::result_out_of_range)
        value = IsTooLarge(digits) ? std::numeric_limits<double>::infinity() : 0;
    return negative ? -value : value;
}
}
