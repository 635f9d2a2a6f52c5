// SPDX-License-Identifier: Zlib
// platform/headless/Sound.h: sound devices that a script plays the part of. The wave device finishes a buffer when
// the script says so; the music player plays nothing and ends likewise.
#pragma once
#include "platform/Sound.h"

#include <cstdint>
#include <deque>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace headless
{
// What the calls of the system return once instead of doing their work, by their own names
// ("waveOutOpen", …, "SetWindowLongA").
class ScriptedCalls
{
public:
    static bool IsCall(const std::string& name);
    void ReturnNext(const std::string& name, std::int32_t code) { Codes[name] = code; }
    // Whether the call was scripted; its code then.
    bool Take(const char* name, std::int32_t& code);

private:
    std::map<std::string, std::int32_t> Codes;
};

class WaveOut;
class MusicPlayer;

// What a script has of the sound devices: the codes they are to return, and the devices made last, while they exist.
struct SoundDevices
{
    ScriptedCalls Calls;
    WaveOut* Wave = nullptr;
    MusicPlayer* Music = nullptr;
};

class WaveOut final : public platform::WaveOut
{
public:
    // Enters itself among the devices, which outlive it.
    WaveOut(SoundDevices& devices, platform::WaveEvents& events);
    ~WaveOut() override;
    WaveOut(const WaveOut&) = delete;
    WaveOut& operator=(const WaveOut&) = delete;

    bool Notify(bool on) override;
    std::int32_t Open(platform::WaveHandle& handle, const platform::WaveFormat& format) override;
    std::int32_t PrepareHeader(platform::WaveHandle handle, const platform::WaveHeader& header) override;
    std::int32_t Write(platform::WaveHandle handle, const platform::WaveHeader& header) override;
    std::int32_t Reset(platform::WaveHandle handle) override;
    std::int32_t UnprepareHeader(platform::WaveHandle handle, const platform::WaveHeader& header) override;
    std::int32_t Close(platform::WaveHandle handle) override;

    // The buffer that was queued longest is finished, its event delivered at once. False where none is queued.
    bool FinishBuffer();
    // Delivers the events of the buffers that Reset has returned.
    void Deliver();

    std::deque<platform::WaveHeader> Queued;
    std::string Written; // the bytes of every buffer that is queued, while Records is set
    bool Records = false;
    platform::WaveFormat Format;

private:
    std::int32_t Code(const char* call, platform::WaveHandle handle);

    SoundDevices& Devices;
    platform::WaveEvents& Events;
    platform::WaveHandle Opened = platform::NoWave, Last = 0;
    std::vector<std::int32_t> Returned;
    bool Notifies = false;
};

class MusicPlayer final : public platform::MusicPlayer
{
public:
    // Enters itself among the devices, which outlive it.
    MusicPlayer(SoundDevices& devices, platform::MusicEvents& events);
    ~MusicPlayer() override;
    MusicPlayer(const MusicPlayer&) = delete;
    MusicPlayer& operator=(const MusicPlayer&) = delete;

    void Open(const std::filesystem::path& file) override;
    void Play(std::uint32_t number) override;
    void Close() override;

    // Ends the last play, its event delivered at once.
    void Finish(std::int32_t code);

    std::filesystem::path File; // that is open; empty none
    std::uint32_t Number = 0;   // of the last play
    bool Playing = false;

private:
    SoundDevices& Devices;
    platform::MusicEvents& Events;
};
}
