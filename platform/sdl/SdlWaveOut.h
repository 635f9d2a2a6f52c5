// platform/sdl/SdlWaveOut.h: the wave device on an SDL audio device. SDL's thread plays what is queued; a buffer that
// is done is posted to the window's thread.
#pragma once
#include "platform/sdl/AudioDevice.h"
#include "platform/sdl/EventSource.h"
#include "platform/Sound.h"

#include <SDL.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace platform
{
class SdlWaveOut final : public WaveOut
{
public:
    // Both outlive it.
    SdlWaveOut(PostedEvents& posted, WaveEvents& events)
        : Source(posted, [&events](std::int32_t user, std::uint32_t) { events.WaveDone(user); })
    {
    }
    ~SdlWaveOut() override { Device.Close(); }
    SdlWaveOut(const SdlWaveOut&) = delete;
    SdlWaveOut& operator=(const SdlWaveOut&) = delete;

    bool Notify(bool on) override;
    std::int32_t Open(WaveHandle& handle, const WaveFormat& format) override;
    std::int32_t PrepareHeader(WaveHandle handle, const WaveHeader& header) override;
    std::int32_t Write(WaveHandle handle, const WaveHeader& header) override;
    std::int32_t Reset(WaveHandle handle) override;
    std::int32_t UnprepareHeader(WaveHandle handle, const WaveHeader& header) override;
    std::int32_t Close(WaveHandle handle) override;

private:
    // The device's own copy of a buffer: the caller may fill its own again while SDL still plays.
    struct Slot
    {
        std::vector<std::uint8_t> Bytes;
        bool Prepared = false, Queued = false;
    };

    bool OpenDevice(const WaveFormat& format);
    std::int32_t Check(WaveHandle handle, const WaveHeader& header) const;
    static void Fill(void* self, std::uint8_t* bytes, int count);
    void Fill(std::uint8_t* bytes, std::size_t count);
    std::int32_t TakeFirst(); // out of the queue
    void Return(std::int32_t user);

    EventSource Source;
    AudioDevice Device; // stays open, silent, from one Open to the next
    WaveFormat DeviceFormat;
    WaveHandle Opened = NoWave, Last = 0;
    std::atomic<bool> Notifies = false;
    // Shared with SDL's thread under the device's lock.
    std::array<Slot, MostWaveBuffers> Slots;
    std::array<std::int32_t, MostWaveBuffers> Queue = {}; // a ring of users
    std::size_t First = 0, Count = 0;
    std::size_t Played = 0; // bytes of the first
};
}
