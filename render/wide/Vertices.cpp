// SPDX-License-Identifier: Zlib
// Four points at a time. Rounding and order of every line are those of RotatePoint, WorldToCamera and Project.
#include "render/Vertices.h"

#include "render/wide/Routines.h"
#include "render/wide/Wide.h"

namespace render::VELKAR_WIDE
{
namespace
{
struct Points4
{
    Float4 X, Y, Z;

    // The lanes behind the last point are that one again.
    static Points4 Load(const MeshPt* points, std::size_t count)
    {
        const MeshPt &a = points[0], &b = points[count > 1 ? 1 : 0];
        const MeshPt &c = points[count > 2 ? 2 : 0], &d = points[count > 3 ? 3 : 0];
        return {Float4::Of(a.X, b.X, c.X, d.X), Float4::Of(a.Y, b.Y, c.Y, d.Y), Float4::Of(a.Z, b.Z, c.Z, d.Z)};
    }
};

Points4 Turned(const MeshPlace& place, const Points4& points)
{
    const Double4 cosA = Double4::Of(place.Turn.CosA), sinA = Double4::Of(place.Turn.SinA);
    const Double4 cosB = Double4::Of(place.Turn.CosB), sinB = Double4::Of(place.Turn.SinB);
    const Double4 x = Double4::Of(points.X), y = Double4::Of(points.Y), z = Double4::Of(points.Z);
    const Double4 t = sinA * x + cosA * z;
    return {(cosA * x - sinA * z + Double4::Of(place.Place.X)).Single(),
            (cosB * y - t * sinB + Double4::Of(place.Place.Y)).Single(),
            (t * cosB + sinB * y + Double4::Of(place.Place.Z)).Single()};
}

Points4 Viewed(const Camera& camera, const Points4& world)
{
    const Double4 cosYaw = Double4::Of(camera.CamCosYaw), sinYaw = Double4::Of(camera.CamSinYaw);
    const Double4 cosPitch = Double4::Of(camera.CamCosPitch), sinPitch = Double4::Of(camera.CamSinPitch);
    const Double4 dx = Double4::Of(world.X) - Double4::Of(camera.CamX);
    const Double4 dy = Double4::Of(world.Y) - Double4::Of(camera.CamY);
    const Double4 dz = Double4::Of(world.Z) - Double4::Of(camera.CamZ);
    const Double4 t = dx * sinYaw - cosYaw * dz;
    return {(sinYaw * dz + cosYaw * dx).Single(), (t * sinPitch + cosPitch * dy).Single(),
            (sinPitch * dy - t * cosPitch).Single()};
}

struct Places4
{
    Int4 X, Y, Outside;
};

Places4 Projected(const Camera& camera, const Screen& screen, const Points4& view)
{
    const Double4 depth = Double4::Of(view.Z), zoom = Double4::Of(camera.Zoom);
    const Int4 x = (Double4::Of(view.X) / depth * zoom + Double4::Of(screen.CenterX)).Rounded();
    const Int4 y = (Double4::Of(view.Y) / depth * zoom + Double4::Of(screen.CenterY)).Rounded();
    const auto bit = [](Int4 mask, std::int32_t outside) { return mask & Int4::Of(outside); };
    const Int4 none = Int4::Of(base::OutOfRange), zero = Int4::Of(0);
    const Int4 beside = bit(x < zero, OutsideLeft) | bit(Int4::Of(screen.ScreenW - 1) < x, OutsideRight) |
                        bit(y < zero, OutsideBelow) | bit(Int4::Of(screen.ScreenH - 1) < y, OutsideAbove) |
                        bit((x == none) | (y == none), NoPlace);
    const Int4 isNear = view.Z < Float4::Of(screen.NearZ);
    return {x, y, Without(beside, isNear) | bit(isNear, BeforeNear)};
}
}

void TransformPoints(const Camera& camera, const Screen& screen, const MeshPlace& place, const MeshPt* points,
                     std::size_t count, Vertex* vertices)
{
    while (count > 0)
    {
        const Points4 given = Points4::Load(points, count);
        const Points4 world = place.IsTurned ? Turned(place, given) : given;
        const Points4 view = Viewed(camera, world);
        const Places4 places = Projected(camera, screen, view);
        float values[6][4];
        std::int32_t wholes[3][4];
        world.X.Store(values[0]);
        world.Y.Store(values[1]);
        world.Z.Store(values[2]);
        view.X.Store(values[3]);
        view.Y.Store(values[4]);
        view.Z.Store(values[5]);
        places.X.Store(wholes[0]);
        places.Y.Store(wholes[1]);
        places.Outside.Store(wholes[2]);
        const std::size_t some = count < 4 ? count : 4;
        for (std::size_t i = 0; i < some; ++i)
            vertices[i] = {{values[0][i], values[1][i], values[2][i]},
                           {values[3][i], values[4][i], values[5][i]},
                           {wholes[0][i], wholes[1][i], values[5][i], static_cast<double>(points[i].U),
                            static_cast<double>(points[i].V)},
                           static_cast<std::uint32_t>(wholes[2][i])};
        points += some;
        vertices += some;
        count -= some;
    }
}
}
