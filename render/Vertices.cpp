// SPDX-License-Identifier: Zlib
#include "render/Vertices.h"

namespace render
{
namespace
{
// The bits of a vertex whose View and Screen are known.
std::uint32_t OutsideOf(const Screen& screen, const Vertex& vertex)
{
    if (vertex.View.Z < screen.NearZ)
        return BeforeNear;
    const ScreenVertex& at = vertex.Screen;
    return (at.X < 0 ? OutsideLeft : 0u) | (at.X >= screen.ScreenW ? OutsideRight : 0u) |
           (at.Y < 0 ? OutsideBelow : 0u) | (at.Y >= screen.ScreenH ? OutsideAbove : 0u) |
           (at.X == base::OutOfRange || at.Y == base::OutOfRange ? NoPlace : 0u);
}
}

Vertex TransformVertex(const Camera& camera, const Screen& screen, const Point3& world, std::int32_t u, std::int32_t v)
{
    Vertex vertex;
    vertex.World = world;
    vertex.View = WorldToCamera(camera, world.X, world.Y, world.Z);
    const ScreenPoint at =
        Project(vertex.View.X, vertex.View.Y, vertex.View.Z, camera.Zoom, screen.CenterX, screen.CenterY);
    vertex.Screen = {at.X, at.Y, vertex.View.Z, static_cast<double>(u), static_cast<double>(v)};
    vertex.Outside = OutsideOf(screen, vertex);
    return vertex;
}

void TransformPointsPlain(const Camera& camera, const Screen& screen, const MeshPlace& place, const MeshPt* points,
                          std::size_t count, Vertex* vertices)
{
    for (std::size_t i = 0; i < count; ++i)
    {
        const Point3 point{points[i].X, points[i].Y, points[i].Z};
        const Point3 world = place.IsTurned ? RotatePoint(place.Turn, place.Place, point) : point;
        vertices[i] = TransformVertex(camera, screen, world, points[i].U, points[i].V);
    }
}
}
