// render/GroundTexture.h: loading the ground picture and its blurred copy.
#pragma once
#include "render/Scene.h"

namespace render
{
// Reports its own errors; a picture that fails leaves no ground. blurred: also makes the copy of the filters.
void LoadGround(base::MessageSink& messages, const base::Files& files, const std::string& path, float scale,
                bool blurred, Ground& ground);
// Each texel of the copy: the sum of its eight neighbours shifted right by 3; beyond the border, the opposite side.
void BlurGround(Ground& ground);
}
