// render/RenderFrame.h: composes one frame in its fixed order: ground and sky, objects, world meshes, polylines, world
// sprites, screen pictures, rectangles, texts. No allocation.
#pragma once
#include "render/Scene.h"
#include "render/Screen.h"

namespace render
{
class GroundThreads;

// Draws into screen.Frame and screen.Depth; nothing before a resolution was applied. The threads are made as many as
// the screen's bands are meant for, and rest when it returns.
void RenderFrame(const Scene& scene, const Camera& camera, Screen& screen, GroundThreads& threads);

// The steps, each alone.
void UpdateSkyOffset(const Camera& camera, Screen& screen);
void UpdateRowTables(const Camera& camera, Screen& screen);
void DrawGround(const Scene& scene, const Camera& camera, Screen& screen, GroundThreads& threads);
void DrawObjects(const Scene& scene, const Camera& camera, Screen& screen);
void DrawHud(const Scene& scene, Screen& screen);
}
