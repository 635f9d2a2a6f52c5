// platform/win32/WinMusic.h: plays music files through the system's media control (MCI). Opening a file can take long
// and belongs to one thread from open to close, so a thread of its own does all of it; the window's thread only says
// what is to be played. What that thread has to tell goes to the window as MM_MCINOTIFY.
#pragma once
#include "platform/Platform.h"

#include <windows.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <mutex>
#include <thread>

namespace platform
{
class WinMusic final : public MusicPlayer
{
public:
    // Both outlive it.
    WinMusic(HWND window, WindowEvents& events);
    ~WinMusic() override;
    WinMusic(const WinMusic&) = delete;
    WinMusic& operator=(const WinMusic&) = delete;

    void Open(const std::filesystem::path& file) override;
    // Without a sound device nothing plays and nothing ends.
    void Play(std::uint32_t number) override;
    void Close() override;

    // The window has received MM_MCINOTIFY with these: tells MediaDone where they are the end of what plays now.
    void Notified(WPARAM flags, LPARAM number);

private:
    struct Order
    {
        std::filesystem::path File; // empty: be silent
        std::uint32_t Number = 0;
    };
    enum class Wish
    {
        None,
        Change,
        Quit
    };
    class Track;

    void Tell(const Order& order);
    void Work(); // the thread
    Wish TakeWish(Order& order);
    std::unique_ptr<Track> Start(const Order& order) const;
    void Post(WPARAM flags, std::uint32_t number) const;

    HWND Window;
    WindowEvents& Events;
    std::filesystem::path File; // that is open
    std::uint32_t Number = 0;   // of what plays
    bool Playing = false;

    std::mutex Lock; // of what follows; held for copying alone
    Order Next;
    bool HasNext = false, Quits = false;
    HANDLE Changed; // an event

    std::thread Worker;
};
}
