// SPDX-License-Identifier: Zlib
// assets/track/Track.h: the lakeside circuit: ground, sky, buildings, trees, the map script and its lists.
#pragma once
#include <string>

namespace assets::track
{
// Writes data/maps/map_01, data/images/sky.bmp and data/models/world below `root`.
// Throws std::runtime_error when a file cannot be written.
void BuildTrack(const std::string& root);
}
