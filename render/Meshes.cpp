// SPDX-License-Identifier: Zlib
#include "render/Meshes.h"

#include "render/Triangles.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace render
{
namespace
{
// A part of a grid: points from (I, J) on.
struct Part
{
    std::int32_t I = 0, J = 0, Rows = 0, Cols = 0;
};

// Calls draw(triangle) for the cells of a grid in their order. Points are transformed a part at a time: as many whole
// rows as there is room for, or pieces of two rows; where two parts meet, twice.
template <class Draw>
void ForEachTriangle(const Camera& camera, const Screen& screen, const PointGrid& grid, const MeshPlace& place,
                     VertexRoom& room, Draw&& draw)
{
    constexpr std::int32_t most = static_cast<std::int32_t>(MostPoints);
    const std::int32_t across = std::min(grid.Cols - 1, most / 2 - 1); // cells of a part
    if (across < 1)
        return;
    const bool wholeRows = across == grid.Cols - 1;
    const std::int32_t down = wholeRows ? most / grid.Cols - 1 : 1;
    const auto transform = [&](std::int32_t i, std::int32_t j, std::int32_t count, Vertex* vertices) {
        screen.Kernels->TransformPoints(camera, screen, place, &grid.At(i, j), static_cast<std::size_t>(count),
                                        vertices);
    };
    const auto drawPart = [&](const Part& part)
    {
        if (wholeRows)
            transform(part.I, 0, part.Rows * part.Cols, room.data());
        else
            for (std::int32_t i = 0; i < part.Rows; ++i)
                transform(part.I + i, part.J, part.Cols, room.data() + i * part.Cols);
        for (std::int32_t i = 0; i + 1 < part.Rows; ++i)
        {
            const Vertex *here = room.data() + i * part.Cols, *next = here + part.Cols;
            for (std::int32_t j = 0; j + 1 < part.Cols; ++j)
            {
                for (const Triangle& triangle :
                     {Triangle{here[j], next[j], here[j + 1]}, Triangle{next[j + 1], next[j], here[j + 1]}})
                    if (!IsOutside(triangle))
                        draw(triangle);
            }
        }
    };
    for (std::int32_t i = 0; i + 1 < grid.Rows; i += down)
        for (std::int32_t j = 0; j + 1 < grid.Cols; j += across)
            drawPart({i, j, std::min(down, grid.Rows - 1 - i) + 1, std::min(across, grid.Cols - 1 - j) + 1});
}

base::ConstSurface TextureOf(const Scene& scene, std::int16_t slot)
{
    if (!scene.Textures.Has(slot) || scene.Textures.At(slot).Free != 0)
        return {};
    return MakeSurface(scene.Textures.At(slot).Pic);
}
}

void DrawFlatMesh(const Scene& scene, const Camera& camera, const Canvas& canvas, const ObjMesh& mesh,
                  const MeshPlace& place, VertexRoom& room)
{
    ForEachTriangle(camera, canvas.Screen, mesh.Pts, place, room,
                    [&](const Triangle& triangle) { DrawTriFlat(scene, camera, canvas, triangle, mesh.Col); });
}

void DrawMesh(const Scene& scene, const Camera& camera, const Canvas& canvas, const ObjMesh& mesh,
              const MeshPlace& place, VertexRoom& room)
{
    if (mesh.Colour >= 0)
        return DrawFlatMesh(scene, camera, canvas, mesh, place, room);
    const base::ConstSurface texture = TextureOf(scene, mesh.TexIndex);
    if (texture.Width < 1 || texture.Height < 1)
        return;
    ForEachTriangle(camera, canvas.Screen, mesh.Pts, place, room,
                    [&](const Triangle& triangle)
                    {
                        if (IsWhole(triangle))
                            FillTriTex(canvas, triangle.A.Screen, triangle.B.Screen, triangle.C.Screen, texture);
                        else
                            DrawTriTex(camera, canvas, triangle, texture);
                    });
}
}
