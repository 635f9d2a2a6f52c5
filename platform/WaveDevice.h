// SPDX-License-Identifier: Zlib
// platform/WaveDevice.h: the rules of the wave calls, the same for every sound card: which handle is good, and which
// buffer may be prepared, queued, unprepared. A back end adds the calls of its system, which only come in order.
// Belongs to the window's thread.
#pragma once
#include "platform/Sound.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace platform
{
class WaveDevice : public WaveOut
{
public:
    std::int32_t Open(WaveHandle& handle, const WaveFormat& format) final;
    std::int32_t PrepareHeader(WaveHandle handle, const WaveHeader& header) final;
    std::int32_t Write(WaveHandle handle, const WaveHeader& header) final;
    std::int32_t Reset(WaveHandle handle) final;
    std::int32_t UnprepareHeader(WaveHandle handle, const WaveHeader& header) final;
    std::int32_t Close(WaveHandle handle) final;

protected:
    // A buffer has its slot, by its number. It is queued from its writing until it has come back; a device's own thread
    // may end that at any time, and nothing but Write begins it.
    struct SlotState
    {
        bool Prepared = false, Queued = false;
    };

private:
    // The back end's part. The device is open but in OpenDevice; slots are 0 to MostWaveBuffers - 1. All give a code.
    virtual std::int32_t OpenDevice(const WaveFormat& format) = 0; // every slot unprepared; one still open gives way
    virtual SlotState StateOf(std::size_t slot) const = 0;
    virtual std::int32_t PrepareSlot(std::size_t slot, std::span<const std::uint8_t> data) = 0; // not queued
    virtual std::int32_t WriteSlot(std::size_t slot, std::span<const std::uint8_t> data) = 0;   // prepared, not queued
    virtual std::int32_t UnprepareSlot(std::size_t slot) = 0;                                   // not queued
    virtual std::int32_t ResetDevice() = 0;
    virtual std::int32_t CloseDevice() = 0; // nothing is queued

    bool IsOpen(WaveHandle handle) const { return handle != NoWave && handle == Opened; }
    std::int32_t Check(WaveHandle handle, const WaveHeader& header) const; // of a call that needs a free slot

    WaveHandle Opened = NoWave, Last = 0; // handles are never used again: a former one is invalid
};
}
