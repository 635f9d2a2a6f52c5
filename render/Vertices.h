// SPDX-License-Identifier: Zlib
// render/Vertices.h: a mesh's points on their way to the screen: the three spaces that each passes through, and on
// which side of the screen it ends. Found once for all the triangles that share the point.
#pragma once
#include "render/Scene.h"
#include "render/Screen.h"
#include "render/TriangleFill.h"

#include <cstddef>
#include <cstdint>

namespace render
{
// What keeps a vertex off the screen, one bit a reason. A triangle whose vertices share one is not to be seen.
enum Outside : std::uint32_t
{
    OutsideLeft = 1,
    OutsideRight = 2,
    OutsideBelow = 4,
    OutsideAbove = 8,
    BeforeNear = 16, // nearer than NearZ: the only bit then, as it has no place on the screen
    NoPlace = 32     // the projection is no number, or farther than 32 bits of pixels
};

struct Vertex
{
    Point3 World;        // world units
    Point3 View;         // camera space: Z is the depth
    ScreenVertex Screen; // holds in front of the near plane only
    std::uint32_t Outside = 0;
};

// How a mesh stands in the world: turned, then moved; or as its points say.
struct MeshPlace
{
    bool IsTurned = false;
    Point3 Place; // world units
    Rotation Turn;
};

// Points that are transformed at once at most.
inline constexpr std::size_t MostPoints = 256;

// One point.
Vertex TransformVertex(const Camera& camera, const Screen& screen, const Point3& world, std::int32_t u = 0,
                       std::int32_t v = 0);
// Those of a mesh, at most MostPoints, straight from the definition. The judge of the screen's TransformPoints.
void TransformPointsPlain(const Camera& camera, const Screen& screen, const MeshPlace& place, const MeshPt* points,
                          std::size_t count, Vertex* vertices);
}
