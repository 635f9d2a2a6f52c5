// SPDX-License-Identifier: Zlib
#include "platform/win32/WinWindow.h"

#include "base/RuntimeError.h"
#include "platform/win32/Clipboard.h"
#include "platform/win32/Resources.h"
#include "platform/win32/WinText.h"

#include <windowsx.h>

#include <algorithm>

namespace win32
{
namespace
{
constexpr const wchar_t* ClassName = L"VelkarWindow";
constexpr DWORD Style = WS_POPUP | WS_SYSMENU | WS_MINIMIZEBOX; // the last two for its button on the task bar
constexpr DWORD ExtendedStyle = WS_EX_APPWINDOW;

UINT BoxStyle(base::Icon icon)
{
    switch (icon)
    {
    case base::Icon::Critical:
        return MB_OK | MB_ICONERROR;
    case base::Icon::Exclamation:
        return MB_OK | MB_ICONWARNING;
    default:
        return MB_OK | MB_ICONINFORMATION;
    }
}

HICON LoadOwnIcon(int width, int height)
{
    return static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(VELKAR_ICON), IMAGE_ICON,
                                         GetSystemMetrics(width), GetSystemMetrics(height), LR_SHARED));
}

platform::Point Centred(platform::Size size)
{
    return {(GetSystemMetrics(SM_CXSCREEN) - size.Width) / 2, (GetSystemMetrics(SM_CYSCREEN) - size.Height) / 2};
}
}

void WinWindow::RegisterWindowClass()
{
    WNDCLASSEXW wanted = {};
    wanted.cbSize = sizeof wanted;
    wanted.style = CS_OWNDC;
    wanted.lpfnWndProc = &WinWindow::Procedure;
    wanted.hInstance = GetModuleHandleW(nullptr);
    wanted.hIcon = LoadOwnIcon(SM_CXICON, SM_CYICON);
    wanted.hIconSm = LoadOwnIcon(SM_CXSMICON, SM_CYSMICON);
    wanted.lpszClassName = ClassName;
    RegisterClassExW(&wanted); // the second window finds it there
}

WinWindow::WinWindow(EventQueue& queue, platform::WindowEvents& events, platform::Size size)
    : Queue(queue, events), Client(size), Place(Centred(size))
{
    RegisterWindowClass();
    TheHandle = CreateWindowExW(ExtendedStyle, ClassName, L"Velkar", Style, Place.X, Place.Y, size.Width, size.Height,
                                nullptr, nullptr, GetModuleHandleW(nullptr), this);
    Canvas = TheHandle == nullptr ? nullptr : GetDC(TheHandle);
    if (Canvas == nullptr)
    {
        if (TheHandle != nullptr)
            DestroyWindow(TheHandle);
        throw base::RuntimeError(base::ErrorMemory);
    }
    SetStretchBltMode(Canvas, COLORONCOLOR); // the nearest pixel
}

WinWindow::~WinWindow()
{
    SetWindowLongPtrW(TheHandle, GWLP_USERDATA, 0);
    DestroyWindow(TheHandle);
}

LRESULT CALLBACK WinWindow::Procedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept
{
    if (message == WM_NCCREATE)
    {
        auto* made = static_cast<WinWindow*>(reinterpret_cast<CREATESTRUCTW*>(second)->lpCreateParams);
        made->TheHandle = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made));
    }
    auto* self = reinterpret_cast<WinWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return self != nullptr ? self->Handle(message, first, second) : DefWindowProcW(window, message, first, second);
}

LRESULT WinWindow::Handle(UINT message, WPARAM first, LPARAM second)
{
    using Handler = Answer (WinWindow::*)(UINT, WPARAM, LPARAM);
    constexpr Handler Handlers[] = {&WinWindow::HandleKey, &WinWindow::HandleMouse, &WinWindow::HandleView,
                                    &WinWindow::HandleCommand};
    for (const Handler handler : Handlers)
        if (const Answer answer = (this->*handler)(message, first, second))
            return *answer;
    return DefWindowProcW(TheHandle, message, first, second);
}

WinWindow::Answer WinWindow::HandleView(UINT message, WPARAM, LPARAM)
{
    switch (message)
    {
    case WM_MOVE:
    case WM_SIZE:
        Measure();
        return 0;
    case WM_DISPLAYCHANGE:
        if (FullScreen)
            CoverDisplay();
        return {};
    case WM_ERASEBKGND:
        return 1; // the picture covers everything
    case WM_PAINT:
        ValidateRect(TheHandle, nullptr);
        Queue.Paint();
        return 0;
    default:
        return {};
    }
}

