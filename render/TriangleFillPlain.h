// SPDX-License-Identifier: Zlib
// render/TriangleFillPlain.h: the fills of render/TriangleFill.h straight from their definition, pixel by pixel. The
// fast ones must give the same bytes and depths.
#pragma once
#include "render/TriangleFill.h"

namespace render
{
void FillTriFlatPlain(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                      base::Rgb colour);
void FillTriTexPlain(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                     const base::ConstSurface& texture);
}
