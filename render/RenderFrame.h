// render/RenderFrame.h: composes one frame in its fixed order: ground and sky, objects, world meshes, polylines, world
// sprites, screen pictures, rectangles, texts. No allocation.
#pragma once
#include "render/Scene.h"
#include "render/Screen.h"

#include <cstdint>
#include <span>

namespace render
{
// Whoever shows a finished frame: bottom-up rows of blue, green, red, padded to 4 bytes, borrowed for the call.
struct FrameSink
{
    virtual ~FrameSink() = default;
    virtual void Present(int width, int height, std::span<const std::uint8_t> bits) = 0;
};

// Draws into screen.Frame and presents it when sink is not null.
void RenderFrame(const Scene& scene, const Camera& camera, Screen& screen, FrameSink* sink);

// The steps, each alone.
void UpdateSkyOffset(const Camera& camera, Screen& screen);
void UpdateRowTables(const Camera& camera, Screen& screen);
void DrawGround(const Scene& scene, const Camera& camera, Screen& screen);
void DrawObjects(const Scene& scene, const Camera& camera, Screen& screen);
void DrawHud(const Scene& scene, Screen& screen);
}
