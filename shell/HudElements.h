// SPDX-License-Identifier: Zlib
// shell/HudElements.h: the elements of the head-up display: made once, moved with every new resolution.
#pragma once
#include "render/Scene.h"
#include "shell/Game.h"

namespace shell
{
// Makes the sixteen elements in their order. All texts have room for what a tick writes into them.
void MakeHud(render::Scene& scene, base::MessageSink& messages, Hud& hud, std::int32_t width, std::int32_t height);
// Moves them to the anchors of a frame of that size.
void PlaceHud(render::Scene& scene, const Hud& hud, std::int32_t width, std::int32_t height);
}
