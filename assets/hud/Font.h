// SPDX-License-Identifier: Zlib
// assets/hud/Font.h: the bitmap font of the race display, one bitmap a code of the system code page. The glyphs
// are those of typeface/, fitted to whole pixels.
#pragma once
#include <string>

namespace assets::hud
{
// Writes FOLDER/33.bmp and so on: black ink on white, all 30 pixels high, baseline ink in rows 7 to 9 from the bottom.
void WriteFont(const std::string& folder);
}
