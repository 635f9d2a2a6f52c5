// assets/track/Sky.h: the panorama behind the world.
#pragma once
#include <string>

namespace assets::track
{
// 820 pixels wide, one full turn; rows span the whole screen, the horizon at 59 per cent.
void WriteSky(const std::string& path);
}
