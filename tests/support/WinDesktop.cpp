// SPDX-License-Identifier: Zlib
#include "tests/support/WinDesktop.h"

#include <chrono>

namespace support
{
namespace
{
constexpr const char* ClassName = "VelkarTestWindow";
}

WinDesktop::WinDesktop()
{
    WNDCLASSA description = {};
    description.lpfnWndProc = Procedure;
    description.hInstance = GetModuleHandleA(nullptr);
    description.lpszClassName = ClassName;
    RegisterClassA(&description);
    Window = CreateWindowExA(0, ClassName, "Velkar", WS_POPUP, 0, 0, 64, 64, nullptr, nullptr, description.hInstance,
                             nullptr);
    SetWindowLongPtrA(Window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    Wave = std::make_unique<win32::WinWaveOut>(Window, Queue, Heard);
    Music = std::make_unique<win32::WinMusic>(Queue, Heard);
}

WinDesktop::~WinDesktop()
{
    Music.reset();
    Wave.reset();
    DestroyWindow(Window);
    UnregisterClassA(ClassName, GetModuleHandleA(nullptr));
}

LRESULT CALLBACK WinDesktop::Procedure(HWND window, UINT message, WPARAM first, LPARAM second)
{
    auto* self = reinterpret_cast<WinDesktop*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (self != nullptr)
        self->Messages.push_back(message);
    return DefWindowProcA(window, message, first, second);
}

void WinDesktop::Pump()
{
    for (MSG message; PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE);)
    {
        DispatchMessageA(&message);
        Queue.Deliver();
    }
}

void WinDesktop::Wait(unsigned milliseconds)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    while (std::chrono::steady_clock::now() < end)
    {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
        Pump();
    }
}

bool WinDesktop::Await(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!condition())
    {
        if (std::chrono::steady_clock::now() > end)
            return false;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
        Pump();
    }
    return true;
}
}
