// platform/win32/WinWindow.h: one borderless window of the system. Its procedure only notes what it is told (see
// EventQueue.h); the platform's message loop delivers it.
#pragma once
#include "platform/win32/EventQueue.h"

#include <windows.h>

#include <bitset>
#include <functional>

namespace platform
{
class WinPlatform;

class WinWindow final : public Window
{
public:
    // Registers with the platform, which delivers its events. RuntimeError 7 where the system gives no window.
    WinWindow(WinPlatform& platform, WindowEvents& events, Size size);
    ~WinWindow() override;
    WinWindow(const WinWindow&) = delete;
    WinWindow& operator=(const WinWindow&) = delete;

    HWND Handle() const { return TheHandle; }
    EventQueue& Events() { return Queue; }
    // Who hears of MM_MCINOTIFY.
    void OnMediaNotify(std::function<void(WPARAM, LPARAM)> receiver) { MediaNotify = std::move(receiver); }
    // Delivers what waits. A mouse event that a message of this very moment has brought knows where the cursor was
    // then.
    void Deliver();

    void ShowMessage(base::Icon icon, const std::string& title, const std::string& text) override;
    void Show(bool visible) override;
    void SetTitle(const std::string& title) override;
    Size ClientSize() override { return Client; }
    void SetClientSize(Size size) override;
    Point Position() override { return Place; }
    void Move(Point position) override;
    void SetFullScreen(bool on) override;
    void ShowCursor(bool visible) override;
    Point CursorPosition() override;
    void Present(int width, int height, std::span<const std::uint8_t> bits) override;
    std::string ClipboardText() override;
    void SetClipboardText(const std::string& text) override;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept;
    static void RegisterWindowClass();
    LRESULT Handle(UINT message, WPARAM first, LPARAM second);
    bool HandleKey(UINT message, WPARAM first, LPARAM second); // false: the system should see it as well
    bool HandleMouse(UINT message, WPARAM first, LPARAM second);
    void ButtonDown(int button, Point at);
    void ButtonUp(int button, Point at);
    void AskForLeave();
    void LetGoOfKeys();
    void LetGoOfButtons();
    void Measure(); // after a move or a new size
    void CoverDisplay();
    void ApplyCursor() const;

    WinPlatform& ThePlatform;
    EventQueue Queue;
    HWND TheHandle = nullptr;
    HDC Canvas = nullptr; // of the window, its own for life
    Size Client;          // kept while minimised
    Point Place;          // likewise
    RECT Restored = {};   // place and size to come back to from full screen
    bool FullScreen = false;
    bool CursorShown = true;
    int Boxes = 0; // message boxes that are open
    int ButtonsHeld = 0;
    bool LeaveAsked = false;
    bool PointerKnown = false; // while events are delivered that the last message has brought
    std::bitset<256> KeysHeld; // by the codes told
    std::function<void(WPARAM, LPARAM)> MediaNotify;
};
}
