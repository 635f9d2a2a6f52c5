// SPDX-License-Identifier: Zlib
// render/Triangles.h: triangles given in world coordinates: transformation, shading, near clipping, projection. The
// filling is in render/TriangleFill.h.
#pragma once
#include "base/Pixels.h"
#include "render/Canvas.h"
#include "render/Scene.h"
#include "render/TriangleFill.h"
#include "render/Vertices.h"

namespace render
{
// Three vertices for the length of a call.
struct Triangle
{
    const Vertex &A, &B, &C;
};

// Whether the triangle lies wholly beyond one side of the screen, or before the near plane.
inline bool IsOutside(const Triangle& triangle)
{
    return (triangle.A.Outside & triangle.B.Outside & triangle.C.Outside) != 0;
}

// Whether the screen knows all three vertices: what nearly every triangle is that shows.
inline bool IsWhole(const Triangle& triangle)
{
    return ((triangle.A.Outside | triangle.B.Outside | triangle.C.Outside) & (BeforeNear | NoPlace)) == 0;
}

// Largest minus smallest of three coordinates.
double Extent(double a, double b, double c);
// 1 - (what the extents of a face take of its light), about 0.88 to 1; NaN where two extents are 0: not drawn.
// Deliberate: the extents stand for the face's normal.
double FaceShade(const Point3& a, const Point3& b, const Point3& c);

// What lies nearer than NearZ is cut off; what is left is drawn on the canvas.
// Flat-shaded, in the colour times shade times the scene's light.
void DrawTriFlat(const Scene& scene, const Camera& camera, const Canvas& canvas, const Triangle& triangle,
                 base::Rgb colour);
// Textured; an empty texture draws nothing.
void DrawTriTex(const Camera& camera, const Canvas& canvas, const Triangle& triangle,
                const base::ConstSurface& texture);
}
