// SPDX-License-Identifier: Zlib
// platform/win32/WinKeys.h: from the keyboard's messages to the codes the game knows.
#pragma once
#include <cstdint>

namespace win32
{
// The virtual-key code, but that the key which types "\" by itself is 220 in every layout, and the one that is 220
// there has its code. `backslash`: what VkKeyScan gives for that character, -1 where the layout lacks it.
std::int16_t GameKey(std::uintptr_t virtualKey, std::int16_t backslash);

// A typed UTF-16 unit as a code of the system code page: "?" for what it lacks, 0 for what is no character.
std::uint8_t GameCharacter(std::uintptr_t unit);
}
