// SPDX-License-Identifier: Zlib
// assets/hud/Hud.h: the game font, trophy, arrow, glass, particle sprites, menu pictures and the program's icon.
#pragma once
#include <string>

namespace assets::hud
{
// Writes data/fonts, data/images (but the sky), data/sprites, data/textures, the models of the display and the icon.
// Throws std::runtime_error when a file cannot be written.
void BuildHud(const std::string& root);
}
