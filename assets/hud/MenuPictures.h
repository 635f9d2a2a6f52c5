// SPDX-License-Identifier: Zlib
// assets/hud/MenuPictures.h: splash, menu background and the neon title.
#pragma once
#include <string>

namespace assets::hud
{
// Writes menu.bmp, splash.bmp and logo.bmp. The title's glow is dots of colour on see-through black: shown smaller than
// it is, or smoothed, it blends with what lies behind.
void WriteMenuPictures(const std::string& folder);
}
