// SPDX-License-Identifier: Zlib
#include "platform/win32/MessageWindow.h"

#include <utility>

namespace win32
{
namespace
{
constexpr const wchar_t* ClassName = L"VelkarMessages";
}

MessageWindow::MessageWindow(Receiver receiver) : TheReceiver(std::move(receiver))
{
    WNDCLASSEXW wanted = {};
    wanted.cbSize = sizeof wanted;
    wanted.lpfnWndProc = &MessageWindow::Procedure;
    wanted.hInstance = GetModuleHandleW(nullptr);
    wanted.lpszClassName = ClassName;
    RegisterClassExW(&wanted); // the second window finds it there
    TheHandle = CreateWindowExW(0, ClassName, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, wanted.hInstance, nullptr);
    if (TheHandle != nullptr)
        SetWindowLongPtrW(TheHandle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

MessageWindow::~MessageWindow()
{
    if (TheHandle == nullptr)
        return;
    SetWindowLongPtrW(TheHandle, GWLP_USERDATA, 0);
    DestroyWindow(TheHandle);
}

LRESULT CALLBACK MessageWindow::Procedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept
{
    const auto* self = reinterpret_cast<MessageWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self != nullptr && self->TheReceiver)
        self->TheReceiver(message, first, second);
    return DefWindowProcW(window, message, first, second);
}
}
