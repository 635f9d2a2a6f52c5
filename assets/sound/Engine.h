// SPDX-License-Identifier: Zlib
// assets/sound/Engine.h: the running engine, as one loop.
#pragma once
#include <cstdint>
#include <vector>

namespace assets::sound
{
// 1024 unsigned 8-bit samples (128 is silence) that follow each other in a circle. The game plays them at 11025 Hz with
// a step of about 0.2 to 0.6 samples, which makes 69 to 200 firings a second.
std::vector<std::uint8_t> EngineLoop();
}
