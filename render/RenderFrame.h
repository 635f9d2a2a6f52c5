// SPDX-License-Identifier: Zlib
// render/RenderFrame.h: composes one frame in its fixed order: ground and sky, objects, world meshes, polylines, world
// sprites, screen pictures, rectangles, texts. No allocation.
#pragma once
#include "base/PhaseClock.h"
#include "render/Canvas.h"
#include "render/Scene.h"
#include "render/Screen.h"

namespace render
{
class GroundThreads;

// Draws into screen.Frame and screen.Depth; nothing before a resolution was applied. The threads are made as many as
// the screen's bands are meant for, and rest when it returns. clock, where there is one, is given the time of the
// phases "tables", "ground" (what the calling thread waits for and draws of it), "objects" (world meshes too),
// "sprites" (polylines too) and "display".
void RenderFrame(const Scene& scene, const Camera& camera, Screen& screen, GroundThreads& threads,
                 base::PhaseClock* clock = nullptr);

// Its larger steps, each alone.
// Fills frame and depth buffer. The screen's tables must be those of the camera: see render/RowTables.h.
void DrawGround(const Scene& scene, const Camera& camera, Screen& screen, GroundThreads& threads);
// All objects whose bounding sphere reaches into the view, in the order of their list.
void DrawObjects(const Scene& scene, const Camera& camera, const Canvas& canvas);
// Pictures, rectangles and texts over everything; the depth buffer has no part in it.
void DrawHud(const Scene& scene, Screen& screen);
}
