// SPDX-License-Identifier: Zlib
// tools/preview/Extent.h: how far objects reach.
#pragma once
#include "render/Scene.h"

#include <vector>

namespace preview
{
struct Box
{
    render::Point3 Least, Most; // world units
};

// The box around the points; of no points a box at the origin.
Box BoxAround(const std::vector<render::Point3>& points);
// Of all meshes of the object, relative to it.
std::vector<render::Point3> MeshPoints(const render::Obj& object);
// The same in the world, as the object stands.
std::vector<render::Point3> WorldPoints(const render::Obj& object);
// A point of the object in the world.
render::Point3 ToWorld(const render::Obj& object, const render::Point3& point);
}
