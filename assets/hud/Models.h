// assets/hud/Models.h: the trophy and the navigation arrow.
#pragma once
#include <string>

namespace assets::hud
{
// cup.3dm, hidden at first, with cup.bmp. The game colours meshes 6 (cup) and 7 (handles) gold, silver or bronze.
void WriteCup(const std::string& folder);

// gps.3dm: an arrow along +z, nose up, so that a camera behind and below sees its golden upper side where it points
// ahead and its red underside where it points back.
void WriteArrow(const std::string& folder);
}
