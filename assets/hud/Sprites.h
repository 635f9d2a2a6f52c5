// assets/hud/Sprites.h: the puffs that particles are made of.
#pragma once
#include <string>

namespace assets::hud
{
// Writes smoke.bmp, water.bmp, fireR.bmp and fireY.bmp, round with an edge that dissolves into single pixels.
void WriteSprites(const std::string& folder);
}
