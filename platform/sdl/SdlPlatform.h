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

    // Whether there is sound at all; tries again each time it is asked while there is none.
    bool HasSound();
    // Tells a window's events from another thread; false where the system takes none.
    bool TellWaveDone(std::uint32_t window, std::int32_t user) const;
    bool TellMediaDone(std::uint32_t window, std::uint32_t number, std::int32_t code) const;
    bool HasUserEvents() const { return FirstUserEvent != NoUserEvent; }

    void Add(SdlWindow& window);
    void Remove(SdlWindow& window);

    const base::Files& DataFiles() override { return TheFiles; }
    std::uint32_t TickCount() override;
    std::uint64_t ClockSeed() override;
    int ProcessorCount() override;
    bool IsFirstInstance() override;
    std::unique_ptr<Window> MakeWindow(WindowEvents& events, Size size) override;
    std::unique_ptr<WaveOut> MakeWaveOut(Window& window) override;
    std::unique_ptr<MusicPlayer> MakeMusicPlayer(Window& window) override;
    void PumpEvents() override;
    void WaitEvents(std::uint32_t milliseconds) override;
    Webcam& WebcamDevice() override { return TheWebcam; }

private:
    static constexpr std::uint32_t NoUserEvent = 0xFFFFFFFFu;
    bool Tell(std::uint32_t which, std::uint32_t window, std::int32_t code, std::uint32_t number) const;
    void Dispatch(const SDL_Event& event);
    void DispatchUser(const SDL_UserEvent& event);

    base::Files TheFiles;
    std::vector<SdlWindow*> Windows;
    FfmpegWebcam TheWebcam;
    std::uint32_t FirstUserEvent = NoUserEvent; // of two: a wave buffer is done, the music is done
    int InstanceLock = -1;                      // file descriptor of the lock of the running instance
};
}
