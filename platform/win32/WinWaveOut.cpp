// SPDX-License-Identifier: Zlib
#include "platform/win32/WinWaveOut.h"

#include <algorithm>
#include <utility>

namespace win32
{
namespace
{
constexpr const char* OwnerProperty = "VelkarWaveOut"; // of the window: whose Procedure it has

constexpr UINT HeaderBytes = sizeof(WAVEHDR);

WAVEFORMATEX SystemFormat(const platform::WaveFormat& format)
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
    Abandon();
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
    for (std::int32_t user = 0; user < platform::MostWaveBuffers; ++user)
    {
        const Slot& slot = Slots[static_cast<std::size_t>(user)];
        if (reinterpret_cast<LPARAM>(&slot.Header) == header && !IsQueued(slot.Header))
            Queue.Post(this, [this, user] { Events.WaveDone(user); });
    }
}

std::int32_t WinWaveOut::OpenDevice(const platform::WaveFormat& format)
{
    Abandon(); // one that would not close before
    const WAVEFORMATEX system = SystemFormat(format);
    const MMRESULT result =
        waveOutOpen(&Device, WAVE_MAPPER, &system, reinterpret_cast<DWORD_PTR>(Window), 0, CALLBACK_WINDOW);
    if (result != MMSYSERR_NOERROR)
        Device = nullptr;
    return CodeOf(result);
}

// The system keeps the state in the header, and changes it on a thread of its own.
platform::WaveDevice::SlotState WinWaveOut::StateOf(std::size_t slot) const
{
    const WAVEHDR& header = Slots[slot].Header;
    return {(header.dwFlags & WHDR_PREPARED) != 0, IsQueued(header)};
}

std::int32_t WinWaveOut::PrepareSlot(std::size_t slot, std::span<const std::uint8_t> data)
{
    UnprepareSlot(slot); // nothing where it is not prepared
    auto& [header, bytes] = Slots[slot];
    bytes.assign(data.begin(), data.end());
    header = {};
    header.lpData = bytes.data();
    header.dwBufferLength = static_cast<DWORD>(bytes.size());
    header.dwUser = slot;
    return CodeOf(waveOutPrepareHeader(Device, &header, HeaderBytes));
}

std::int32_t WinWaveOut::WriteSlot(std::size_t slot, std::span<const std::uint8_t> data)
{
    auto& [header, bytes] = Slots[slot];
    if (data.size() > bytes.size())
        return platform::WaveInvalidParameter; // more than the system was prepared for
    std::copy(data.begin(), data.end(), bytes.begin());
    header.dwBufferLength = static_cast<DWORD>(data.size());
    return CodeOf(waveOutWrite(Device, &header, HeaderBytes));
}

std::int32_t WinWaveOut::UnprepareSlot(std::size_t slot)
{
    return CodeOf(waveOutUnprepareHeader(Device, &Slots[slot].Header, HeaderBytes));
}

std::int32_t WinWaveOut::ResetDevice()
{
    return CodeOf(waveOutReset(Device));
}

std::int32_t WinWaveOut::CloseDevice()
{
    const MMRESULT result = waveOutClose(Device);
    if (result == MMSYSERR_NOERROR)
        Forget();
    return CodeOf(result);
}

void WinWaveOut::Abandon()
{
    if (Device == nullptr)
        return;
    waveOutReset(Device);
    for (std::size_t slot = 0; slot < Slots.size(); ++slot)
        UnprepareSlot(slot);
    waveOutClose(Device);
    Forget();
}

void WinWaveOut::Forget()
{
    Device = nullptr;
    for (Slot& slot : Slots)
        slot.Header = {};
}
}
