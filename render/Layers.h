// render/Layers.h: laying what was drawn ahead over the frame.
#pragma once
#include "render/Screen.h"

namespace render
{
// Moves what the layer shows in those rows, pixels and depths, to the frame; the layer's rows are empty then. Straight
// from the definition, the judge of the screen's LayOver.
void LayOverPlain(Screen& screen, Layer& layer, const Band& rows);
}
