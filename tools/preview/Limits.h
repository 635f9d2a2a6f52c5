// SPDX-License-Identifier: Zlib
// tools/preview/Limits.h: how large pictures may be, and how long one may take.
#pragma once
#include <cstdint>

namespace preview
{
// Milliseconds for the ground of a frame: none is cut short.
inline constexpr std::int32_t NoGroundLimit = 3'600'000;

// Failure where a picture of that many pixels is too large to be made.
void RequireSize(double width, double height);
}
