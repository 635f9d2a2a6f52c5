// SPDX-License-Identifier: Zlib
// render/Lines.h: lines in the world, depth-tested.
#pragma once
#include "render/Scene.h"
#include "render/Screen.h"

namespace render
{
// Drawn where both ends are in front of the eye and no farther than FarZ and the first end is on the screen; the other
// end may lie anywhere. One pixel a step of one pixel's length, in the colour times the scene's light, where it is
// strictly nearer than the depth cell, which then takes its depth. Deliberate: NearZ has no part in it.
void DrawLine3D(const Scene& scene, const Camera& camera, Screen& screen, const Point3& from, const Point3& to,
                base::Rgb colour);
}
