// platform/sdl/ScreenPointer.h: where the mouse pointer is on the screen at this moment.
#pragma once
#include "platform/Platform.h"

struct SDL_Window;

namespace platform
{
// Pixels from the top left corner. Asked of the X server itself: while a button is held, SDL's own answer stands still
// on servers that keep the raw motion from it. Elsewhere SDL's answer.
Point ScreenPointer(SDL_Window* window);
}
