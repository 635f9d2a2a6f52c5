// SPDX-License-Identifier: Zlib
// platform/sdl/ScreenPointer.h: what an X server reports of the pointer and SDL does not pass on: where on the screen
// it was, and the motions that end at the same place of a window that has moved along.
#pragma once
#include "platform/Platform.h"

#include <SDL.h>

#include <optional>

namespace sdl
{
struct PointerEvent
{
    platform::Point Screen, Client;
    bool Moved = false; // otherwise a button went down or up
    int Buttons = 0;    // held during a motion, as in WindowEvents
};

// The server's own event behind an SDL_SYSWMEVENT, valid until the next event is fetched. Empty where it is of another
// window or not about the pointer, and on other systems.
std::optional<PointerEvent> ReadPointer(SDL_Window* window, const SDL_Event& event);
}
