// SPDX-License-Identifier: Zlib
// render/TriangleFill.h: filling a projected triangle: rows between its vertices, depth-tested pixels. Vertices may lie
// anywhere in 32 bits; only rows and columns of the screen are visited. Values are interpolated in double precision,
// along the edges and then along the row, without perspective.
#pragma once
#include "base/Pixels.h"
#include "render/Canvas.h"
#include "render/wide/Kernels.h"

#include <cstdint>

namespace render
{
struct ScreenVertex
{
    std::int32_t X = 0, Y = 0; // pixels; base::OutOfRange where the projection is no place
    float Z = 0;               // depth, world units
    double U = 0, V = 0;       // texels, fractions included; not used by flat triangles
};

// A pixel is written where its depth is strictly less than the depth cell, which then takes it. Vertices in any order.
// Nothing is drawn where all lie on the same outer side of the screen, or in one row.
inline void FillTriFlat(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                        base::Rgb colour)
{
    canvas.Screen.Kernels->FillTriFlat(canvas, a, b, c, colour);
}
// Texels of three zero bytes, and texels outside the texture, leave pixel and depth untouched.
inline void FillTriTex(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                       const base::ConstSurface& texture)
{
    canvas.Screen.Kernels->FillTriTex(canvas, a, b, c, texture);
}
// False only where the triangle writes no pixel: beside the screen, or hidden by what was drawn before. Finds that out
// in less time than drawing takes, but not always.
inline bool MayShow(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c)
{
    return canvas.Screen.Kernels->MayShow(canvas, a, b, c);
}
}
