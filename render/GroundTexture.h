// SPDX-License-Identifier: Zlib
// render/GroundTexture.h: loading the ground picture and its blurred copy, which the linear filter mixes in far away.
#pragma once
#include "render/Scene.h"

namespace render
{
// Writes the whole record. scale: texels a world unit. blurred: also makes the copy; else there is none. Reports its
// own errors; a picture that fails leaves no ground.
void LoadGround(base::MessageSink& messages, const base::Files& files, const std::string& path, float scale,
                bool blurred, Ground& ground);
// Reads Sharp and writes GroundBlur, of the same size. Each texel of the copy is the sum of its eight neighbours
// shifted right by 3; a neighbour beyond the border is the one on the opposite side.
void BlurGround(Ground& ground);
}
