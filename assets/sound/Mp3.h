// SPDX-License-Identifier: Zlib
// assets/sound/Mp3.h: pieces as MP3 files. The only user of the encoder.
#pragma once
#include "assets/sound/synth/Stereo.h"

#include <string>

namespace assets::sound
{
struct Tags
{
    std::string Title, Artist, Album;
    int Number; // of the track
};

// 192 kbit/s joint stereo with an ID3v2 tag. Throws std::runtime_error when it cannot be encoded or written.
void WriteMp3(const std::string& path, const Stereo& sound, const Tags& tags);
}
