// SPDX-License-Identifier: Zlib
// render/Primitives.h: the operations that fill and edit the scene lists. Every index is checked (RuntimeError 9),
// every size before it is allocated (RuntimeError 7 above the limits of Scene.h), every slot before it is given away
// (RuntimeError 6 beyond the 16-bit index); errors are thrown to the caller, and what failed has changed nothing.
// Makers return the slot. Textures: render/Textures.h.
#pragma once
#include "render/Scene.h"

#include <string_view>

namespace render
{
// Empties every list.
void InitScene(Scene& scene);

// ---- Objects ----

// An object of so many empty meshes and bare spheres. Negative counts are RuntimeError 9.
std::int16_t MakeObj(Scene& scene, const Placement& at, std::int16_t numMesh, std::int16_t numSfere,
                     std::uint8_t visible, float mass);
// A copy of the whole record, meshes and spheres included, at another place.
std::int16_t DuplicateObj(Scene& scene, std::int32_t source, const Placement& at, std::uint8_t visible);
void DeleteObj(Scene& scene, std::int32_t object);
void PlaceObj(Obj& object, const Placement& at);
void SetObjR(Scene& scene, std::int32_t object, float radius);
// Forgets the sphere's links.
void EditObjSfere(Scene& scene, std::int32_t object, std::int32_t sphere, const Point3& centre, float radius);
// RuntimeError 6 beyond 32767 links. The linked point may not exist.
void AddSfereLink(Scene& scene, std::int32_t object, std::int32_t sphere, const SfereLink& link);
struct GridSize
{
    std::int16_t Rows, Cols;
};
// All points 0; below 1 x 1 is RuntimeError 9. colour >= 0 is split into the flat colour; below, texture is the slot.
void EditObjMesh(Scene& scene, std::int32_t object, std::int32_t mesh, GridSize size, std::int32_t colour,
                 std::int16_t texture);
// i over Rows, j over Cols.
void EditObjMeshPt(Scene& scene, std::int32_t object, std::int32_t mesh, std::int32_t i, std::int32_t j,
                   const MeshPt& point);
// Keeps the points of every mesh as the undamaged copy for dents. Called once a model is complete.
void KeepUndamaged(Scene& scene, std::int32_t object);

// ---- Polylines ----

// So many points, all 0; below 1 is RuntimeError 9. colour: red in the low byte.
std::int16_t MakePoly(Scene& scene, std::int32_t points, std::int32_t colour, std::uint8_t visible);
void EditPolyPt(Scene& scene, std::int32_t poly, std::int32_t point, const PolyPt& at);

// ---- Sprites ----

std::int16_t MakeSprite3D(Scene& scene, const Sprite3D& sprite);
// Lets go of the shared picture as well.
void KillSprite3D(Scene& scene, std::int32_t sprite);

// ---- The display ----

// A picture of its own, all black, of width x height pixels; below 1 is RuntimeError 9.
std::int16_t MakePic2D(Scene& scene, base::MessageSink& messages, Pic2D pic, std::int32_t width, std::int32_t height);
void MovePic2D(Scene& scene, std::int32_t pic, float x, float y);
std::int16_t MakeLabel2D(Scene& scene, Label2D label);
// No allocation once the text has been as long before.
void SetLabelText(Scene& scene, std::int32_t label, std::string_view text);
std::int16_t MakeRect2D(Scene& scene, const Rect2D& rect);
void SetRectW(Scene& scene, std::int32_t rect, std::int16_t value);
}
