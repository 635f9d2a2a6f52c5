// render/Triangles.h: triangles given in world coordinates: shading, near clipping, projection. The filling is in
// render/TriangleFill.h.
#pragma once
#include "render/Scene.h"
#include "render/Screen.h"
#include "render/TriangleFill.h"

namespace render
{
// A corner in the world, as the camera sees it, and on the screen, found once for all the triangles that share it.
struct Corner
{
    Point3 World, Seen;
    ScreenCorner Landed; // holds in front of the near plane only
};
// u, v: texels.
Corner SeeCorner(const Camera& camera, const Screen& screen, const Point3& world, std::int32_t u = 0,
                 std::int32_t v = 0);

// Largest minus smallest of three coordinates.
double Extent(double a, double b, double c);
// 1 - (what the extents of a face take of its light), about 0.88 to 1; NaN where two extents are 0: not drawn.
// Deliberate: the extents stand for the face's normal.
double FaceShade(const Point3& a, const Point3& b, const Point3& c);

// Flat-shaded, in the colour times shade times light.
void DrawTriFlat(const Scene& scene, const Camera& camera, Screen& screen, const Point3& a, const Point3& b,
                 const Point3& c, Rgb colour);
// Textured; texels are interpolated on the screen, without perspective.
void DrawTriTex(const Camera& camera, Screen& screen, const Corner& a, const Corner& b, const Corner& c,
                const base::ConstSurface& texture);
// The same for corners already seen, as a grid shares them between its triangles.
void DrawSeenFlat(const Scene& scene, const Camera& camera, Screen& screen, const Corner& a, const Corner& b,
                  const Corner& c, Rgb colour);
}
