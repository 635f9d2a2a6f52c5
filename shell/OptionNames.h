// shell/OptionNames.h: the names under which the video panel shows its cycling settings.
#pragma once
#include <cstdint>
#include <string>

namespace shell
{
std::string FilterName(std::int16_t txtFilter); // 0 to 2; any other: empty
std::string QualityName(float effQuality);      // each bound belongs to the lower name; above 1: empty

// What a click makes of them.
std::int16_t NextFilter(std::int16_t txtFilter);
float NextQuality(float effQuality); // above 1: unchanged
}
