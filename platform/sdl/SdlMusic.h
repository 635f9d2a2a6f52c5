// SPDX-License-Identifier: Zlib
// platform/sdl/SdlMusic.h: plays music files on an SDL audio device of its own. A thread of its own decodes ahead of
// SDL's; the window's thread only says what is to be played and never waits for either.
#pragma once
#include "platform/sdl/AudioDevice.h"
#include "platform/sdl/EventSource.h"
#include "platform/Sound.h"
#include "platform/Worker.h"

#include <SDL.h>

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

namespace sdl
{
class SdlMusic final : public platform::MusicPlayer
{
public:
    // Both outlive it.
    SdlMusic(PostedEvents& posted, platform::MusicEvents& events);
    ~SdlMusic() override;
    SdlMusic(const SdlMusic&) = delete;
    SdlMusic& operator=(const SdlMusic&) = delete;

    void Open(const std::filesystem::path& file) override;
    // Without a sound device nothing plays and nothing ends.
    void Play(std::uint32_t number) override;
    void Close() override;

private:
    struct Order
    {
        std::filesystem::path File;
        std::uint32_t Number = 0;
    };

    bool OpenDevice();
    void Replace(std::optional<Order> order); // gives up what is decoded and not yet played

    // On the worker's thread.
    void Decode();
    std::int32_t PlayThrough(const Order& order);   // the code of its end, or 0 where it was given up
    bool Keep(std::span<const std::uint8_t> bytes); // waits for room; false: given up
    void Append(std::span<const std::uint8_t>& bytes);
    bool AwaitSilence();

    // On SDL's thread.
    static void Fill(void* self, std::uint8_t* bytes, int count);
    void Fill(std::uint8_t* bytes, std::size_t count);

    EventSource Source;
    AudioDevice Device;               // opened by the first Play
    std::filesystem::path File;       // that is open
    std::atomic<bool> GiveUp = false; // what is being decoded is no longer wanted

    // Shared among the three threads, under the worker's lock, which is held for copying alone.
    std::optional<Order> Next;      // replaced by a newer one
    std::vector<std::uint8_t> Ring; // decoded and not yet played
    std::size_t First = 0, Count = 0;

    platform::Worker Decoding;
};
}
