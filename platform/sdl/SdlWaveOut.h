// SPDX-License-Identifier: Zlib
// platform/sdl/SdlWaveOut.h: the wave device on an SDL audio device. SDL's thread plays what is queued; a buffer that
// is done is posted to the window's thread.
#pragma once
#include "platform/sdl/AudioDevice.h"
#include "platform/sdl/EventSource.h"
#include "platform/WaveDevice.h"

#include <SDL.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace sdl
{
class SdlWaveOut final : public platform::WaveDevice
{
public:
    // Both outlive it.
    SdlWaveOut(PostedEvents& posted, platform::WaveEvents& events)
        : Source(posted, [&events](std::int32_t user, std::uint32_t) { events.WaveDone(user); })
    {
    }
    ~SdlWaveOut() override { Device.Close(); }
    SdlWaveOut(const SdlWaveOut&) = delete;
    SdlWaveOut& operator=(const SdlWaveOut&) = delete;

    bool Notify(bool on) override;

private:
    // The device's own copy of a buffer: the caller may fill its own again while SDL still plays.
    struct Slot
    {
        std::vector<std::uint8_t> Bytes;
        SlotState State;
    };

    std::int32_t OpenDevice(const platform::WaveFormat& format) override;
    SlotState StateOf(std::size_t slot) const override;
    std::int32_t PrepareSlot(std::size_t slot, std::span<const std::uint8_t> data) override;
    std::int32_t WriteSlot(std::size_t slot, std::span<const std::uint8_t> data) override;
    std::int32_t UnprepareSlot(std::size_t slot) override;
    std::int32_t ResetDevice() override;
    std::int32_t CloseDevice() override;
    bool PrepareDevice(const platform::WaveFormat& format); // open for that format; false where it cannot be
    static void Fill(void* self, std::uint8_t* bytes, int count);
    void Fill(std::uint8_t* bytes, std::size_t count);
    void ReturnFirst(); // out of the queue; posts where that is wanted

    EventSource Source;
    AudioDevice Device; // stays open, silent, from one Open to the next
    platform::WaveFormat DeviceFormat;
    std::atomic<bool> Notifies = false;
    // Shared with SDL's thread under the device's lock.
    std::array<Slot, platform::MostWaveBuffers> Slots;
    std::array<std::size_t, platform::MostWaveBuffers> Queue = {}; // a ring of slots
    std::size_t First = 0, Count = 0;
    std::size_t Played = 0; // bytes of the first
};
}
