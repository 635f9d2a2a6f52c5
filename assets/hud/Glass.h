// SPDX-License-Identifier: Zlib
// assets/hud/Glass.h: the windscreen of all cars, whole and broken, as textures.
#pragma once
#include <string>

namespace assets::hud
{
// Writes glass.bmp and glass_b.bmp, 128 x 64 each, mostly see-through: the driver looks through them.
void WriteGlass(const std::string& folder);
}
