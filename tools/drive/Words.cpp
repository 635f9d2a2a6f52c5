// SPDX-License-Identifier: Zlib
#include "tools/drive/Words.h"

#include <cmath>
#include <limits>

namespace drive
{
namespace
{
constexpr std::string_view Blanks = " \t";

template <class Real> bool ParseWholeWord(std::string_view word, Real& value, std::errc& error)
{
    const std::from_chars_result end = std::from_chars(word.data(), word.data() + word.size(), value);
    error = end.ec;
    return end.ec != std::errc::invalid_argument && end.ptr == word.data() + word.size();
}

bool StartsLikeNumber(std::string_view word)
{
    // The library also knows "inf" and "nan" in every spelling; the language knows its own two words only.
    const std::size_t digit = word.starts_with('-') ? 1 : 0;
    return word.size() > digit && (word[digit] == '.' || (word[digit] >= '0' && word[digit] <= '9'));
}
}

std::string_view Words::Next()
{
    const std::size_t begin = Line.find_first_not_of(Blanks);
    if (begin == std::string_view::npos)
    {
        Line = {};
        return {};
    }
    Line.remove_prefix(begin);
    const std::string_view word = Line.substr(0, Line.find_first_of(Blanks));
    Line.remove_prefix(word.size());
    return word;
}

std::string_view Words::Rest()
{
    return Line.empty() ? Line : Line.substr(1);
}

bool Words::AtEnd() const
{
    return Line.find_first_not_of(Blanks) == std::string_view::npos;
}

std::optional<double> ParseDouble(std::string_view word)
{
    double value = 0;
    std::errc error{};
    if (!StartsLikeNumber(word) || !ParseWholeWord(word, value, error) || error != std::errc())
        return std::nullopt;
    return value;
}

std::optional<float> ParseFloat(std::string_view word)
{
    if (word == "NaN")
        return std::numeric_limits<float>::quiet_NaN();
    if (word == "Infinity" || word == "-Infinity")
        return word[0] == '-' ? -std::numeric_limits<float>::infinity() : std::numeric_limits<float>::infinity();
    float value = 0;
    std::errc error{};
    if (!StartsLikeNumber(word) || !ParseWholeWord(word, value, error))
        return std::nullopt;
    if (error == std::errc())
        return value;
    // Out of range: too small is 0, too large is no value of the type.
    const std::optional<double> wide = ParseDouble(word);
    if (wide && std::fabs(*wide) < 1.0)
        return std::signbit(*wide) ? -0.0f : 0.0f;
    return std::nullopt;
}
}
