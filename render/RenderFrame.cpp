#include "render/RenderFrame.h"

#include "base/Numbers.h"
#include "render/Draw2D.h"
#include "render/Ground.h"
#include "render/GroundThreads.h"
#include "render/Lines.h"
#include "render/RowTables.h"
#include "render/Sprites.h"
#include "render/Text.h"
#include "render/Triangles.h"

#include <algorithm>

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

// Calls draw(triangle) for the two triangles of every cell, (i, j), (i + 1, j), (i, j + 1) and (i + 1, j + 1),
// (i + 1, j), (i, j + 1). transform(point) gives a point's vertex; neighbouring cells share it.
template <class Transform, class Draw> void ForEachTriangle(const PointGrid& grid, Transform&& transform, Draw&& draw)
{
    if (grid.Cols < 2)
        return;
    for (std::int32_t i = 0; i + 1 < grid.Rows; ++i)
    {
        Vertex a = transform(grid.At(i, 0)), b = transform(grid.At(i + 1, 0));
        for (std::int32_t j = 0; j + 1 < grid.Cols; ++j)
        {
            const Vertex c = transform(grid.At(i, j + 1)), d = transform(grid.At(i + 1, j + 1));
            draw(Triangle{a, b, c});
            draw(Triangle{d, b, c});
            a = c;
            b = d;
        }
    }
}

base::ConstSurface TextureOf(const Scene& scene, std::int16_t slot)
{
    if (!scene.Textures.Has(slot) || scene.Textures.At(slot).Free != 0)
        return {};
    const Texture& texture = scene.Textures.At(slot);
    return MakeSurface(texture.Pic);
}

void DrawMesh(const Scene& scene, const Camera& camera, Screen& screen, const Obj& object, const Rotation& rotation,
              const ObjMesh& mesh)
{
    const auto transform = [&](const MeshPt& point)
    {
        return TransformVertex(camera, screen,
                               RotatePoint(rotation, {object.X, object.Y, object.Z}, {point.X, point.Y, point.Z}),
                               point.U, point.V);
    };
    if (mesh.Colour < 0)
        ForEachTriangle(mesh.Pts, transform,
                        [&, texture = TextureOf(scene, mesh.TexIndex)](const Triangle& triangle)
                        { DrawTriTex(camera, screen, triangle, texture); });
    else
        ForEachTriangle(mesh.Pts, transform,
                        [&, colour = mesh.Col](const Triangle& triangle)
                        { DrawTriFlat(scene, camera, screen, triangle, colour); });
}

void DrawWorldMeshes(const Scene& scene, const Camera& camera, Screen& screen)
{
    const auto transform = [&](const MeshPt& point) {
        return TransformVertex(camera, screen, {point.X, point.Y, point.Z});
    };
    for (const ObjMesh& mesh : scene.WorldMeshes)
        if (IsDrawn(mesh))
            ForEachTriangle(mesh.Pts, transform,
                            [&, colour = mesh.Col](const Triangle& triangle)
                            { DrawTriFlat(scene, camera, screen, triangle, colour); });
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
}

void DrawGround(const Scene& scene, const Camera& camera, Screen& screen, GroundThreads& threads)
{
    const GroundView view = MakeGroundView(scene, camera, screen);
    if (screen.SingleThread)
    {
        std::atomic<bool> never{false};
        StopCheck check(never);
        return DrawGroundBand(view, screen.Bands.front(), check);
    }
    threads.Resize(HelpersFor(screen.Bands.size()));
    threads.Run([&view](const Band& band, StopCheck& check) { DrawGroundBand(view, band, check); }, screen.Bands,
                std::chrono::milliseconds(screen.GroundLimit));
}

void DrawObjects(const Scene& scene, const Camera& camera, Screen& screen)
{
    for (const Obj& object : scene.Objects.Items)
    {
        if (!IsDrawn(object) || !IsInView(camera, screen, object))
            continue;
        const Rotation rotation = MakeRotation(object.AngleA, object.AngleB);
        for (const ObjMesh& mesh : object.Mesh)
            if (mesh.Free == 0)
                DrawMesh(scene, camera, screen, object, rotation, mesh);
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
    base::EnterPhase(clock, "ground");
    DrawGround(scene, camera, screen, threads);
    base::EnterPhase(clock, "objects");
    DrawObjects(scene, camera, screen);
    DrawWorldMeshes(scene, camera, screen);
    DrawPolys(scene, camera, screen);
    base::EnterPhase(clock, "sprites");
    for (const Sprite3D& sprite : scene.Sprites.Items)
        if (IsDrawn(sprite))
            DrawSprite3D(camera, screen, sprite);
    base::EnterPhase(clock, "display");
    DrawHud(scene, screen);
    base::LeavePhase(clock);
}
}
