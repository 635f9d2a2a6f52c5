// SPDX-License-Identifier: Zlib
// assets/hud/Sprites.h: the puffs that particles are made of.
#pragma once
#include <string>

namespace assets::hud
{
// Writes smoke.bmp and water.bmp, round and thinning out in dots, and fireR.bmp and fireY.bmp, flames.
void WriteSprites(const std::string& folder);
}
