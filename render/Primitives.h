// render/Primitives.h: the operations that fill and edit the scene lists. Every index is checked (RuntimeError 9),
// every size before it is allocated (RuntimeError 7 above the limits of Scene.h); errors are thrown to the caller.
#pragma once
#include "render/Scene.h"

#include <string>
#include <string_view>

namespace render
{
// Empties every list.
void InitScene(Scene& scene);

// Objects. Negative counts are RuntimeError 9 and take no slot.
std::int16_t MakeObj(Scene& scene, float x, float y, float z, float angleA, float angleB, std::int16_t numMesh,
                     std::int16_t numSfere, std::uint8_t visible, float mass);
// A copy of the whole record, meshes and spheres included, at another place.
std::int16_t DuplicateObj(Scene& scene, std::int32_t source, float x, float y, float z, float angleA, float angleB,
                          std::uint8_t visible);
void DeleteObj(Scene& scene, std::int32_t object);
void SetObjR(Scene& scene, std::int32_t object, float radius);
void EditObjSfere(Scene& scene, std::int32_t object, std::int32_t sphere, float x, float y, float z, float radius);
void AddSfereLink(Scene& scene, std::int32_t object, std::int32_t sphere, std::int16_t mesh, std::int16_t i,
                  std::int16_t j);
// Rows x cols points, all 0. colour >= 0 is split into the flat colour; below, texture is the slot.
void EditObjMesh(Scene& scene, std::int32_t object, std::int32_t mesh, std::int16_t rows, std::int16_t cols,
                 std::int32_t colour, std::int16_t texture);
// i over Rows, j over Cols.
void EditObjMeshPt(Scene& scene, std::int32_t object, std::int32_t mesh, std::int32_t i, std::int32_t j, float x,
                   float y, float z, std::int32_t u, std::int32_t v);
// Keeps the points of every mesh as the undamaged copy for dents. Called once a model is complete.
void KeepUndamaged(Scene& scene, std::int32_t object);

// Polylines; below 1 point is RuntimeError 9.
std::int16_t MakePoly(Scene& scene, std::int32_t points, std::int32_t colour, std::uint8_t visible);
void EditPolyPt(Scene& scene, std::int32_t poly, std::int32_t point, float x, float y, float z);

// World sprites share the pixels of their picture.
std::int16_t MakeSprite3D(Scene& scene, const PicReference& picture, float x, float y, float z, float scale,
                          float alpha, std::uint8_t visible);
void KillSprite3D(Scene& scene, std::int32_t sprite);

// Screen records.
std::int16_t MakePic2D(Scene& scene, base::MessageSink& messages, float x, float y, std::int32_t width,
                       std::int32_t height, std::uint8_t visible);
void MovePic2D(Scene& scene, std::int32_t pic, float x, float y);
std::int16_t MakeLabel2D(Scene& scene, std::int16_t x, std::int16_t y, std::int32_t style, float scale,
                         std::int16_t tabWidth, base::Rgb colour, std::uint8_t visible, std::string_view text);
// No allocation once the text has been as long before.
void SetLabelText(Scene& scene, std::int32_t label, std::string_view text);
std::int16_t MakeRect2D(Scene& scene, std::int16_t x, std::int16_t y, std::int16_t w, std::int16_t h,
                        std::int32_t hidden, base::Rgb colour, std::uint8_t visible);
void SetRectW(Scene& scene, std::int32_t rect, std::int16_t value);

// Textures, by path (exact, case-sensitive). A new one takes the last free slot, else a new slot at the end; a bitmap
// that fails is reported and keeps its slot and path, and draws nothing.
std::int16_t LoadTexture(Scene& scene, base::MessageSink& messages, const base::Files& files, const std::string& path);
std::int16_t FindTexture(Scene& scene, base::MessageSink& messages, const base::Files& files, const std::string& path,
                         bool load);
void FreeTexture(Scene& scene, std::int32_t texture);
}
