// SPDX-License-Identifier: Zlib
// assets/sound/Tracks.h: the pieces of music that ship. Each is its score and its recording in one file of tracks/; a
// call plays the whole piece. Throws std::runtime_error where a score is wrong.
#pragma once
#include "assets/sound/synth/Stereo.h"

namespace assets::sound
{
// A drive into the evening: synthesisers of another decade.
Stereo LuciSulLago();
// A funk of high summer: guitars, mandolin, brass.
Stereo LimonataSulMolo();
// Hairpins: fast, electric guitars over a sequencer.
Stereo Tornanti();
// A tarantella with the drums of another century: mandolins, accordion, trumpet.
Stereo TarantellaATavoletta();
// A bossa nova for the last light: whistle, nylon strings, a soft horn.
Stereo OraDorata();
}