WinWindow::Answer WinWindow::HandleCommand(UINT message, WPARAM first, LPARAM)
{
    if (message == WM_CLOSE)
    {
        Queue.CloseAsked();
        return 0;
    }
    if (message != WM_SYSCOMMAND)
        return {};
    // The menu's key is a key of the game, and no loop of the system's should hold the game up.
    switch (first & 0xFFF0)
    {
    case SC_KEYMENU:
    case SC_MOUSEMENU:
    case SC_MOVE:
    case SC_SIZE:
    case SC_MAXIMIZE:
    case SC_SCREENSAVE:
    case SC_MONITORPOWER:
        return 0;
    default:
        return {};
    }
}

void WinWindow::Measure()
{
    if (IsIconic(TheHandle))
        return;
    RECT client = {};
    POINT corner = {};
    GetClientRect(TheHandle, &client);
    ClientToScreen(TheHandle, &corner);
    Place = {corner.x, corner.y};
    const platform::Size now = {client.right, client.bottom};
    if (now.Width == Client.Width && now.Height == Client.Height)
        return;
    Client = now;
    Queue.Resized();
}

void WinWindow::ShowMessage(base::Icon icon, const std::string& title, const std::string& text)
{
    ++Boxes;
    const HWND owner = IsWindowVisible(TheHandle) ? TheHandle : GetActiveWindow();
    MessageBoxW(owner, ToWide(text).c_str(), ToWide(title).c_str(), BoxStyle(icon) | MB_SETFOREGROUND);
    --Boxes;
    ApplyCursor();
}

void WinWindow::Show(bool visible)
{
    ShowWindow(TheHandle, visible ? SW_SHOW : SW_HIDE);
    if (visible)
        SetForegroundWindow(TheHandle);
}

void WinWindow::SetTitle(const std::string& title)
{
    SetWindowTextW(TheHandle, ToWide(title).c_str());
}

void WinWindow::SetClientSize(platform::Size size)
{
    SetWindowPos(TheHandle, nullptr, 0, 0, size.Width, size.Height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void WinWindow::Move(platform::Point position)
{
    SetWindowPos(TheHandle, nullptr, position.X, position.Y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void WinWindow::SetFullScreen(bool on)
{
    if (on == FullScreen)
        return;
    FullScreen = on;
    if (on)
    {
        Restored = {Place.X, Place.Y, Place.X + Client.Width, Place.Y + Client.Height};
        CoverDisplay();
    }
    else
        SetWindowPos(TheHandle, nullptr, Restored.left, Restored.top, Restored.right - Restored.left,
                     Restored.bottom - Restored.top, SWP_NOZORDER);
}

void WinWindow::CoverDisplay()
{
    MONITORINFO display = {};
    display.cbSize = sizeof display;
    if (!GetMonitorInfoW(MonitorFromWindow(TheHandle, MONITOR_DEFAULTTONEAREST), &display))
        return;
    const RECT& all = display.rcMonitor;
    SetWindowPos(TheHandle, HWND_TOP, all.left, all.top, all.right - all.left, all.bottom - all.top, 0);
}

void WinWindow::ShowCursor(bool visible)
{
    CursorShown = visible;
    POINT at = {};
    if (GetCursorPos(&at) && (WindowFromPoint(at) == TheHandle || GetCapture() == TheHandle))
        ApplyCursor();
}

void WinWindow::ApplyCursor() const
{
    SetCursor(CursorShown || Boxes > 0 ? LoadCursorA(nullptr, IDC_ARROW) : nullptr);
}

// A button that goes down while the hand moves on: what counts is where the cursor was then.
platform::Point WinWindow::CursorPosition()
{
    if (Queue.IsDelivering())
    {
        const auto at = static_cast<LPARAM>(GetMessagePos());
        return {GET_X_LPARAM(at), GET_Y_LPARAM(at)};
    }
    POINT at = {};
    GetCursorPos(&at);
    return {at.x, at.y};
}

void WinWindow::Present(const base::ConstSurface& picture)
{
    if (!platform::IsPresentable(picture) || IsIconic(TheHandle))
        return;
    BITMAPINFO description = {};
    static_assert(sizeof description.bmiHeader == 40);
    description.bmiHeader.biSize = sizeof description.bmiHeader;
    description.bmiHeader.biWidth = picture.Width;
    description.bmiHeader.biHeight = picture.Height; // bottom-up
    description.bmiHeader.biPlanes = 1;
    description.bmiHeader.biBitCount = 8 * base::PixelBytes;
    description.bmiHeader.biCompression = BI_RGB;
    StretchDIBits(Canvas, 0, 0, Client.Width, Client.Height, 0, 0, picture.Width, picture.Height, picture.Bytes,
                  &description, DIB_RGB_COLORS, SRCCOPY);
}

std::string WinWindow::ClipboardText()
{
    return ReadClipboard(TheHandle);
}

void WinWindow::SetClipboardText(const std::string& text)
{
    WriteClipboard(TheHandle, text);
}
}
