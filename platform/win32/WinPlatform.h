// SPDX-License-Identifier: Zlib
// platform/win32/WinPlatform.h: the back end of the Windows desktop, on the system's own calls. Its header leaves the
// system's out: their macros rename what is called as in the game.
#pragma once
#include "platform/Platform.h"
#include "platform/win32/EventQueue.h"

#include <memory>
#include <string>

namespace win32
{
class MessageWindow;

class WinPlatform final : public platform::Platform
{
public:
    // `data` holds data\ and soundtracks\; `program` is the folder of the program, where webcam libraries may be.
    WinPlatform(std::filesystem::path data, std::filesystem::path program);
    ~WinPlatform() override;
    WinPlatform(const WinPlatform&) = delete;
    WinPlatform& operator=(const WinPlatform&) = delete;

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
    platform::Webcam& WebcamDevice() override { return *TheWebcam; }

private:
    // Until a message comes or so long, UINT32_MAX for ever.
    void WaitMessage(std::uint32_t milliseconds) const;

    base::Files TheFiles;
    std::unique_ptr<platform::Webcam> TheWebcam;
    EventQueue Queue;
    std::unique_ptr<MessageWindow> Messages; // of the timer and the wave device
    void* InstanceMutex = nullptr;
    std::uint32_t ClockStart, FineStart; // the system's two clocks, taken together
};

// What keeps the program from starting.
void ShowStartError(const std::string& text);
}
