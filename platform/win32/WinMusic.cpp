// SPDX-License-Identifier: Zlib
#include "platform/win32/WinMusic.h"

#include <mmsystem.h>

#include <utility>

namespace win32
{
namespace
{
constexpr const wchar_t* DeviceType = L"mpegvideo"; // plays every sound file the system has a decoder for

// A receiver of the media control's notifications alone.
template <class Notify> MessageWindow::Receiver OnNotification(Notify notify)
{
    return [notify](UINT message, WPARAM flags, LPARAM number)
    {
        if (message == MM_MCINOTIFY)
            notify(flags, number);
    };
}
}

// A file in the media control, from open to close, on the thread that made it.
class WinMusic::Track
{
public:
    // Notifications come to a window of its own: what an earlier file may still say arrives nowhere.
    explicit Track(MessageWindow::Receiver receiver) : Sink(std::move(receiver)) {}
    ~Track()
    {
        MCI_GENERIC_PARMS close = {};
        if (Device != 0)
            mciSendCommandW(Device, MCI_CLOSE, MCI_WAIT, reinterpret_cast<DWORD_PTR>(&close));
    }
    Track(const Track&) = delete;
    Track& operator=(const Track&) = delete;

    bool Start(const std::filesystem::path& file)
    {
        MCI_OPEN_PARMSW open = {};
        open.lpstrDeviceType = DeviceType;
        open.lpstrElementName = file.c_str();
        if (mciSendCommandW(0, MCI_OPEN, MCI_WAIT | MCI_OPEN_TYPE | MCI_OPEN_ELEMENT,
                            reinterpret_cast<DWORD_PTR>(&open)) != 0)
            return false;
        Device = open.wDeviceID;
        MCI_PLAY_PARMS play = {};
        play.dwCallback = reinterpret_cast<DWORD_PTR>(Sink.Handle());
        return mciSendCommandW(Device, MCI_PLAY, MCI_NOTIFY, reinterpret_cast<DWORD_PTR>(&play)) == 0;
    }

private:
    MessageWindow Sink;
    MCIDEVICEID Device = 0;
};

WinMusic::WinMusic(EventQueue& queue, platform::MusicEvents& events)
    : Queue(queue), Events(events),
      Window(OnNotification([this](WPARAM flags, LPARAM number) { Notified(flags, number); })),
      Changed(CreateEventW(nullptr, FALSE, FALSE, nullptr)), Playback([this] { SetEvent(Changed); })
{
    Playback.Start([this] { Work(); });
}

WinMusic::~WinMusic()
{
    Playback.Stop();
    CloseHandle(Changed);
    Queue.Drop(this);
}

void WinMusic::Open(const std::filesystem::path& file)
{
    Close();
    File = file;
}

void WinMusic::Play(std::uint32_t number)
{
    if (File.empty())
        return;
    Number = number;
    Playing = true;
    Replace({File, number});
}

void WinMusic::Close()
{
    File.clear();
    Playing = false;
    Replace({});
}

void WinMusic::Replace(const Order& order)
{
    Playback.Notify([&] { Next = order; });
}

// A file that breaks off is as unplayable as one that never began; what was closed or begun anew says nothing.
void WinMusic::Notified(WPARAM flags, LPARAM number)
{
    if (!Playing || static_cast<std::uint32_t>(number) != Number)
        return;
    if (flags != MCI_NOTIFY_SUCCESSFUL && flags != MCI_NOTIFY_FAILURE)
        return;
    Playing = false;
    const std::int32_t code = flags == MCI_NOTIFY_SUCCESSFUL ? platform::MediaSuccessful : platform::MediaUnplayable;
    Queue.Post(this, [this, code, ended = Number] { Events.MediaDone(ended, code); });
}

// Handles window messages as well: notifications, and what the decoders send one another.
void WinMusic::Work()
{
    std::unique_ptr<Track> track;
    while (MsgWaitForMultipleObjects(1, &Changed, FALSE, INFINITE, QS_ALLINPUT) != WAIT_FAILED)
    {
        if (Playback.IsStopped())
            return;
        if (const auto order = Playback.Locked([this] { return std::exchange(Next, {}); }))
        {
            track.reset(); // before the next begins
            track = Start(*order);
        }
        for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);)
            DispatchMessageW(&message);
    }
}

std::unique_ptr<WinMusic::Track> WinMusic::Start(const Order& order) const
{
    if (order.File.empty() || waveOutGetNumDevs() == 0)
        return nullptr;
    const auto post = [this, number = order.Number](WPARAM flags, LPARAM) { Post(flags, number); };
    auto track = std::make_unique<Track>(OnNotification(post));
    if (track->Start(order.File))
        return track;
    Post(MCI_NOTIFY_FAILURE, order.Number);
    return nullptr;
}

void WinMusic::Post(WPARAM flags, std::uint32_t number) const
{
    PostMessageW(Window.Handle(), MM_MCINOTIFY, flags, static_cast<LPARAM>(number));
}
}
