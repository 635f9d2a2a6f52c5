// platform/sdl/SdlPlatform.h: the desktop back end on SDL2.
#pragma once
#include "platform/Platform.h"
#include "platform/sdl/FfmpegWebcam.h"

#include <SDL.h>

#include <vector>

namespace platform
{
class SdlWindow;

class SdlPlatform final : public Platform
{
public:
    // `data` holds data\ and soundtracks\. RuntimeError 75 with SDL's text where there is no display.
    explicit SdlPlatform(std::filesystem::path data, WebcamSource webcam = {});
    ~SdlPlatform() override;
    SdlPlatform(const SdlPlatform&) = delete;
    SdlPlatform& operator=(const SdlPlatform&) = delete;

    // Events and timers until the program has ended.
    void Run(Program& program);

    void Add(SdlWindow& window);
    void Remove(SdlWindow& window);

    const base::Files& DataFiles() override { return TheFiles; }
    std::uint32_t TickCount() override;
    std::uint64_t ClockSeed() override;
    int ProcessorCount() override;
    bool IsFirstInstance() override;
    std::unique_ptr<Window> MakeWindow(WindowEvents& events, Size size) override;
    void PumpEvents() override;
    void WaitEvents(std::uint32_t milliseconds) override;
    Webcam& Camera() override { return TheWebcam; }

private:
    void Dispatch(const SDL_Event& event);

    base::Files TheFiles;
    std::vector<SdlWindow*> Windows;
    FfmpegWebcam TheWebcam;
    int InstanceLock = -1; // file descriptor of the lock of the running instance
};
}
