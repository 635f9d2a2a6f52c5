// SPDX-License-Identifier: Zlib
// tests/support/WinDesktop.h: a real window with a message loop, and the sound devices whose events that delivers.
#pragma once
#include "platform/win32/WinMusic.h"
#include "platform/win32/WinWaveOut.h"
#include "tests/support/HeardEvents.h"

#include <array>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace support
{
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
    win32::EventQueue Queue;
    std::vector<UINT> Messages; // that the window's own procedure has received
    HWND Window = nullptr;
    std::unique_ptr<win32::WinWaveOut> Wave;
    std::unique_ptr<win32::WinMusic> Music;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second);
};
}
