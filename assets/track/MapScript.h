// SPDX-License-Identifier: Zlib
// assets/track/MapScript.h: map.loader and the lists and player files beside it, in world units.
#pragma once
#include "assets/track/Plan.h"

#include <string>

namespace assets::track
{
// Writes into the map's folder. Throws std::runtime_error when a file cannot be written.
void WriteMap(const Plan& plan, const std::string& folder);
}
