// SPDX-License-Identifier: Zlib
// assets/sound/score/Pattern.h: the text of patterns and melodies, taken apart.
#pragma once
#include "assets/sound/score/Line.h"

#include <string>
#include <vector>

namespace assets::sound
{
// The pieces between the bars, without empty ones.
std::vector<std::string> Bars(const std::string& text);
std::vector<std::string> Words(const std::string& text);

struct Step
{
    char Sign;
    int At, Steps; // sixteenths from the beginning; how long it sounds
};
// The sounding steps of a pattern, repeated over `bars` bars of `barSteps` sixteenths.
std::vector<Step> Steps(const std::string& pattern, int bars, int barSteps);
// 0 for a sign that is no stroke.
double ForceOf(char sign);

// Notes from beat 0; every bar must be full.
Line ParseMelody(const std::string& text, double barBeats);
}
