// hud/Hud.h: the game font, trophy, arrow, glass, particle sprites and menu pictures.
#pragma once
#include <string>

namespace Assets
{
// Writes data/fonts, data/images (but the sky), data/sprites, data/textures and the models of the display.
// Throws std::runtime_error when a file cannot be written.
void BuildHud(const std::string& root);
}
