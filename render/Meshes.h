// SPDX-License-Identifier: Zlib
// render/Meshes.h: the cells of a mesh's grid as triangles.
#pragma once
#include "render/Canvas.h"
#include "render/Scene.h"
#include "render/Vertices.h"

#include <array>

namespace render
{
// Room for the vertices of one part of a grid; made once for many meshes.
using VertexRoom = std::array<Vertex, MostPoints>;

// Two triangles of every cell, (i, j), (i + 1, j), (i, j + 1) and (i + 1, j + 1), (i + 1, j), (i, j + 1), cell by cell
// and row by row; textured where the colour is negative, else flat-shaded.
void DrawMesh(const Scene& scene, const Camera& camera, const Canvas& canvas, const ObjMesh& mesh,
              const MeshPlace& place, VertexRoom& room);
// Flat-shaded whatever the colour.
void DrawFlatMesh(const Scene& scene, const Camera& camera, const Canvas& canvas, const ObjMesh& mesh,
                  const MeshPlace& place, VertexRoom& room);
}
