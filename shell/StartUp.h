// SPDX-License-Identifier: Zlib
// shell/StartUp.h: what start-up makes of an empty game, step by step, and what shut-down frees. The order of the steps
// is Form1's. Messages are shown as they arise.
#pragma once
#include "platform/Platform.h"
#include "shell/Game.h"

namespace shell
{
// Bands of the ground pass, texture filter and quality of the effects, by the number of processors.
void SetProcessorDefaults(Game& game, int processors);
// Pictures, sprites, the webcam's picture and how many webcams there are. False: the module failed, after its own box.
bool InitVideo(Game& game, platform::Platform& platform, base::MessageSink& messages);
// Camera and light, the models and the map, the display. What fails is reported and simply not there.
void Inizializza(Game& game, const base::Files& files, base::MessageSink& messages);
// Everything but the audio.
void FreeResources(Game& game, platform::Platform& platform);
}
