// SPDX-License-Identifier: Zlib
// tools/preview/MapPicture.h: a map from above, x to the right and z upward, with all that stands in it marked.
#pragma once
#include "shell/Game.h"
#include "tools/preview/Canvas.h"
#include "tools/preview/DrivenLines.h"

#include <span>

namespace preview
{
// The ground at `scale` pixels a unit, and on it objects with their collision spheres, zones, checkpoints, the lines
// (where there are any) and the cars at the start; a legend below, so that z = 0 is the picture's last row above it.
// Failure where there is no ground, or its picture would be too large.
Canvas DrawMap(const shell::Game& game, double scale, std::span<const DrivenLine> lines);
}
