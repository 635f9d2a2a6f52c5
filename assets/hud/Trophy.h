// SPDX-License-Identifier: Zlib
// assets/hud/Trophy.h: the cup that turns before the camera after the race.
#pragma once
#include <string>

namespace assets::hud
{
// cup.3dm, hidden at first, with cup.bmp. The game colours meshes 6 (cup) and 7 (handles) gold, silver or bronze.
void WriteCup(const std::string& folder);
}
