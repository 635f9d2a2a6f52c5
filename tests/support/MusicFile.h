// SPDX-License-Identifier: Zlib
// tests/support/MusicFile.h: music to test with, made on the spot by FFmpeg's encoders.
#pragma once
#include <filesystem>

namespace support
{
struct Tone
{
    double Frequency = 440; // hertz
    double Seconds = 1;
    int Rate = 44100;
    int Channels = 2;
    double Level = 0.5; // of full scale
};

// Writes a sine: MP3 or Windows Media by the name's extension. False where FFmpeg does not do it.
bool WriteTone(const std::filesystem::path& file, const Tone& tone);
}
