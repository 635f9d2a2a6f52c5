// tests/windows/WinDesktop.h: a real window with a message loop, and the sound devices that answer to it.
#pragma once
#include "platform/win32/WinMusic.h"
#include "platform/win32/WinWaveOut.h"

#include <array>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace support
{
struct HeardEvents final : platform::WindowEvents
{
    std::vector<std::int32_t> Done;
    std::vector<std::pair<std::uint32_t, std::int32_t>> Media;
    std::function<void(std::int32_t)> OnDone = [](std::int32_t) {};

    void KeyDown(std::int16_t) override {}
    void KeyUp(std::int16_t) override {}
    void KeyPress(std::uint8_t) override {}
    void MouseDown(int, platform::Point) override {}
    void MouseMove(int, platform::Point) override {}
    void MouseUp(int, platform::Point) override {}
    void Resized() override {}
    void Paint() override {}
    bool CloseAsked() override { return true; }
    void WaveDone(std::int32_t user) override
    {
        Done.push_back(user);
        OnDone(user);
    }
    void MediaDone(std::uint32_t number, std::int32_t code) override { Media.emplace_back(number, code); }
};

// The window is never shown.
class WinDesktop
{
public:
    WinDesktop();
    ~WinDesktop();
    WinDesktop(const WinDesktop&) = delete;
    WinDesktop& operator=(const WinDesktop&) = delete;

    void Pump();                                        // handles the messages that wait
    void Wait(unsigned milliseconds);                   // handles messages for so long
    bool Await(const std::function<bool()>& condition); // handles messages until it holds, 20 seconds at most

    HeardEvents Heard;
    std::vector<UINT> Messages; // that the window's own procedure has received
    HWND Window = nullptr;
    std::unique_ptr<platform::WinWaveOut> Wave;
    std::unique_ptr<platform::WinMusic> Music;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second);
};
}
