// render/Ground.h: the ground and sky pass, which fills every pixel and empties every depth cell of its columns.
// Several threads draw disjoint bands of one view at once. The same pixels from their definition are in
// render/GroundPlain.h.
#pragma once
#include "render/Bands.h"
#include "render/GroundView.h"

namespace render
{
class StopCheck;

// Draws the band with the view's filter, row by row from the bottom; a filter that there is not draws as Nearest. Where
// the check says stop, the rest of the band stays as it is.
void DrawGroundBand(const GroundView& view, const Band& band, StopCheck& check);

// The three filters, each alone.
void GroundNearest(const GroundView& view, const Band& band, StopCheck& check);
void GroundLinear(const GroundView& view, const Band& band, StopCheck& check);
void GroundAniso(const GroundView& view, const Band& band, StopCheck& check); // also writes the taps of its columns
}
