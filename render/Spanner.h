// SPDX-License-Identifier: Zlib
// render/Spanner.h: the picture of the repair indicator, drawn at start-up instead of loaded: an open-ended spanner
// from lower left to upper right on a dark, rounded tile.
#pragma once
#include "render/PicArray.h"

namespace render
{
// Paints every pixel of the picture; its measures are those of 32 x 32 pixels.
void PaintSpanner(Picture& picture);
}
