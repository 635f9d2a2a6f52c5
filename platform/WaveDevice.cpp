// SPDX-License-Identifier: Zlib
#include "platform/WaveDevice.h"

namespace platform
{
namespace
{
std::size_t SlotOf(const WaveHeader& header)
{
    return static_cast<std::size_t>(header.User);
}
}

std::int32_t WaveDevice::Open(WaveHandle& handle, const WaveFormat& format)
{
    Opened = NoWave;
    if (const std::int32_t code = OpenDevice(format))
        return code;
    handle = Opened = ++Last;
    return WaveSuccess;
}

std::int32_t WaveDevice::Check(WaveHandle handle, const WaveHeader& header) const
{
    if (!IsOpen(handle))
        return WaveInvalidHandle;
    if (header.User < 0 || header.User >= MostWaveBuffers)
        return WaveInvalidParameter;
    return StateOf(SlotOf(header)).Queued ? WaveStillPlaying : WaveSuccess;
}

std::int32_t WaveDevice::PrepareHeader(WaveHandle handle, const WaveHeader& header)
{
    const std::int32_t code = Check(handle, header);
    return code != WaveSuccess ? code : PrepareSlot(SlotOf(header), header.Data);
}

std::int32_t WaveDevice::Write(WaveHandle handle, const WaveHeader& header)
{
    if (const std::int32_t code = Check(handle, header))
        return code;
    const std::size_t slot = SlotOf(header);
    return StateOf(slot).Prepared ? WriteSlot(slot, header.Data) : std::int32_t{WaveUnprepared};
}

std::int32_t WaveDevice::UnprepareHeader(WaveHandle handle, const WaveHeader& header)
{
    const std::int32_t code = Check(handle, header);
    return code != WaveSuccess ? code : UnprepareSlot(SlotOf(header));
}

std::int32_t WaveDevice::Reset(WaveHandle handle)
{
    return IsOpen(handle) ? ResetDevice() : std::int32_t{WaveInvalidHandle};
}

std::int32_t WaveDevice::Close(WaveHandle handle)
{
    if (!IsOpen(handle))
        return WaveInvalidHandle;
    // Some systems would close it, with buffers that never come back.
    for (std::size_t slot = 0; slot < MostWaveBuffers; ++slot)
        if (StateOf(slot).Queued)
            return WaveStillPlaying;
    const std::int32_t code = CloseDevice();
    if (code == WaveSuccess)
        Opened = NoWave;
    return code;
}
}
