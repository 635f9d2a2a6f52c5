// SPDX-License-Identifier: Zlib
// Keys and mouse of a window: from the system's messages to the game's events.
#include "platform/win32/WinKeys.h"
#include "platform/win32/WinWindow.h"

#include <windowsx.h>

namespace win32
{
namespace
{
constexpr int Left = 1, Right = 2, Middle = 4;
constexpr platform::Point Outside = {-1, -1};

int ButtonsOf(WPARAM keys)
{
    return ((keys & MK_LBUTTON) != 0 ? Left : 0) + ((keys & MK_RBUTTON) != 0 ? Right : 0) +
           ((keys & MK_MBUTTON) != 0 ? Middle : 0);
}
}

WinWindow::Answer WinWindow::HandleKey(UINT message, WPARAM first, LPARAM second)
{
    constexpr LPARAM AltDown = 1 << 29;
    switch (message)
    {
    case WM_CHAR:
        if (const std::uint8_t character = GameCharacter(first))
            Queue.KeyPress(character);
        return 0;
    case WM_SYSCHAR:
        return 0;
    case WM_SYSKEYDOWN:
        // Alt and F10 are keys like any other; only Alt+F4 means what it always means.
        if (first == VK_F4 && (second & AltDown) != 0)
            return {};
        PostKey(message, first);
        return 0;
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_SYSKEYUP:
        PostKey(message, first);
        return 0;
    case WM_KILLFOCUS:
        ReleaseKeys();
        return {};
    default:
        return {};
    }
}

void WinWindow::PostKey(UINT message, WPARAM first)
{
    const std::int16_t code = GameKey(first, VkKeyScanW(L'\\'));
    const bool down = message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
    KeysHeld.set(static_cast<std::size_t>(code), down);
    down ? Queue.KeyDown(code) : Queue.KeyUp(code);
}

// A window without the focus receives no keys: those that are held go up now.
void WinWindow::ReleaseKeys()
{
    for (std::size_t code = 0; code < KeysHeld.size(); ++code)
        if (KeysHeld.test(code))
            Queue.KeyUp(static_cast<std::int16_t>(code));
    KeysHeld.reset();
}

WinWindow::Answer WinWindow::HandleMouse(UINT message, WPARAM first, LPARAM second)
{
    const platform::Point at = {GET_X_LPARAM(second), GET_Y_LPARAM(second)};
    switch (message)
    {
    case WM_LBUTTONDOWN:
        ButtonDown(Left, at);
        return 0;
    case WM_LBUTTONUP:
        ButtonUp(Left, at);
        return 0;
    case WM_RBUTTONDOWN:
        ButtonDown(Right, at);
        return 0;
    case WM_RBUTTONUP:
        ButtonUp(Right, at);
        return 0;
    case WM_MBUTTONDOWN:
        ButtonDown(Middle, at);
        return 0;
    case WM_MBUTTONUP:
        ButtonUp(Middle, at);
        return 0;
    case WM_MOUSEMOVE:
        TrackLeave();
        Queue.MouseMove(ButtonsOf(first), at);
        return 0;
    case WM_MOUSELEAVE:
        TracksLeave = false;
        Queue.MouseMove(0, Outside);
        return 0;
    case WM_CAPTURECHANGED:
        ReleaseButtons();
        return 0;
    case WM_SETCURSOR:
        if (LOWORD(second) != HTCLIENT && Boxes == 0)
            return {};
        ApplyCursor();
        return TRUE;
    default:
        return {};
    }
}

// Has the system send WM_MOUSELEAVE when the mouse goes: nothing of the window lies under it then.
void WinWindow::TrackLeave()
{
    if (TracksLeave)
        return;
    TRACKMOUSEEVENT wish = {};
    wish.cbSize = sizeof wish;
    wish.dwFlags = TME_LEAVE;
    wish.hwndTrack = TheHandle;
    TracksLeave = TrackMouseEvent(&wish) != 0;
}

// The mouse belongs to the window while a button is held.
void WinWindow::ButtonDown(int button, platform::Point at)
{
    if (ButtonsHeld == 0)
        SetCapture(TheHandle);
    ButtonsHeld |= button;
    Queue.MouseDown(button, at);
}

void WinWindow::ButtonUp(int button, platform::Point at)
{
    ButtonsHeld &= ~button;
    Queue.MouseUp(button, at);
    if (ButtonsHeld == 0)
        ReleaseCapture();
}

// Something else has taken the mouse, a message box perhaps: what was pressed goes up where it does nothing.
void WinWindow::ReleaseButtons()
{
    for (const int button : {Left, Right, Middle})
        if ((ButtonsHeld & button) != 0)
            Queue.MouseUp(button, Outside);
    ButtonsHeld = 0;
}
}
