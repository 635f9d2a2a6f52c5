// SPDX-License-Identifier: Zlib
// platform/win32/WinMusic.h: plays music files through the system's media control (MCI). Opening a file can take long
// and belongs to one thread from open to close, so a thread of its own does all of it; the window's thread only says
// what is to be played. That thread posts what has ended as MM_MCINOTIFY.
#pragma once
#include "platform/Sound.h"
#include "platform/win32/EventQueue.h"
#include "platform/win32/MessageWindow.h"
#include "platform/Worker.h"

#include <windows.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>

namespace win32
{
class WinMusic final : public platform::MusicPlayer
{
public:
    // Both outlive it.
    WinMusic(EventQueue& queue, platform::MusicEvents& events);
    ~WinMusic() override;
    WinMusic(const WinMusic&) = delete;
    WinMusic& operator=(const WinMusic&) = delete;

    void Open(const std::filesystem::path& file) override;
    // Without a sound device nothing plays and nothing ends.
    void Play(std::uint32_t number) override;
    void Close() override;

    // What MM_MCINOTIFY says, on the window's thread: posts MediaDone where it is the end of what plays now.
    void Notified(WPARAM flags, LPARAM number);

private:
    struct Order
    {
        std::filesystem::path File; // empty: be silent
        std::uint32_t Number = 0;
    };
    class Track;

    void Replace(const Order& order);

    // On the worker's thread.
    void Work();
    std::unique_ptr<Track> Start(const Order& order) const;
    void Post(WPARAM flags, std::uint32_t number) const;

    EventQueue& Queue;
    platform::MusicEvents& Events;
    MessageWindow Window;       // where the thread's notifications go
    std::filesystem::path File; // that is open
    std::uint32_t Number = 0;   // of what plays
    bool Playing = false;

    std::optional<Order> Next; // shared under the worker's lock; replaced by a newer one
    HANDLE Changed;            // an event: wakes a worker that waits for messages
    platform::Worker Playback;
};
}
