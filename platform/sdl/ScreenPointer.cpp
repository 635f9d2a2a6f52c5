// SPDX-License-Identifier: Zlib
#include "platform/sdl/ScreenPointer.h"

#include <SDL_syswm.h>

namespace sdl
{
#if defined(SDL_VIDEO_DRIVER_X11)
namespace
{
bool IsOf(SDL_Window* window, const XEvent& event)
{
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    return SDL_GetWindowWMInfo(window, &info) == SDL_TRUE && info.info.x11.window == event.xany.window;
}

int ButtonsHeld(unsigned int state)
{
    return ((state & Button1Mask) != 0 ? 1 : 0) + ((state & Button3Mask) != 0 ? 2 : 0) +
           ((state & Button2Mask) != 0 ? 4 : 0);
}
}

std::optional<PointerEvent> ReadPointer(SDL_Window* window, const SDL_Event& event)
{
    if (event.type != SDL_SYSWMEVENT || event.syswm.msg == nullptr || event.syswm.msg->subsystem != SDL_SYSWM_X11)
        return {};
    const XEvent& native = event.syswm.msg->msg.x11.event;
    const bool moved = native.type == MotionNotify;
    if ((!moved && native.type != ButtonPress && native.type != ButtonRelease) || !IsOf(window, native))
        return {};
    if (!moved)
        return PointerEvent{{native.xbutton.x_root, native.xbutton.y_root}, {native.xbutton.x, native.xbutton.y}};
    return PointerEvent{{native.xmotion.x_root, native.xmotion.y_root},
                        {native.xmotion.x, native.xmotion.y},
                        true,
                        ButtonsHeld(native.xmotion.state)};
}
#else
std::optional<PointerEvent> ReadPointer(SDL_Window*, const SDL_Event&)
{
    return {};
}
#endif
}
