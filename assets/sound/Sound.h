// assets/sound/Sound.h: the engine sample and the music.
#pragma once
#include <string>

namespace assets::sound
{
// Writes data/sounds and soundtracks. Throws std::runtime_error when a file cannot be made.
void BuildSound(const std::string& root);
}
