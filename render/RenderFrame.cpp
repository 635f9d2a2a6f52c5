// SPDX-License-Identifier: Zlib
#include "render/RenderFrame.h"

#include "base/Numbers.h"
#include "render/Draw2D.h"
#include "render/GroundThreads.h"
#include "render/GroundView.h"
#include "render/Lines.h"
#include "render/Meshes.h"
#include "render/RowTables.h"
#include "render/Sprites.h"
#include "render/Text.h"

#include <algorithm>
#include <utility>

namespace render
{
namespace
{
// There are 2 x processors + 1 bands, and the calling thread draws too.
int HelpersFor(std::size_t bands)
{
    const int processors = std::max((static_cast<int>(bands) - 1) / 2, 1);
    return processors - 1;
}

// Deliberate: the far side of the bounding sphere is projected, and only the upper edge of the screen is strict.
bool IsInView(const Camera& camera, const Screen& screen, const Obj& object)
{
    const Point3 centre = WorldToCamera(camera, object.X, object.Y, object.Z);
    const double radius = object.Radius, d = centre.Z + radius;
    if (d < screen.NearZ)
        return false;
    const ScreenPoint s = Project(centre.X, centre.Y, d, camera.Zoom, screen.CenterX, screen.CenterY);
    if (s.X == base::OutOfRange || s.Y == base::OutOfRange)
        return false;
    const double r = radius / d * camera.Zoom;
    return s.X + r >= 0.0 && s.X - r <= screen.ScreenW && s.Y + r >= 0.0 && s.Y - r < screen.ScreenH;
}

// World meshes are always flat-coloured.
void DrawWorldMeshes(const Scene& scene, const Camera& camera, const Canvas& canvas)
{
    VertexRoom room;
    for (const ObjMesh& mesh : scene.WorldMeshes)
        if (IsDrawn(mesh))
            DrawFlatMesh(scene, camera, canvas, mesh, {}, room);
}

void DrawPolys(const Scene& scene, const Camera& camera, Screen& screen)
{
    for (const Poly& poly : scene.Polys.Items)
    {
        if (!IsDrawn(poly))
            continue;
        const base::Rgb colour = poly.Col;
        for (std::size_t i = 1; i < poly.Pts.size(); ++i)
        {
            const PolyPt &from = poly.Pts[i - 1], &to = poly.Pts[i];
            DrawLine3D(scene, camera, screen, {from.X, from.Y, from.Z}, {to.X, to.Y, to.Z}, colour);
        }
    }
}

BandJob GroundJob(const Screen& screen, const GroundView& view)
{
    return [&view, draw = screen.Kernels->DrawGroundBand](const Band& band, StopCheck& check)
    { draw(view, band, check); };
}

void DrawSolids(const Scene& scene, const Camera& camera, const Canvas& canvas)
{
    DrawObjects(scene, camera, canvas);
    DrawWorldMeshes(scene, camera, canvas);
}

// The ground and what stands on it, one after the other.
void DrawInTurn(const Scene& scene, const Camera& camera, Screen& screen, GroundThreads& threads,
                base::PhaseClock* clock)
{
    base::EnterPhase(clock, "ground");
    DrawGround(scene, camera, screen, threads);
    base::EnterPhase(clock, "objects");
    DrawSolids(scene, camera, screen);
}

// The same picture: the calling thread draws what stands on the ground ahead of it while others draw the ground, and
// lays it over the ground then.
void DrawSideBySide(const Scene& scene, const Camera& camera, Screen& screen, GroundThreads& threads,
                    base::PhaseClock* clock)
{
    base::EnterPhase(clock, "ground");
    const GroundView view = MakeGroundView(scene, camera, screen);
    GroundThreads::Pass ground(threads, GroundJob(screen, view), screen.HalfBands);
    base::EnterPhase(clock, "objects");
    Layer& ahead = screen.Ahead;
    if (!std::exchange(ahead.IsEmpty, false)) // left so by a frame that was cut off
    {
        ahead.Drawn.Clear();
        std::fill(ahead.Depth.Cells.begin(), ahead.Depth.Cells.end(), FarDepth);
    }
    DrawSolids(scene, camera, {screen, ahead});
    base::EnterPhase(clock, "ground");
    // Where the ground is cut off, the frame keeps depths of the frame before, which may hide what stands there.
    if (!ground.Finish(std::chrono::milliseconds(screen.GroundLimit)))
        return DrawSolids(scene, camera, screen);
    threads.Run([&screen](const Band& rows, StopCheck&) { screen.Kernels->LayOver(screen.Frame, screen.Ahead, rows); },
                screen.RowBands, NoLimit);
    // The layer's depths are the frame's; the ground has emptied those that were, for the next frame's layer.
    std::swap(ahead.Depth, screen.Depth);
    ahead.Drawn.Clear();
    ahead.IsEmpty = true;
}
}

void DrawGround(const Scene& scene, const Camera& camera, Screen& screen, GroundThreads& threads)
{
    const GroundView view = MakeGroundView(scene, camera, screen);
    if (screen.SingleThread)
    {
        std::atomic<bool> never{false};
        StopCheck check(never);
        return screen.Kernels->DrawGroundBand(view, screen.Bands.front(), check);
    }
    threads.Resize(HelpersFor(screen.Bands.size()));
    threads.Run(GroundJob(screen, view), screen.HalfBands, std::chrono::milliseconds(screen.GroundLimit));
}

void DrawObjects(const Scene& scene, const Camera& camera, const Canvas& canvas)
{
    VertexRoom room;
    for (const Obj& object : scene.Objects.Items)
    {
        if (!IsDrawn(object) || !IsInView(camera, canvas.Screen, object))
            continue;
        const MeshPlace place{true, {object.X, object.Y, object.Z}, MakeRotation(object.AngleA, object.AngleB)};
        for (const ObjMesh& mesh : object.Mesh)
            if (mesh.Free == 0)
                DrawMesh(scene, camera, canvas, mesh, place, room);
    }
}

void DrawHud(const Scene& scene, Screen& screen)
{
    const base::Surface surface = FrameSurface(screen);
    for (const Pic2D& pic : scene.Pics.Items)
        if (IsDrawn(pic))
            DrawPic2D(surface, pic.Pic, base::RoundEven(pic.X), base::RoundEven(pic.Y));
    for (const Rect2D& rect : scene.Rects.Items)
        if (IsDrawn(rect) && rect.Hidden == 0)
            FillRect2D(surface, rect.X, rect.Y, rect.W, rect.H, rect.Col);
    for (const Label2D& label : scene.Labels.Items)
        if (IsDrawn(label))
            DrawLabel(surface, scene.Font, label);
}

void RenderFrame(const Scene& scene, const Camera& camera, Screen& screen, GroundThreads& threads,
                 base::PhaseClock* clock)
{
    if (screen.Frame.Empty())
        return; // no resolution was applied yet
    base::EnterPhase(clock, "tables");
    UpdateSkyOffset(camera, screen);
    UpdateRowTables(camera, screen);
    UpdateColumnSlopes(camera, screen);
    threads.Resize(HelpersFor(screen.Bands.size()));
    const bool isAlone = screen.SingleThread || threads.HelperCount() == 0;
    (isAlone ? DrawInTurn : DrawSideBySide)(scene, camera, screen, threads, clock);
    base::EnterPhase(clock, "sprites");
    DrawPolys(scene, camera, screen);
    for (const Sprite3D& sprite : scene.Sprites.Items)
        if (IsDrawn(sprite))
            DrawSprite3D(camera, screen, sprite);
    base::EnterPhase(clock, "display");
    DrawHud(scene, screen);
    base::LeavePhase(clock);
}
}
