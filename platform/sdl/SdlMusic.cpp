#include "platform/sdl/SdlMusic.h"

#include "platform/sdl/MusicDecoder.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace platform
{
namespace
{
constexpr std::uint16_t BlockFrames = 1024;                                          // asked of the device
constexpr std::size_t RingBytes = MusicDecoder::Rate * MusicDecoder::FrameBytes / 2; // half a second ahead
}

SdlMusic::SdlMusic(PostedEvents& posted, MusicEvents& events)
    : Source(posted, [&events](std::int32_t code, std::uint32_t number) { events.MediaDone(number, code); }),
      Ring(RingBytes), Worker([this] { Decode(); })
{
}

SdlMusic::~SdlMusic()
{
    {
        const std::lock_guard hold(Lock);
        GiveUp = Quits = true;
    }
    Changed.notify_all();
    Worker.join();
    Device.Close();
}

void SdlMusic::Open(const std::filesystem::path& file)
{
    Close();
    File = file;
}

void SdlMusic::Play(std::uint32_t number)
{
    if (File.empty() || !OpenDevice())
        return;
    {
        const std::lock_guard hold(Lock);
        Next = {File, number};
        GiveUp = HasNext = true;
        Count = 0;
    }
    Changed.notify_all();
}

void SdlMusic::Close()
{
    File.clear();
    {
        const std::lock_guard hold(Lock);
        GiveUp = true;
        HasNext = false;
        Count = 0;
    }
    Changed.notify_all();
}

bool SdlMusic::OpenDevice()
{
    if (Device.IsAlive())
        return true;
    SDL_AudioSpec wanted = {};
    wanted.freq = MusicDecoder::Rate;
    wanted.format = AUDIO_S16SYS;
    wanted.channels = 2;
    wanted.samples = BlockFrames;
    wanted.callback = Fill;
    wanted.userdata = this;
    if (!Device.Open(wanted))
        return false;
    Device.Pause(false);
    return true;
}

void SdlMusic::Decode()
{
    for (;;)
    {
        Order order;
        {
            std::unique_lock hold(Lock);
            Changed.wait(hold, [this] { return HasNext || Quits; });
            if (Quits)
                return;
            order = std::move(Next);
            HasNext = false;
            GiveUp = false;
        }
        const std::int32_t code = PlayThrough(order);
        if (code != 0 && !GiveUp)
            Source.Post(code, order.Number);
    }
}

std::int32_t SdlMusic::PlayThrough(const Order& order)
{
    MusicDecoder decoder(GiveUp);
    bool heard = false;
    if (decoder.Open(order.File))
        for (std::span<const std::uint8_t> bytes = decoder.Read(); !bytes.empty(); bytes = decoder.Read())
        {
            heard = true;
            if (!Keep(bytes))
                return 0;
        }
    if (!heard)
        return MediaUnplayable;
    return AwaitSilence() ? MediaSuccessful : 0;
}

bool SdlMusic::Keep(std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty())
    {
        std::unique_lock hold(Lock);
        Changed.wait(hold, [this] { return Count < Ring.size() || GiveUp; });
        if (GiveUp)
            return false;
        const std::size_t at = (First + Count) % Ring.size();
        const std::size_t now = std::min({bytes.size(), Ring.size() - Count, Ring.size() - at});
        std::memcpy(Ring.data() + at, bytes.data(), now);
        Count += now;
        bytes = bytes.subspan(now);
    }
    return true;
}

bool SdlMusic::AwaitSilence()
{
    std::unique_lock hold(Lock);
    Changed.wait(hold, [this] { return Count == 0 || GiveUp; });
    return !GiveUp;
}

void SdlMusic::Fill(void* self, std::uint8_t* bytes, int count)
{
    static_cast<SdlMusic*>(self)->Fill(bytes, static_cast<std::size_t>(count));
}

// On SDL's thread. Silence where nothing is decoded yet.
void SdlMusic::Fill(std::uint8_t* bytes, std::size_t count)
{
    {
        const std::lock_guard hold(Lock);
        while (count > 0 && Count > 0)
        {
            const std::size_t now = std::min({count, Count, Ring.size() - First});
            std::memcpy(bytes, Ring.data() + First, now);
            First = (First + now) % Ring.size();
            Count -= now;
            bytes += now;
            count -= now;
        }
    }
    std::memset(bytes, 0, count);
    Changed.notify_all();
}
}
