// platform/sdl/SdlMusic.h: plays music files on an SDL audio device of its own. A thread of its own decodes ahead of
// SDL's; the window's thread only says what is to be played and never waits for either.
#pragma once
#include "platform/sdl/AudioDevice.h"
#include "platform/sdl/EventSource.h"
#include "platform/Sound.h"

#include <SDL.h>

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <filesystem>
#include <mutex>
#include <span>
#include <thread>
#include <vector>

namespace platform
{
class SdlMusic final : public MusicPlayer
{
public:
    // Both outlive it.
    SdlMusic(PostedEvents& posted, MusicEvents& events);
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
    void Decode();                                  // the thread
    std::int32_t PlayThrough(const Order& order);   // the code of its end, or 0 where it was given up
    bool Keep(std::span<const std::uint8_t> bytes); // waits for room; false: given up
    bool AwaitSilence();
    static void Fill(void* self, std::uint8_t* bytes, int count);
    void Fill(std::uint8_t* bytes, std::size_t count);

    EventSource Source;
    AudioDevice Device;               // opened by the first Play
    std::filesystem::path File;       // that is open
    std::atomic<bool> GiveUp = false; // what is being decoded is no longer wanted

    std::mutex Lock; // of what follows; held for copying alone
    std::condition_variable Changed;
    Order Next;
    bool HasNext = false, Quits = false;
    std::vector<std::uint8_t> Ring; // decoded and not yet played
    std::size_t First = 0, Count = 0;

    std::thread Worker;
};
}
