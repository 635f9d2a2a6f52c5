// SPDX-License-Identifier: Zlib
// render/Sprites.h: pictures that stand in the world and face the camera: smoke, fire, splashes.
#pragma once
#include "render/Scene.h"
#include "render/Screen.h"

namespace render
{
// Pixels on the screen. A sprite that would be wider is drawn smaller, whatever its scale.
inline constexpr double WidestSprite = 100.0;

// Centred on the projected position; drawn where its depth lies beyond NearZ and within FarZ and, pixel by pixel, is
// strictly less than the depth cell, which it does not write. Black texels are transparent; Alpha 1 copies, any other
// mixes. Reads the depth buffer, writes the frame. Numbers that are none draw nothing.
void DrawSprite3D(const Camera& camera, Screen& screen, const Sprite3D& sprite);
// The same pixels straight from their definition; the fast form must give the same bytes.
void DrawSprite3DPlain(const Camera& camera, Screen& screen, const Sprite3D& sprite);
}
