#include "platform/win32/WinWaveOut.h"

#include <algorithm>
#include <utility>

namespace platform
{
namespace
{
constexpr const char* OwnerProperty = "VelkarWaveOut"; // of the window: whose Procedure it has

constexpr UINT HeaderBytes = sizeof(WAVEHDR);

WAVEFORMATEX SystemFormat(const WaveFormat& format)
{
    const std::int32_t frameBytes = format.Channels * format.BitsPerSample / 8;
    WAVEFORMATEX system = {};
    system.wFormatTag = WAVE_FORMAT_PCM;
    system.nChannels = static_cast<WORD>(format.Channels);
    system.nSamplesPerSec = static_cast<DWORD>(format.SamplesPerSecond);
    system.nAvgBytesPerSec = static_cast<DWORD>(format.SamplesPerSecond * frameBytes);
    system.nBlockAlign = static_cast<WORD>(frameBytes);
    system.wBitsPerSample = static_cast<WORD>(format.BitsPerSample);
    return system;
}

std::int32_t CodeOf(MMRESULT result)
{
    return static_cast<std::int32_t>(result);
}

bool IsQueued(const WAVEHDR& header)
{
    return (header.dwFlags & WHDR_INQUEUE) != 0;
}
}

WinWaveOut::~WinWaveOut()
{
    CloseDevice();
    Notify(false);
    Queue.Drop(this);
}

// The window's procedure is replaced once and then only given back: what comes with it switched off has no listener.
bool WinWaveOut::Notify(bool on)
{
    if (on == (Previous != nullptr))
        return true;
    if (!on)
    {
        SetWindowLongPtrA(Window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(std::exchange(Previous, nullptr)));
        RemovePropA(Window, OwnerProperty);
        return true;
    }
    if (!SetPropA(Window, OwnerProperty, this))
        return false;
    // The new procedure is called before this returns where another thread sends: the property is there already.
    Previous = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(Window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&WinWaveOut::Procedure)));
    if (Previous == nullptr)
        RemovePropA(Window, OwnerProperty);
    return Previous != nullptr;
}

LRESULT CALLBACK WinWaveOut::Procedure(HWND window, UINT message, WPARAM first, LPARAM second)
{
    auto* self = static_cast<WinWaveOut*>(GetPropA(window, OwnerProperty));
    if (self == nullptr || self->Previous == nullptr)
        return DefWindowProcA(window, message, first, second);
    const WNDPROC previous = self->Previous;
    if (message == MM_WOM_DONE)
        self->Returned(second);
    return CallWindowProcA(previous, window, message, first, second);
}

// Anybody can post a message: only the address of a header of one's own means anything. One that is queued belongs to
// the time before the device was closed and opened again.
void WinWaveOut::Returned(LPARAM header)
{
    for (std::int32_t user = 0; user < MostWaveBuffers; ++user)
    {
        const Slot& slot = Slots[static_cast<std::size_t>(user)];
        if (reinterpret_cast<LPARAM>(&slot.Header) == header && !IsQueued(slot.Header))
            Queue.Post(this, [this, user] { Events.WaveDone(user); });
    }
}

std::int32_t WinWaveOut::Open(WaveHandle& handle, const WaveFormat& format)
{
    CloseDevice(); // one that would not close before
    const WAVEFORMATEX system = SystemFormat(format);
    const MMRESULT result =
        waveOutOpen(&Device, WAVE_MAPPER, &system, reinterpret_cast<DWORD_PTR>(Window), 0, CALLBACK_WINDOW);
    if (result != MMSYSERR_NOERROR)
    {
        Device = nullptr;
        return CodeOf(result);
    }
    handle = Opened = ++Last;
    return WaveSuccess;
}

std::int32_t WinWaveOut::Check(WaveHandle handle, const WaveHeader& header) const
{
    if (!IsOpen(handle))
        return WaveInvalidHandle;
    return header.User < 0 || header.User >= MostWaveBuffers ? WaveInvalidParameter : WaveSuccess;
}

std::int32_t WinWaveOut::PrepareHeader(WaveHandle handle, const WaveHeader& header)
{
    if (const std::int32_t code = Check(handle, header))
        return code;
    Slot& slot = SlotOf(header);
    if (IsQueued(slot.Header))
        return WaveStillPlaying;
    Unprepare(slot);
    slot.Bytes.assign(header.Data.begin(), header.Data.end());
    slot.Header = {};
    slot.Header.lpData = slot.Bytes.data();
    slot.Header.dwBufferLength = static_cast<DWORD>(slot.Bytes.size());
    slot.Header.dwUser = static_cast<DWORD_PTR>(header.User);
    return CodeOf(waveOutPrepareHeader(Device, &slot.Header, HeaderBytes));
}

std::int32_t WinWaveOut::Write(WaveHandle handle, const WaveHeader& header)
{
    if (const std::int32_t code = Check(handle, header))
        return code;
    Slot& slot = SlotOf(header);
    if ((slot.Header.dwFlags & WHDR_PREPARED) != 0)
    {
        if (IsQueued(slot.Header))
            return WaveStillPlaying;
        if (header.Data.size() > slot.Bytes.size())
            return WaveInvalidParameter; // more than what the system was told of
        std::copy(header.Data.begin(), header.Data.end(), slot.Bytes.begin());
        slot.Header.dwBufferLength = static_cast<DWORD>(header.Data.size());
    }
    return CodeOf(waveOutWrite(Device, &slot.Header, HeaderBytes));
}

std::int32_t WinWaveOut::Reset(WaveHandle handle)
{
    return IsOpen(handle) ? CodeOf(waveOutReset(Device)) : WaveInvalidHandle;
}

MMRESULT WinWaveOut::Unprepare(Slot& slot)
{
    return waveOutUnprepareHeader(Device, &slot.Header, HeaderBytes);
}

std::int32_t WinWaveOut::UnprepareHeader(WaveHandle handle, const WaveHeader& header)
{
    const std::int32_t code = Check(handle, header);
    return code != WaveSuccess ? code : CodeOf(Unprepare(SlotOf(header)));
}

std::int32_t WinWaveOut::Close(WaveHandle handle)
{
    if (!IsOpen(handle))
        return WaveInvalidHandle;
    // Wine would close it with buffers that never come back.
    if (std::any_of(Slots.begin(), Slots.end(), [](const Slot& slot) { return IsQueued(slot.Header); }))
        return WaveStillPlaying;
    const MMRESULT result = waveOutClose(Device);
    if (result == MMSYSERR_NOERROR)
        Forget();
    return CodeOf(result);
}

void WinWaveOut::CloseDevice()
{
    if (Device == nullptr)
        return;
    waveOutReset(Device);
    for (Slot& slot : Slots)
        Unprepare(slot);
    waveOutClose(Device);
    Forget();
}

void WinWaveOut::Forget()
{
    Device = nullptr;
    Opened = NoWave;
    for (Slot& slot : Slots)
        slot.Header = {};
}
}
