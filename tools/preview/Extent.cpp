// SPDX-License-Identifier: Zlib
#include "tools/preview/Extent.h"

#include <algorithm>

namespace preview
{
Box BoxAround(const std::vector<render::Point3>& points)
{
    if (points.empty())
        return {};
    Box box{points.front(), points.front()};
    for (const render::Point3& point : points)
    {
        box.Least = {std::min(box.Least.X, point.X), std::min(box.Least.Y, point.Y), std::min(box.Least.Z, point.Z)};
        box.Most = {std::max(box.Most.X, point.X), std::max(box.Most.Y, point.Y), std::max(box.Most.Z, point.Z)};
    }
    return box;
}

std::vector<render::Point3> MeshPoints(const render::Obj& object)
{
    std::vector<render::Point3> points;
    for (const render::ObjMesh& mesh : object.Mesh)
        for (const render::MeshPt& point : mesh.Pts.Points)
            points.push_back({point.X, point.Y, point.Z});
    return points;
}

std::vector<render::Point3> WorldPoints(const render::Obj& object)
{
    std::vector<render::Point3> points = MeshPoints(object);
    for (render::Point3& point : points)
        point = ToWorld(object, point);
    return points;
}

render::Point3 ToWorld(const render::Obj& object, const render::Point3& point)
{
    return render::RotatePoint(render::MakeRotation(object.AngleA, object.AngleB), {object.X, object.Y, object.Z},
                               point);
}
}
