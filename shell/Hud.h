// SPDX-License-Identifier: Zlib
// shell/Hud.h: the read-outs of the head-up display, refreshed once a frame. Nothing here allocates. An element or a
// car that does not exist is RuntimeError 9.
#pragma once
#include "render/Scene.h"
#include "shell/Game.h"

#include <string_view>

namespace shell
{
// The car that the camera follows.
const world::Player& ViewedPlayer(const Game& game);

void ShowFrameRate(Game& game);
void ShowSpeed(Game& game);
void ShowGear(Game& game);
void ShowPlace(Game& game);
void ShowLap(Game& game);
void PlaceLapsCaption(Game& game);
void ShowCountdown(Game& game);
void ShowDamage(Game& game);
void ShowDebug(Game& game);
void FadeNotice(Game& game);
}
