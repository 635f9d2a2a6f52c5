// SPDX-License-Identifier: Zlib
#include "platform/sdl/SdlMusic.h"

#include "platform/sdl/MusicDecoder.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace sdl
{
namespace
{
constexpr std::uint16_t BlockFrames = 2048;                                      // requested from the device: 46 ms
constexpr std::size_t RingBytes = MusicDecoder::Rate * MusicDecoder::FrameBytes; // a second ahead
// The decoder sleeps until so little is left, and then decodes half a second in one go.
constexpr std::size_t LittleBytes = RingBytes / 2;
}

SdlMusic::SdlMusic(PostedEvents& posted, platform::MusicEvents& events)
    : Source(posted, [&events](std::int32_t code, std::uint32_t number) { events.MediaDone(number, code); }),
      Ring(RingBytes)
{
    Decoding.Start([this] { Decode(); });
}

SdlMusic::~SdlMusic()
{
    Close();
    Decoding.Stop();
    Device.Close();
}

void SdlMusic::Open(const std::filesystem::path& file)
{
    Close();
    File = file;
}

void SdlMusic::Play(std::uint32_t number)
{
    if (!File.empty() && OpenDevice())
        Replace(Order{File, number});
}

void SdlMusic::Close()
{
    File.clear();
    Replace({});
}

void SdlMusic::Replace(std::optional<Order> order)
{
    Decoding.Notify(
        [&]
        {
            Next = std::move(order);
            GiveUp = true;
            Count = 0;
        });
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
    Order order;
    const auto take = [&]
    {
        order = *std::exchange(Next, {});
        GiveUp = false;
    };
    while (Decoding.Wait([this] { return Next.has_value(); }, take))
    {
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
        return platform::MediaUnplayable;
    return AwaitSilence() ? platform::MediaSuccessful : 0;
}

bool SdlMusic::Keep(std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty() && !GiveUp)
        if (!Decoding.Wait([this] { return Count < Ring.size() || GiveUp; }, [&] { Append(bytes); }))
            return false;
    return !GiveUp;
}

// As much of the bytes as has room, in one piece; they are what is left then.
void SdlMusic::Append(std::span<const std::uint8_t>& bytes)
{
    if (GiveUp)
        return;
    const std::size_t at = (First + Count) % Ring.size();
    const std::size_t now = std::min({bytes.size(), Ring.size() - Count, Ring.size() - at});
    std::memcpy(Ring.data() + at, bytes.data(), now);
    Count += now;
    bytes = bytes.subspan(now);
}

bool SdlMusic::AwaitSilence()
{
    return Decoding.Wait([this] { return Count == 0 || GiveUp; }, [] {}) && !GiveUp;
}

void SdlMusic::Fill(void* self, std::uint8_t* bytes, int count)
{
    static_cast<SdlMusic*>(self)->Fill(bytes, static_cast<std::size_t>(count));
}

// Silence where nothing is decoded yet. The decoder is told of room only once little is left: it would wake for every
// block and decode hardly anything.
void SdlMusic::Fill(std::uint8_t* bytes, std::size_t count)
{
    const auto copy = [&]
    {
        const bool plays = Count > 0;
        while (count > 0 && Count > 0)
        {
            const std::size_t now = std::min({count, Count, Ring.size() - First});
            std::memcpy(bytes, Ring.data() + First, now);
            First = (First + now) % Ring.size();
            Count -= now;
            bytes += now;
            count -= now;
        }
        return plays && Count <= LittleBytes;
    };
    if (Decoding.Locked(copy))
        Decoding.Notify([] {});
    std::memset(bytes, 0, count);
}
}
