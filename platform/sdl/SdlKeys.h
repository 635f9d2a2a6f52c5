// SPDX-License-Identifier: Zlib
// platform/sdl/SdlKeys.h: from SDL's keys to the virtual-key codes that Windows would give.
#pragma once
#include <SDL.h>

#include <cstdint>

namespace sdl
{
// By label for letters, digits and punctuation, by position for the rest. 0 for a key that has no code.
std::int16_t VirtualKey(const SDL_Keysym& key);

// The control character that a key press types (Enter 13, Backspace 8, Tab 9, Escape 27, Ctrl+A … Ctrl+Z 1 to 26);
// 0 where it types none. All other characters come as text.
std::uint8_t ControlCharacter(const SDL_Keysym& key);
}
