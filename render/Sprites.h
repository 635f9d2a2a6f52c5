// render/Sprites.h: pictures that stand in the world and face the camera: smoke, fire, splashes.
#pragma once
#include "render/Scene.h"
#include "render/Screen.h"

namespace render
{
inline constexpr double WidestSprite = 100.0; // pixels on the screen

// Centred on the projected position, tested against the depth buffer, which it does not write. Black texels are
// transparent; Alpha 1 copies, any other blends.
void DrawSprite3D(const Camera& camera, Screen& screen, const Sprite3D& sprite);
// The same pixel by pixel. The judge of the fast one.
void DrawSprite3DPlain(const Camera& camera, Screen& screen, const Sprite3D& sprite);
}
