// SPDX-License-Identifier: Zlib
// platform/sdl/SdlPlatform.h: the desktop back end on SDL2.
#pragma once
#include "platform/Platform.h"
#include "platform/sdl/EventSource.h"
#include "platform/sdl/FfmpegWebcam.h"

#include <SDL.h>

#include <vector>

namespace sdl
{
class SdlWindow;

class SdlPlatform final : public platform::Platform
{
public:
    // `data` holds data\ and soundtracks\. RuntimeError 75 with SDL's text where there is no display.
    explicit SdlPlatform(std::filesystem::path data, WebcamSource webcam = {});
    ~SdlPlatform() override;
    SdlPlatform(const SdlPlatform&) = delete;
    SdlPlatform& operator=(const SdlPlatform&) = delete;

    // Events and timers until the program has ended.
    void Run(platform::Program& program);

    const base::Files& DataFiles() override { return TheFiles; }
    std::uint32_t TickCount() override;
    std::uint64_t ClockSeed() override;
    int ProcessorCount() override;
    bool IsFirstInstance() override;
    std::unique_ptr<platform::Window> MakeWindow(platform::WindowEvents& events, platform::Size size) override;
    std::unique_ptr<platform::WaveOut> MakeWaveOut(platform::WaveEvents& events) override;
    std::unique_ptr<platform::MusicPlayer> MakeMusicPlayer(platform::MusicEvents& events) override;
    void PumpEvents() override;
    void WaitEvents(std::uint32_t milliseconds) override;
    platform::Webcam& WebcamDevice() override { return TheWebcam; }

private:
    // SDL's own state: begun before everything below, ended after it.
    struct Library
    {
        Library();
        ~Library() { SDL_Quit(); }
        Library(const Library&) = delete;
        Library& operator=(const Library&) = delete;
    };

    void Dispatch(const SDL_Event& event);

    base::Files TheFiles;
    FfmpegWebcam TheWebcam;
    Library TheLibrary;
    PostedEvents Posted;             // what the sound devices post
    std::vector<SdlWindow*> Windows; // in the order in which they were made
    int InstanceLock = -1;           // file descriptor of the lock of the running instance
};
}
