// SPDX-License-Identifier: Zlib
#include "platform/sdl/SdlWaveOut.h"

#include <algorithm>
#include <cstring>

namespace sdl
{
namespace
{
constexpr std::uint16_t BlockFrames = 512; // requested from the device: 46 ms at 11025 Hz

bool IsSame(const platform::WaveFormat& a, const platform::WaveFormat& b)
{
    return a.Channels == b.Channels && a.SamplesPerSecond == b.SamplesPerSecond && a.BitsPerSample == b.BitsPerSample;
}
}

bool SdlWaveOut::Notify(bool on)
{
    Notifies = on;
    return Source.CanPost();
}

// SDL waits a tenth of a second before it closes a device. So it is kept, unless it has gone.
bool SdlWaveOut::PrepareDevice(const platform::WaveFormat& format)
{
    if (Device.IsAlive() && IsSame(format, DeviceFormat))
        return true;
    Device.Close();
    if (format.BitsPerSample != 16)
        return false;
    SDL_AudioSpec wanted = {};
    wanted.freq = format.SamplesPerSecond;
    wanted.format = AUDIO_S16LSB;
    wanted.channels = static_cast<std::uint8_t>(format.Channels);
    wanted.samples = BlockFrames;
    wanted.callback = Fill;
    wanted.userdata = this;
    DeviceFormat = format;
    return Device.Open(wanted);
}

std::int32_t SdlWaveOut::OpenDevice(const platform::WaveFormat& format)
{
    if (!PrepareDevice(format))
        return platform::WaveBadDevice;
    {
        const AudioDevice::Locked lock(Device);
        for (Slot& slot : Slots)
            slot.State = {};
        Count = Played = 0;
    }
    Device.Pause(false);
    return platform::WaveSuccess;
}

platform::WaveDevice::SlotState SdlWaveOut::StateOf(std::size_t slot) const
{
    const AudioDevice::Locked lock(Device);
    return Slots[slot].State;
}

std::int32_t SdlWaveOut::PrepareSlot(std::size_t slot, std::span<const std::uint8_t> data)
{
    const AudioDevice::Locked lock(Device);
    Slots[slot].Bytes.reserve(data.size()); // so that writing allocates nothing
    Slots[slot].State.Prepared = true;
    return platform::WaveSuccess;
}

std::int32_t SdlWaveOut::WriteSlot(std::size_t slot, std::span<const std::uint8_t> data)
{
    const AudioDevice::Locked lock(Device);
    Slots[slot].Bytes.assign(data.begin(), data.end());
    Slots[slot].State.Queued = true;
    Queue[(First + Count++) % Queue.size()] = slot;
    return platform::WaveSuccess;
}

std::int32_t SdlWaveOut::UnprepareSlot(std::size_t slot)
{
    const AudioDevice::Locked lock(Device);
    Slots[slot].State.Prepared = false;
    return platform::WaveSuccess;
}

std::int32_t SdlWaveOut::ResetDevice()
{
    const AudioDevice::Locked lock(Device);
    while (Count > 0)
        ReturnFirst();
    return platform::WaveSuccess;
}

std::int32_t SdlWaveOut::CloseDevice()
{
    Device.Pause(true);
    return platform::WaveSuccess;
}

void SdlWaveOut::ReturnFirst()
{
    const std::size_t slot = Queue[First];
    First = (First + 1) % Queue.size();
    --Count;
    Played = 0;
    Slots[slot].State.Queued = false;
    if (Notifies)
        Source.Post(static_cast<std::int32_t>(slot));
}

void SdlWaveOut::Fill(void* self, std::uint8_t* bytes, int count)
{
    static_cast<SdlWaveOut*>(self)->Fill(bytes, static_cast<std::size_t>(count));
}

// On SDL's thread, which holds the device's lock. Silence where nothing is queued.
void SdlWaveOut::Fill(std::uint8_t* bytes, std::size_t count)
{
    while (count > 0 && Count > 0)
    {
        const std::vector<std::uint8_t>& from = Slots[Queue[First]].Bytes;
        const std::size_t now = std::min(count, from.size() - Played);
        std::memcpy(bytes, from.data() + Played, now);
        Played += now;
        bytes += now;
        count -= now;
        if (Played == from.size())
            ReturnFirst();
    }
    std::memset(bytes, 0, count);
}
}
