// SPDX-License-Identifier: Zlib
#include "shell/forms/Style.h"

#include "base/Numbers.h"

namespace forms
{
void PaintRing(Canvas& canvas, const Rect& place, double radius)
{
    const std::int32_t gap = std::max(2, base::RoundEven(Unit(canvas, 2.5)));
    const Rect ring = {place.X - gap, place.Y - gap, place.W + 2 * gap, place.H + 2 * gap};
    OutlineRounded(canvas, ring, radius + gap, std::max(1.0, Unit(canvas, 1.5)), Accent, 255);
}
}
