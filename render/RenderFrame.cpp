#include "render/RenderFrame.h"

#include "base/Numbers.h"
#include "render/Draw2D.h"
#include "render/Ground.h"
#include "render/GroundWalkers.h"
#include "render/Lines.h"
#include "render/Sprites.h"
#include "render/Triangles.h"

namespace render
{
namespace
{
struct GroundPass final : BandWalk
{
    explicit GroundPass(const GroundView& groundView, std::int16_t txtFilter) : View(groundView), Filter(txtFilter) {}

    void Walk(const Band& band, WalkGate& gate) const override
    {
        if (Filter == 1)
            GroundLinear(View, band, gate);
        else if (Filter == 2)
            GroundAniso(View, band, gate);
        else
            GroundNearest(View, band, gate);
    }

    const GroundView& View;
    std::int16_t Filter;
};

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

// Calls draw(a, b, c) for the two triangles of every cell, (i, j), (i + 1, j), (i, j + 1) and (i + 1, j + 1),
// (i + 1, j), (i, j + 1). see(point) brings a point before the camera; neighbouring cells share what it gives.
template <class See, class Draw> void ForEachTriangle(const PointGrid& grid, See&& see, Draw&& draw)
{
    if (grid.Cols < 2)
        return;
    for (std::int32_t i = 0; i + 1 < grid.Rows; ++i)
    {
        Corner a = see(grid.At(i, 0)), b = see(grid.At(i + 1, 0));
        for (std::int32_t j = 0; j + 1 < grid.Cols; ++j)
        {
            const Corner c = see(grid.At(i, j + 1)), d = see(grid.At(i + 1, j + 1));
            draw(a, b, c);
            draw(d, b, c);
            a = c;
            b = d;
        }
    }
}

TexelField TextureOf(const Scene& scene, std::int16_t slot)
{
    if (!scene.Textures.Has(slot) || scene.Textures.At(slot).Free != 0)
        return {};
    const Texture& texture = scene.Textures.At(slot);
    return MakeTexelField(texture.Pic.Pixels, texture.Pic.Info.Width, texture.Pic.Info.Height);
}

void DrawMesh(const Scene& scene, const Camera& camera, Screen& screen, const Obj& object, const Rotation& rotation,
              const ObjMesh& mesh)
{
    const auto see = [&](const MeshPt& point)
    {
        return SeeCorner(camera, screen, RotatePoint(rotation, object.X, object.Y, object.Z, point.X, point.Y, point.Z),
                         point.U, point.V);
    };
    if (mesh.Colour < 0)
        ForEachTriangle(
            mesh.Pts, see,
            [&, texture = TextureOf(scene, mesh.TexIndex)](const Corner& a, const Corner& b, const Corner& c)
            { DrawTriTex(camera, screen, a, b, c, texture); });
    else
        ForEachTriangle(mesh.Pts, see,
                        [&, colour = mesh.Col](const Corner& a, const Corner& b, const Corner& c)
                        { DrawSeenFlat(scene, camera, screen, a, b, c, colour); });
}

void DrawWorldMeshes(const Scene& scene, const Camera& camera, Screen& screen)
{
    const auto see = [&](const MeshPt& point) { return SeeCorner(camera, screen, {point.X, point.Y, point.Z}); };
    for (const ObjMesh& mesh : scene.WorldMeshes)
        if (IsDrawn(mesh))
            ForEachTriangle(mesh.Pts, see,
                            [&, colour = mesh.Col](const Corner& a, const Corner& b, const Corner& c)
                            { DrawSeenFlat(scene, camera, screen, a, b, c, colour); });
}

void DrawPolys(const Scene& scene, const Camera& camera, Screen& screen)
{
    for (const Poly& poly : scene.Polys.Items)
    {
        if (!IsDrawn(poly))
            continue;
        const Rgb colour = poly.Col;
        for (std::size_t i = 1; i < poly.Pts.size(); ++i)
        {
            const PolyPt &from = poly.Pts[i - 1], &to = poly.Pts[i];
            DrawLine3D(scene, camera, screen, {from.X, from.Y, from.Z}, {to.X, to.Y, to.Z}, colour);
        }
    }
}

void DrawLabel(const Scene& scene, const Surface& surface, const Label2D& label)
{
    const Font& font = scene.Font;
    const Colour colour{label.Col.R, label.Col.G, label.Col.B};
    const std::int32_t tab = TabPixels(font, label.Scale, label.TabWidth);
    if (label.Style == StartsAtX)
        DrawTextLeft(surface, font, label.X, label.Y, label.Scale, tab, colour, label.Fade, label.Text);
    else if (label.Style == EndsAtX)
        DrawTextRight(surface, font, label.X, label.Y, label.Scale, colour, label.Fade, label.Text);
    else if (label.Style == CentredOnX)
        DrawTextCentred(surface, font, label.X, label.Y, label.Scale, tab, colour, label.Fade, label.Text);
}
}

void DrawGround(const Scene& scene, const Camera& camera, Screen& screen)
{
    const GroundView view = MakeGroundView(scene, camera, screen);
    const GroundPass pass(view, screen.TxtFilter);
    if (screen.SingleThread != 0)
    {
        std::atomic<bool> never{false};
        WalkGate gate(never);
        pass.Walk(screen.Bands.front(), gate);
    }
    else
        screen.Walkers->Run(pass, screen.Bands, std::chrono::milliseconds(screen.GroundLimit));
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
    const Surface surface = FrameSurface(screen);
    for (const Pic2D& pic : scene.Pics.Items)
        if (IsDrawn(pic))
            DrawPic2D(surface, pic.Pic, base::RoundEven(pic.X), base::RoundEven(pic.Y));
    for (const Rect2D& rect : scene.Rects.Items)
        if (IsDrawn(rect) && rect.Hidden == 0)
            FillRect2D(surface, rect.X, rect.Y, rect.W, rect.H, rect.Col);
    for (const Label2D& label : scene.Labels.Items)
        if (IsDrawn(label))
            DrawLabel(scene, surface, label);
}

void RenderFrame(const Scene& scene, const Camera& camera, Screen& screen, FrameSink* sink)
{
    if (screen.Frame.Empty())
        return; // no resolution was applied yet
    UpdateSkyOffset(camera, screen);
    UpdateRowTables(camera, screen);
    DrawGround(scene, camera, screen);
    DrawObjects(scene, camera, screen);
    DrawWorldMeshes(scene, camera, screen);
    DrawPolys(scene, camera, screen);
    for (const Sprite3D& sprite : scene.Sprites.Items)
        if (IsDrawn(sprite))
            DrawSprite3D(camera, screen, sprite);
    DrawHud(scene, screen);
    if (sink != nullptr)
        sink->Present(screen.ScreenW, screen.ScreenH, screen.Frame.Bytes);
}
}
