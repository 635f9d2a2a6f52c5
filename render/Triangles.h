// render/Triangles.h: triangles given in world coordinates: transformation, shading, near clipping, projection. The
// filling is in render/TriangleFill.h.
#pragma once
#include "base/Pixels.h"
#include "render/Scene.h"
#include "render/Screen.h"
#include "render/TriangleFill.h"

#include <cstdint>

namespace render
{
// A triangle's corner in the three spaces that it passes through, found once for all the triangles that share it.
struct Vertex
{
    Point3 World;        // world units
    Point3 View;         // camera space: Z is the depth
    ScreenVertex Screen; // holds in front of the near plane only
};
// u, v: texels.
Vertex TransformVertex(const Camera& camera, const Screen& screen, const Point3& world, std::int32_t u = 0,
                       std::int32_t v = 0);

// Three vertices for the length of a call.
struct Triangle
{
    const Vertex &A, &B, &C;
};

// Largest minus smallest of three coordinates.
double Extent(double a, double b, double c);
// 1 - (what the extents of a face take of its light), about 0.88 to 1; NaN where two extents are 0: not drawn.
// Deliberate: the extents stand for the face's normal.
double FaceShade(const Point3& a, const Point3& b, const Point3& c);

// What lies nearer than NearZ is cut off; what is left is drawn into frame and depth buffer.
// Flat-shaded, in the colour times shade times the scene's light.
void DrawTriFlat(const Scene& scene, const Camera& camera, Screen& screen, const Triangle& triangle, base::Rgb colour);
// Textured; an empty texture draws nothing.
void DrawTriTex(const Camera& camera, Screen& screen, const Triangle& triangle, const base::ConstSurface& texture);
}
