// SPDX-License-Identifier: Zlib
// shell/Views.h: the camera views. A placement never sets the camera: each value becomes value + (target - value) / f,
// so that every switch glides. World units and radians; once a game tick.
#pragma once
#include "render/Scene.h"
#include "world/Race.h"

namespace shell
{
// Smoothing of the yaw, the short way round.
void TurnYaw(render::Camera& camera, double target, double factor);

// The placement of the camera's view for the car it follows, then the navigation arrow. Views outside 0 to 7 do
// nothing; neither does a followed car that does not exist.
void PlaceView(render::Camera& camera, render::Scene& scene, const world::Race& race, const world::HeldKeys& keys,
               std::int16_t arrowObj);
}
