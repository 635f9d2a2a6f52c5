// SPDX-License-Identifier: Zlib
// assets/track/WallEnds.h: what closes a stone wall where its pieces end.
#pragma once
#include "assets/track/Models.h"
#include "assets/track/Plan.h"

namespace assets::track
{
// Puts a pillar at every end of a wall piece that has no neighbour, and where two pieces meet with a gap or at an
// angle. To be called once all walls stand.
void PutWallEnds(Plan& plan);

// The model "wallend": a pillar a little thicker and higher than the wall.
void WriteWallEnd(const ModelFolder& folder);
}
