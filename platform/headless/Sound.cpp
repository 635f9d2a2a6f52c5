// SPDX-License-Identifier: Zlib
#include "platform/headless/Sound.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace headless
{
bool ScriptedCalls::IsCall(const std::string& name)
{
    constexpr const char* Names[] = {"waveOutOpen",   "waveOutPrepareHeader",   "waveOutWrite",
                                     "waveOutReset",  "waveOutUnprepareHeader", "waveOutClose",
                                     "SetWindowLongA"};
    return std::find(std::begin(Names), std::end(Names), name) != std::end(Names);
}

bool ScriptedCalls::Take(const char* name, std::int32_t& code)
{
    const auto found = Codes.find(name);
    if (found == Codes.end())
        return false;
    code = found->second;
    Codes.erase(found);
    return true;
}

WaveOut::WaveOut(SoundDevices& devices, platform::WaveEvents& events) : Devices(devices), Events(events)
{
    Devices.Wave = this;
}

WaveOut::~WaveOut()
{
    if (Devices.Wave == this)
        Devices.Wave = nullptr;
}

// What the call returns: the scripted code, or whether the handle is good.
std::int32_t WaveOut::Code(const char* call, platform::WaveHandle handle)
{
    std::int32_t code = platform::WaveSuccess;
    if (Devices.Calls.Take(call, code))
        return code;
    return handle == platform::NoWave || handle != Opened ? platform::WaveInvalidHandle : platform::WaveSuccess;
}

bool WaveOut::Notify(bool on)
{
    std::int32_t previous = 1;
    Devices.Calls.Take("SetWindowLongA", previous);
    Notifies = on && previous != 0;
    return previous != 0;
}

std::int32_t WaveOut::Open(platform::WaveHandle& handle, const platform::WaveFormat& format)
{
    std::int32_t code = platform::WaveSuccess;
    if (Devices.Calls.Take("waveOutOpen", code) && code != platform::WaveSuccess)
        return code;
    Queued.clear();
    Format = format;
    handle = Opened = ++Last;
    return platform::WaveSuccess;
}

std::int32_t WaveOut::PrepareHeader(platform::WaveHandle handle, const platform::WaveHeader&)
{
    return Code("waveOutPrepareHeader", handle);
}

std::int32_t WaveOut::Write(platform::WaveHandle handle, const platform::WaveHeader& header)
{
    const std::int32_t code = Code("waveOutWrite", handle);
    if (code != platform::WaveSuccess)
        return code;
    Queued.push_back(header);
    if (Records)
        Written.append(header.Data.begin(), header.Data.end());
    return code;
}

std::int32_t WaveOut::Reset(platform::WaveHandle handle)
{
    const std::int32_t code = Code("waveOutReset", handle);
    if (code == platform::WaveSuccess)
        for (; !Queued.empty(); Queued.pop_front())
            Returned.push_back(Queued.front().User);
    return code;
}

std::int32_t WaveOut::UnprepareHeader(platform::WaveHandle handle, const platform::WaveHeader&)
{
    return Code("waveOutUnprepareHeader", handle);
}

std::int32_t WaveOut::Close(platform::WaveHandle handle)
{
    const std::int32_t code = Code("waveOutClose", handle);
    if (code == platform::WaveSuccess)
    {
        Opened = platform::NoWave;
        Queued.clear();
    }
    return code;
}

bool WaveOut::FinishBuffer()
{
    if (Queued.empty())
        return false;
    const std::int32_t user = Queued.front().User;
    Queued.pop_front();
    if (Notifies)
        Events.WaveDone(user);
    return true;
}

void WaveOut::Deliver()
{
    for (const std::int32_t user : std::exchange(Returned, {}))
        if (Notifies)
            Events.WaveDone(user);
}

MusicPlayer::MusicPlayer(SoundDevices& devices, platform::MusicEvents& events) : Devices(devices), Events(events)
{
    Devices.Music = this;
}

MusicPlayer::~MusicPlayer()
{
    if (Devices.Music == this)
        Devices.Music = nullptr;
}

void MusicPlayer::Finish(std::int32_t code)
{
    Playing = false;
    Events.MediaDone(Number, code);
}

void MusicPlayer::Open(const std::filesystem::path& file)
{
    File = file;
    Playing = false;
}

void MusicPlayer::Play(std::uint32_t number)
{
    Number = number;
    Playing = !File.empty();
}

void MusicPlayer::Close()
{
    File.clear();
    Playing = false;
}
}
