// SPDX-License-Identifier: Zlib
// assets/track/Gate.h: the measures of the town gate that its shadow needs as well.
#pragma once
#include "assets/common/Vectors.h"

#include <vector>

namespace assets::track
{
inline constexpr double GateDeep = 1.5; // half its depth

// The gate as seen from the front, opening and all: x across the road from its middle, y up. From foot to foot.
std::vector<Point> GateOutline();
}
