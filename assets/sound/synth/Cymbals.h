// SPDX-License-Identifier: Zlib
// assets/sound/synth/Cymbals.h: metal, shakers, and the noises that lead from one part of a piece to the next.
#pragma once
#include "assets/sound/synth/Tone.h"

namespace assets::sound
{
// Sounds until `ring` has passed or the next one closes it: the tone's length.
Instrument Hat(double ring);
Instrument Crash(double ring);
// A ping with a wash below it.
Instrument Ride();
Instrument Shaker();
Instrument Tambourine();
Instrument Cowbell();

// Noise that rises for the whole length of the tone.
Instrument Riser();
// A cymbal played backwards: it ends where the tone ends.
Instrument Swell();
// A deep drop, with the dust that it raises.
Instrument Impact();
}
