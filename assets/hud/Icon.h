// SPDX-License-Identifier: Zlib
// assets/hud/Icon.h: the program's icon on the Windows desktop.
#pragma once
#include <string>

namespace assets::hud
{
// 16, 32, 48 and 256 pixels, each drawn for its size, 32-bit with coverage.
void WriteIcon(const std::string& path);
}
