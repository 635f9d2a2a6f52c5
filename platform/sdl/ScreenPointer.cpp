#include "platform/sdl/ScreenPointer.h"

#include <SDL.h>
#include <SDL_syswm.h>

namespace platform
{
namespace
{
#if defined(SDL_VIDEO_DRIVER_X11)
bool AskServer(SDL_Window* window, Point& position)
{
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    if (SDL_GetWindowWMInfo(window, &info) != SDL_TRUE || info.subsystem != SDL_SYSWM_X11)
        return false;
    Display* display = info.info.x11.display;
    ::Window root = 0, child = 0;
    int x = 0, y = 0;
    unsigned int buttons = 0;
    return XQueryPointer(display, DefaultRootWindow(display), &root, &child, &position.X, &position.Y, &x, &y,
                         &buttons) != 0;
}
#else
bool AskServer(SDL_Window*, Point&)
{
    return false;
}
#endif
}

Point ScreenPointer(SDL_Window* window)
{
    Point position;
    if (!AskServer(window, position))
        SDL_GetGlobalMouseState(&position.X, &position.Y);
    return position;
}
}
