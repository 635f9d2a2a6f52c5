// SPDX-License-Identifier: Zlib
// tools/drive/Words.h: a line of a script, taken apart word by word, and the numbers in it.
#pragma once
#include <charconv>
#include <concepts>
#include <optional>
#include <string_view>

namespace drive
{
// Blanks are spaces and tabs.
class Words
{
public:
    explicit Words(std::string_view line) : Line(line) {}

    // The next word; empty at the end of the line.
    std::string_view Next();
    // What follows the blank behind the last word, as it stands.
    std::string_view Rest();
    bool AtEnd() const;

private:
    std::string_view Line;
};

// A word that is a whole number of the type and nothing else.
template <std::integral Whole> std::optional<Whole> ParseWhole(std::string_view word)
{
    Whole value{};
    const std::from_chars_result end = std::from_chars(word.data(), word.data() + word.size(), value);
    if (end.ec != std::errc() || end.ptr != word.data() + word.size())
        return std::nullopt;
    return value;
}

// A word that is a decimal number within single precision, or NaN, Infinity, -Infinity.
std::optional<float> ParseFloat(std::string_view word);
std::optional<double> ParseDouble(std::string_view word); // finite
}
