// SPDX-License-Identifier: Zlib
// render/GroundPlain.h: the ground and sky pass straight from its definition, pixel by pixel. The fast one of
// render/Ground.h must give the same bytes, and leaves to it the columns whose steps end between two texels.
#pragma once
#include "render/Bands.h"
#include "render/GroundView.h"

#include <cstdint>

namespace render
{
// Every pixel and depth cell of the band, with the view's filter.
void GroundPlain(const GroundView& view, const Band& band);
// One pixel of a row that looks at the ground: a texel's, filtered, or the sky's where there is none.
void GroundPixelPlain(const GroundView& view, std::int32_t x, std::int32_t y, std::uint8_t* pixel);
}
