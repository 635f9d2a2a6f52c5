// SPDX-License-Identifier: Zlib
#include "tools/preview/Limits.h"

#include "tools/preview/Failure.h"

#include <string>

namespace preview
{
namespace
{
constexpr double LongestSide = 16384, MostPixels = 100e6;
}

void RequireSize(double width, double height)
{
    if (width <= LongestSide && height <= LongestSide && width * height <= MostPixels)
        return;
    const auto shown = [](double pixels) { return std::to_string(static_cast<long long>(pixels)); };
    throw Failure{"the picture would be too large: " + shown(width) + " x " + shown(height) + " pixels"};
}
}
