// SPDX-License-Identifier: Zlib
// render/Layers.h: laying what was drawn ahead over the frame.
#pragma once
#include "render/Screen.h"

namespace render
{
// Copies the pixels of those rows that have a depth in the layer to a frame of its size. Straight from the definition,
// the judge of the screen's LayOver.
void LayOverPlain(PicArray2D& frame, const Layer& layer, const Band& rows);
}
