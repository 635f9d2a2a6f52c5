// SPDX-License-Identifier: Zlib
// platform/win32/WinWaveOut.h: the wave device on the system's wave-out calls in window-callback mode: a buffer that is
// done comes back as MM_WOM_DONE of a window, whose procedure is replaced to catch it.
#pragma once
#include "platform/WaveDevice.h"
#include "platform/win32/EventQueue.h"

#include <windows.h>

#include <mmsystem.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace win32
{
class WinWaveOut final : public platform::WaveDevice
{
public:
    // All three outlive it. The window, any of this thread, has its procedure replaced by Notify and gets it back at
    // the end.
    WinWaveOut(HWND window, EventQueue& queue, platform::WaveEvents& events)
        : Window(window), Queue(queue), Events(events)
    {
    }
    ~WinWaveOut() override;
    WinWaveOut(const WinWaveOut&) = delete;
    WinWaveOut& operator=(const WinWaveOut&) = delete;

    bool Notify(bool on) override;

private:
    // The system keeps addresses of both until the buffer has come back.
    struct Slot
    {
        WAVEHDR Header = {};
        std::vector<char> Bytes; // a copy: the caller may fill its own again at any time
    };

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second);
    void Returned(LPARAM header);
    std::int32_t OpenDevice(const platform::WaveFormat& format) override;
    SlotState StateOf(std::size_t slot) const override;
    std::int32_t PrepareSlot(std::size_t slot, std::span<const std::uint8_t> data) override;
    std::int32_t WriteSlot(std::size_t slot, std::span<const std::uint8_t> data) override;
    std::int32_t UnprepareSlot(std::size_t slot) override;
    std::int32_t ResetDevice() override;
    std::int32_t CloseDevice() override;
    void Abandon(); // closes the device, whatever state it is in
    void Forget();  // that there was a device

    HWND Window;
    EventQueue& Queue;
    platform::WaveEvents& Events;
    WNDPROC Previous = nullptr; // while the window's procedure is replaced
    HWAVEOUT Device = nullptr;
    std::array<Slot, platform::MostWaveBuffers> Slots;
};
}
