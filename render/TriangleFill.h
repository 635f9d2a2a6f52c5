// render/TriangleFill.h: filling a projected triangle: rows between its corners, depth-tested pixels. Corners may lie
// anywhere in 32 bits; only rows and columns of the screen are walked.
#pragma once
#include "base/Pixels.h"
#include "render/Screen.h"

#include <algorithm>
#include <cstdint>

namespace render
{
struct ScreenCorner
{
    std::int32_t X = 0, Y = 0; // pixels
    float Z = 0;               // depth
    double U = 0, V = 0;       // texels; not used by flat triangles
};

// Whether every corner lies on the same outer side of the screen, or all in one row: nothing to fill.
inline bool IsRejected(const Screen& screen, const ScreenCorner& a, const ScreenCorner& b, const ScreenCorner& c)
{
    return std::max({a.X, b.X, c.X}) < 0 || std::min({a.X, b.X, c.X}) >= screen.ScreenW ||
           std::max({a.Y, b.Y, c.Y}) < 0 || std::min({a.Y, b.Y, c.Y}) >= screen.ScreenH || (a.Y == b.Y && b.Y == c.Y);
}

// A pixel is written where its depth is strictly less than the depth cell, which then takes it.
void FillTriFlat(Screen& screen, const ScreenCorner& a, const ScreenCorner& b, const ScreenCorner& c, base::Rgb colour);
// Texels of three zero bytes, and texels outside the texture, leave pixel and depth untouched.
void FillTriTex(Screen& screen, const ScreenCorner& a, const ScreenCorner& b, const ScreenCorner& c,
                const base::ConstSurface& texture);

// The same pixel by pixel. The judges of the two above.
void FillTriFlatPlain(Screen& screen, const ScreenCorner& a, const ScreenCorner& b, const ScreenCorner& c,
                      base::Rgb colour);
void FillTriTexPlain(Screen& screen, const ScreenCorner& a, const ScreenCorner& b, const ScreenCorner& c,
                     const base::ConstSurface& texture);
}
