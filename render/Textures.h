// SPDX-License-Identifier: Zlib
// render/Textures.h: the list of textures, by path (exact, case-sensitive): a file is read once, however many meshes
// name it.
#pragma once
#include "base/Files.h"
#include "base/Trapped.h"
#include "render/Scene.h"

#include <string>

namespace render
{
// The slot of the path's texture; one that was not there is loaded into the last free slot, else into a new one. A
// bitmap that fails is reported and keeps its slot and path, and draws nothing. RuntimeError 6 beyond the 16-bit index,
// 7 above the scene's limit.
std::int16_t LoadTexture(Scene& scene, base::MessageSink& messages, const base::Files& files, const std::string& path);
// The same; without `load`, -1 for a path that is not there.
std::int16_t FindTexture(Scene& scene, base::MessageSink& messages, const base::Files& files, const std::string& path,
                         bool load);
// Frees the slot and its pixels; a free one stays as it is. RuntimeError 9 where there is no such slot.
void FreeTexture(Scene& scene, std::int32_t texture);
}
