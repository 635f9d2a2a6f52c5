// SPDX-License-Identifier: Zlib
// platform/sdl/AudioDevice.h: an open audio device of SDL's. Belongs to the window's thread; SDL calls back on a thread
// of its own, never after Close.
#pragma once
#include <SDL.h>

#include <utility>

namespace sdl
{
class AudioDevice
{
public:
    AudioDevice() = default;
    ~AudioDevice() { Close(); }
    AudioDevice(const AudioDevice&) = delete;
    AudioDevice& operator=(const AudioDevice&) = delete;

    // Opens the default device, paused; closes what was open before. Exactly the wanted format: SDL converts. False
    // where there is none; without any sound at all SDL looks for it again each time.
    bool Open(const SDL_AudioSpec& wanted)
    {
        Close();
        if (SDL_WasInit(SDL_INIT_AUDIO) == 0 && SDL_InitSubSystem(SDL_INIT_AUDIO) != 0)
            return false;
        Id = SDL_OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
        return Id != 0;
    }
    // Takes a tenth of a second.
    void Close()
    {
        if (Id != 0)
            SDL_CloseAudioDevice(std::exchange(Id, 0));
    }
    // Open and not unplugged since.
    bool IsAlive() const { return Id != 0 && SDL_GetAudioDeviceStatus(Id) != SDL_AUDIO_STOPPED; }
    void Pause(bool on) { SDL_PauseAudioDevice(Id, on ? 1 : 0); }

    // While it lives SDL's thread does not call back.
    class Locked
    {
    public:
        explicit Locked(const AudioDevice& device) : Id(device.Id) { SDL_LockAudioDevice(Id); }
        ~Locked() { SDL_UnlockAudioDevice(Id); }
        Locked(const Locked&) = delete;
        Locked& operator=(const Locked&) = delete;

    private:
        SDL_AudioDeviceID Id;
    };

private:
    SDL_AudioDeviceID Id = 0;
};
}
