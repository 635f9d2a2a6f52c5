// SPDX-License-Identifier: Zlib
// assets/sound/synth/Loudness.h: how loud a sound is heard, by the measure that broadcasters use (ITU-R BS.1770).
#pragma once
#include "assets/sound/synth/Stereo.h"

namespace assets::sound
{
// LUFS of all passages that are not much quieter than the rest; -100 for silence.
double Loudness(const Stereo& sound);
}
