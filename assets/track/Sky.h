// SPDX-License-Identifier: Zlib
// assets/track/Sky.h: the panorama behind the world.
#pragma once
#include "assets/common/Colour.h"

#include <string>

namespace assets::track
{
// What the panorama shows everywhere below its horizon, and what the far country fades into.
inline constexpr Rgb Haze = Hex(0xD5D6CE);

// 820 pixels wide, one full turn; rows span the whole screen, the horizon at 59 per cent. Nothing in it is unique or
// belongs to a direction: on wide screens it shows twice, and its columns turn slower than the world.
void WriteSky(const std::string& path);
}
