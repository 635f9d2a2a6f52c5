// SPDX-License-Identifier: Zlib
// assets/hud/Arrow.h: the arrow that points at the next checkpoint.
#pragma once
#include <string>

namespace assets::hud
{
// gps.3dm: an arrow along +z, nose up, so that a camera behind and below sees its golden upper side where it points
// ahead and its red underside where it points back.
void WriteArrow(const std::string& folder);
}
