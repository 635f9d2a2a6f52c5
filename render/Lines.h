// render/Lines.h: lines in the world, depth-tested.
#pragma once
#include "render/Scene.h"
#include "render/Screen.h"

namespace render
{
// Drawn where both ends are in front of the eye and no farther than FarZ and the first end is on the screen.
void DrawLine3D(const Scene& scene, const Camera& camera, Screen& screen, const Point3& from, const Point3& to,
                base::Rgb colour);
}
