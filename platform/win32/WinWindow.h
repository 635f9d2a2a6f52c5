// SPDX-License-Identifier: Zlib
// platform/win32/WinWindow.h: one borderless window of the system. Its procedure only posts events (see EventQueue.h);
// the platform's message loop delivers them.
#pragma once
#include "platform/win32/EventQueue.h"

#include <windows.h>

#include <bitset>
#include <optional>

namespace win32
{
class WinWindow final : public platform::Window
{
public:
    // Queue and receiver outlive it. RuntimeError 7 where the system gives no window.
    WinWindow(EventQueue& queue, platform::WindowEvents& events, platform::Size size);
    ~WinWindow() override;
    WinWindow(const WinWindow&) = delete;
    WinWindow& operator=(const WinWindow&) = delete;

    HWND Handle() const { return TheHandle; }

    void ShowMessage(base::Icon icon, const std::string& title, const std::string& text) override;
    void Show(bool visible) override;
    void SetTitle(const std::string& title) override;
    platform::Size ClientSize() override { return Client; }
    void SetClientSize(platform::Size size) override;
    platform::Point Position() override { return Place; }
    void Move(platform::Point position) override;
    void SetFullScreen(bool on) override;
    void ShowCursor(bool visible) override;
    // While events are delivered: where the cursor was at the message that has brought them.
    platform::Point CursorPosition() override;
    void Present(const base::ConstSurface& picture) override;
    std::string ClipboardText() override;
    void SetClipboardText(const std::string& text) override;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept;
    static void RegisterWindowClass();
    // What the procedure returns; empty: the message is not handled, or the system should see it as well.
    using Answer = std::optional<LRESULT>;
    LRESULT Handle(UINT message, WPARAM first, LPARAM second);
    Answer HandleKey(UINT message, WPARAM first, LPARAM second);
    Answer HandleMouse(UINT message, WPARAM first, LPARAM second);
    Answer HandleView(UINT message, WPARAM first, LPARAM second);    // size, place and painting
    Answer HandleCommand(UINT message, WPARAM first, LPARAM second); // closing and the window's menu
    void PostKey(UINT message, WPARAM first);
    void ButtonDown(int button, platform::Point at);
    void ButtonUp(int button, platform::Point at);
    void TrackLeave();
    void ReleaseKeys();
    void ReleaseButtons();
    void Measure(); // after a move or a new size
    void CoverDisplay();
    void ApplyCursor() const;

    QueuedWindowEvents Queue;
    HWND TheHandle = nullptr;
    HDC Canvas = nullptr;  // of the window, its own for life
    platform::Size Client; // kept while minimised
    platform::Point Place; // likewise
    RECT Restored = {};    // place and size to come back to from full screen
    bool FullScreen = false;
    bool CursorShown = true;
    int Boxes = 0; // message boxes that are open
    int ButtonsHeld = 0;
    bool TracksLeave = false;
    std::bitset<256> KeysHeld; // by the codes of the game
};
}
