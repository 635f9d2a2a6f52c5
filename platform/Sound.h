// SPDX-License-Identifier: Zlib
// platform/Sound.h: the sound devices, as the game uses them: a wave device that plays buffers one after another, and a
// player of music files. All calls are made on the window's thread, and all events arrive there, in the order in which
// they happened and only while the platform handles events: never from inside a call of the device.
// Codes are those of the Windows wave-out and notification calls.
#pragma once
#include <cstdint>
#include <filesystem>
#include <span>

namespace platform
{
// An open wave device.
using WaveHandle = std::int32_t;
inline constexpr WaveHandle NoWave = -1;

enum WaveCode : std::int32_t
{
    WaveSuccess = 0,
    WaveBadDevice = 2, // there is none
    WaveInvalidHandle = 5,
    WaveInvalidParameter = 11,
    WaveStillPlaying = 33,
    WaveUnprepared = 34
};

// Signed little-endian samples, the channels of a frame side by side.
struct WaveFormat
{
    std::int32_t Channels = 0, SamplesPerSecond = 0, BitsPerSample = 0;
};

inline constexpr std::int32_t MostWaveBuffers = 16;

// A buffer for the device. Data stays as it is while the buffer is queued.
struct WaveHeader
{
    std::span<const std::uint8_t> Data; // whole frames
    std::int32_t User = 0;              // its number, by which it comes back: 0 to MostWaveBuffers - 1
};

// Listens to a wave device. Outlives it; after the device's end nothing arrives.
struct WaveEvents
{
    virtual ~WaveEvents() = default;
    virtual void WaveDone(std::int32_t user) = 0; // the buffer of that number has come back
};

// Every call but Notify returns a WaveCode or another code of the system, 0 for success.
struct WaveOut
{
    virtual ~WaveOut() = default;
    // Switches the WaveDone events on or off; they are off at first. False where the system refuses.
    virtual bool Notify(bool on) = 0;
    virtual std::int32_t Open(WaveHandle& handle, const WaveFormat& format) = 0; // the default device
    virtual std::int32_t PrepareHeader(WaveHandle handle, const WaveHeader& header) = 0;
    virtual std::int32_t Write(WaveHandle handle, const WaveHeader& header) = 0; // queues
    virtual std::int32_t Reset(WaveHandle handle) = 0; // stops; what is queued comes back with later events
    virtual std::int32_t UnprepareHeader(WaveHandle handle, const WaveHeader& header) = 0;
    virtual std::int32_t Close(WaveHandle handle) = 0;
};

// Codes of a MediaDone event.
inline constexpr std::int32_t MediaSuccessful = 1;  // played to its end
inline constexpr std::int32_t MediaUnplayable = -1; // no sound could be made of the file

// Listens to a music player. Outlives it; after the player's end nothing arrives.
struct MusicEvents
{
    virtual ~MusicEvents() = default;
    virtual void MediaDone(std::uint32_t number, std::int32_t code) = 0; // the file of that Play has ended
};

// One file at a time. The calls return at once, whatever the file is.
struct MusicPlayer
{
    virtual ~MusicPlayer() = default;
    virtual void Open(const std::filesystem::path& file) = 0; // closes another
    // Plays what is open from its beginning. Its end is a MediaDone event with that number; a file that is closed or
    // played anew before causes none.
    virtual void Play(std::uint32_t number) = 0;
    virtual void Close() = 0;
};
}
