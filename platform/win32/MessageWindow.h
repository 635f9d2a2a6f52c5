// SPDX-License-Identifier: Zlib
// platform/win32/MessageWindow.h: a window that nobody sees: an address for messages to the thread that makes it, as
// devices and timers of the system need one.
#pragma once
#include <windows.h>

#include <functional>

namespace win32
{
class MessageWindow
{
public:
    using Receiver = std::function<void(UINT message, WPARAM first, LPARAM second)>;

    // `receiver` is called for every message, on the thread of the window, from inside that thread's message loop.
    explicit MessageWindow(Receiver receiver = {});
    ~MessageWindow(); // on its thread; messages that still wait for it arrive nowhere
    MessageWindow(const MessageWindow&) = delete;
    MessageWindow& operator=(const MessageWindow&) = delete;

    HWND Handle() const { return TheHandle; } // null where the system gives no window

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept;

    Receiver TheReceiver;
    HWND TheHandle = nullptr;
};
}
