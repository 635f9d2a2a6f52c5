// SPDX-License-Identifier: Zlib
// assets/sound/Sound.h: the engine sample and the music. The folders below share one namespace: every line of a score
// names instruments, effects and notations together.
#pragma once
#include <string>

namespace assets::sound
{
// Writes data/sounds and soundtracks. Throws std::runtime_error when a file cannot be made.
void BuildSound(const std::string& root);
}
