// SPDX-License-Identifier: Zlib
// tools/preview/Legend.h: what the colours of a picture mean.
#pragma once
#include "tools/preview/Canvas.h"

#include <span>
#include <string>

namespace preview
{
struct LegendEntry
{
    base::Rgb Colour;
    std::string Text;
};

// The picture with its entries below it, in as many lines as its width asks for.
Canvas WithLegend(const Canvas& picture, std::span<const LegendEntry> entries);
}
