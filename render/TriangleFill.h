// render/TriangleFill.h: filling a projected triangle: rows between its vertices, depth-tested pixels. Vertices may lie
// anywhere in 32 bits; only rows and columns of the screen are visited. Values are interpolated in double precision,
// along the edges and then along the row, without perspective.
#pragma once
#include "base/Pixels.h"
#include "render/Screen.h"

#include <algorithm>
#include <cstdint>

namespace render
{
struct ScreenVertex
{
    std::int32_t X = 0, Y = 0; // pixels; base::OutOfRange where the projection is no place
    float Z = 0;               // depth, world units
    double U = 0, V = 0;       // texels, fractions included; not used by flat triangles
};

// Whether every vertex lies on the same outer side of the screen, or all in one row: nothing to fill.
inline bool IsRejected(const Screen& screen, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c)
{
    return std::max({a.X, b.X, c.X}) < 0 || std::min({a.X, b.X, c.X}) >= screen.ScreenW ||
           std::max({a.Y, b.Y, c.Y}) < 0 || std::min({a.Y, b.Y, c.Y}) >= screen.ScreenH || (a.Y == b.Y && b.Y == c.Y);
}

// A pixel is written where its depth is strictly less than the depth cell, which then takes it. Vertices in any order.
void FillTriFlat(Screen& screen, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c, base::Rgb colour);
// Texels of three zero bytes, and texels outside the texture, leave pixel and depth untouched.
void FillTriTex(Screen& screen, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                const base::ConstSurface& texture);
}
