#include "platform/sdl/SdlWaveOut.h"

#include <algorithm>
#include <cstring>

namespace platform
{
namespace
{
constexpr std::uint16_t BlockFrames = 512; // asked of the device: 46 ms at 11025 Hz

bool IsSame(const WaveFormat& a, const WaveFormat& b)
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
bool SdlWaveOut::OpenDevice(const WaveFormat& format)
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

std::int32_t SdlWaveOut::Open(WaveHandle& handle, const WaveFormat& format)
{
    if (!OpenDevice(format))
        return WaveBadDevice;
    {
        const AudioDevice::Locked lock(Device);
        for (Slot& slot : Slots)
            slot.Prepared = slot.Queued = false;
        Count = Played = 0;
    }
    handle = Opened = ++Last;
    Device.Pause(false);
    return WaveSuccess;
}

std::int32_t SdlWaveOut::Check(WaveHandle handle, const WaveHeader& header) const
{
    if (handle == NoWave || handle != Opened)
        return WaveInvalidHandle;
    return header.User < 0 || header.User >= MostWaveBuffers ? WaveInvalidParameter : WaveSuccess;
}

std::int32_t SdlWaveOut::PrepareHeader(WaveHandle handle, const WaveHeader& header)
{
    if (const std::int32_t code = Check(handle, header))
        return code;
    const AudioDevice::Locked lock(Device);
    Slot& slot = Slots[static_cast<std::size_t>(header.User)];
    if (slot.Queued)
        return WaveStillPlaying;
    slot.Bytes.reserve(header.Data.size()); // so that Write allocates nothing
    slot.Prepared = true;
    return WaveSuccess;
}

std::int32_t SdlWaveOut::Write(WaveHandle handle, const WaveHeader& header)
{
    if (const std::int32_t code = Check(handle, header))
        return code;
    const AudioDevice::Locked lock(Device);
    Slot& slot = Slots[static_cast<std::size_t>(header.User)];
    if (!slot.Prepared)
        return WaveUnprepared;
    if (slot.Queued)
        return WaveStillPlaying;
    slot.Bytes.assign(header.Data.begin(), header.Data.end());
    slot.Queued = true;
    Queue[(First + Count++) % Queue.size()] = header.User;
    return WaveSuccess;
}

std::int32_t SdlWaveOut::TakeFirst()
{
    const std::int32_t user = Queue[First];
    First = (First + 1) % Queue.size();
    --Count;
    Played = 0;
    Slots[static_cast<std::size_t>(user)].Queued = false;
    return user;
}

void SdlWaveOut::Return(std::int32_t user)
{
    if (Notifies)
        Source.Post(user);
}

std::int32_t SdlWaveOut::Reset(WaveHandle handle)
{
    if (handle == NoWave || handle != Opened)
        return WaveInvalidHandle;
    const AudioDevice::Locked lock(Device);
    while (Count > 0)
        Return(TakeFirst());
    return WaveSuccess;
}

std::int32_t SdlWaveOut::UnprepareHeader(WaveHandle handle, const WaveHeader& header)
{
    if (const std::int32_t code = Check(handle, header))
        return code;
    const AudioDevice::Locked lock(Device);
    Slot& slot = Slots[static_cast<std::size_t>(header.User)];
    if (slot.Queued)
        return WaveStillPlaying;
    slot.Prepared = false;
    return WaveSuccess;
}

std::int32_t SdlWaveOut::Close(WaveHandle handle)
{
    if (handle == NoWave || handle != Opened)
        return WaveInvalidHandle;
    {
        const AudioDevice::Locked lock(Device);
        if (Count > 0)
            return WaveStillPlaying;
    }
    Device.Pause(true);
    Opened = NoWave;
    return WaveSuccess;
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
        const std::vector<std::uint8_t>& from = Slots[static_cast<std::size_t>(Queue[First])].Bytes;
        const std::size_t now = std::min(count, from.size() - Played);
        std::memcpy(bytes, from.data() + Played, now);
        Played += now;
        bytes += now;
        count -= now;
        if (Played == from.size())
            Return(TakeFirst());
    }
    std::memset(bytes, 0, count);
}
}
