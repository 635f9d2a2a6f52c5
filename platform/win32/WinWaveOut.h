// platform/win32/WinWaveOut.h: the wave device on the system's wave-out calls in window-callback mode: a buffer that is
// done comes back as MM_WOM_DONE of a window, whose procedure is replaced to catch it.
#pragma once
#include "platform/Sound.h"
#include "platform/win32/EventQueue.h"

#include <windows.h>

#include <mmsystem.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace platform
{
class WinWaveOut final : public WaveOut
{
public:
    // All three outlive it. The window, any of this thread, has its procedure replaced by Notify and gets it back at
    // the end.
    WinWaveOut(HWND window, EventQueue& queue, WaveEvents& events) : Window(window), Queue(queue), Events(events) {}
    ~WinWaveOut() override;
    WinWaveOut(const WinWaveOut&) = delete;
    WinWaveOut& operator=(const WinWaveOut&) = delete;

    bool Notify(bool on) override;
    std::int32_t Open(WaveHandle& handle, const WaveFormat& format) override;
    std::int32_t PrepareHeader(WaveHandle handle, const WaveHeader& header) override;
    std::int32_t Write(WaveHandle handle, const WaveHeader& header) override;
    std::int32_t Reset(WaveHandle handle) override;
    std::int32_t UnprepareHeader(WaveHandle handle, const WaveHeader& header) override;
    std::int32_t Close(WaveHandle handle) override;

private:
    // The system keeps addresses of both until the buffer has come back.
    struct Slot
    {
        WAVEHDR Header = {};
        std::vector<char> Bytes; // a copy: the caller may fill its own again at any time
    };

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second);
    void Returned(LPARAM header);
    bool IsOpen(WaveHandle handle) const { return handle != NoWave && handle == Opened; }
    std::int32_t Check(WaveHandle handle, const WaveHeader& header) const;
    MMRESULT Unprepare(Slot& slot); // nothing where it is not prepared
    void CloseDevice();             // whatever state it is in
    void Forget();                  // that there was a device
    Slot& SlotOf(const WaveHeader& header) { return Slots[static_cast<std::size_t>(header.User)]; }

    HWND Window;
    EventQueue& Queue;
    WaveEvents& Events;
    WNDPROC Previous = nullptr; // while the window's procedure is replaced
    HWAVEOUT Device = nullptr;
    WaveHandle Opened = NoWave, Last = 0;
    std::array<Slot, MostWaveBuffers> Slots;
};
}
