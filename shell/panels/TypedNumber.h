// SPDX-License-Identifier: Zlib
// shell/panels/TypedNumber.h: numbers as a person types them into a box.
#pragma once
#include "base/ReadNumber.h"

#include <optional>
#include <string_view>

namespace panels
{
// Nothing where the text is no number (see base/ReadNumber.h; a point or a comma is the decimal separator).
inline std::optional<double> ReadTyped(std::string_view text)
{
    return base::ReadNumber(text, base::TypedSeparators);
}

// Both bounds included; false for what is no number.
inline bool IsWithin(double value, double least, double most)
{
    return value >= least && value <= most;
}
}
