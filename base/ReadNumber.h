// SPDX-License-Identifier: Zlib
// base/ReadNumber.h: a written number as a double: an optional sign, digits with at most one decimal separator, an
// optional exponent ("3", "+1.5", ".5", "1.", "2E-3"). No blanks, no words such as "inf".
#pragma once
#include <optional>
#include <string_view>

namespace base
{
inline constexpr std::string_view DataSeparator = ".";    // of the data files
inline constexpr std::string_view TypedSeparators = ".,"; // of what a person types

// separators: each character counts as the decimal separator. Nothing where the text is no number; infinity where it
// is too large for a double, so that every checked conversion of it is an overflow.
std::optional<double> ReadNumber(std::string_view text, std::string_view separators);
}
