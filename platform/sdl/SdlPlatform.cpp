// SPDX-License-Identifier: Zlib
#include "platform/sdl/SdlPlatform.h"

#include "base/RuntimeError.h"
#include "platform/sdl/SdlMusic.h"
#include "platform/sdl/SdlWaveOut.h"
#include "platform/sdl/SdlWindow.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace sdl
{
namespace
{
// Waits end at least this often, so that an end that no event announces is seen.
constexpr std::uint32_t LongestWait = 250; // milliseconds

std::string LockPath()
{
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime != nullptr && *runtime != '\0')
        return std::string(runtime) + "/velkar.lock";
    return "/tmp/velkar-" + std::to_string(getuid()) + ".lock";
}

std::uint32_t WindowOf(const SDL_Event& event)
{
    switch (event.type)
    {
    case SDL_WINDOWEVENT:
        return event.window.windowID;
    case SDL_KEYDOWN:
    case SDL_KEYUP:
        return event.key.windowID;
    case SDL_TEXTINPUT:
        return event.text.windowID;
    case SDL_MOUSEMOTION:
        return event.motion.windowID;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
        return event.button.windowID;
    default:
        return 0;
    }
}
}

SdlPlatform::Library::Library()
{
    // A click that brings the window to the front is a click as well, as on the Windows desktop.
    SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
    SDL_SetHint(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, "0");
    SDL_SetHint(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0");
    if (SDL_Init(SDL_INIT_VIDEO) != 0)
        throw base::RuntimeError(base::ErrorAccess, SDL_GetError());
    SDL_StartTextInput();
    SDL_EventState(SDL_SYSWMEVENT, SDL_ENABLE); // see ScreenPointer.h
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Velkar");
}

SdlPlatform::SdlPlatform(std::filesystem::path data, WebcamSource webcam)
    : TheFiles(std::move(data)), TheWebcam(std::move(webcam))
{
}

SdlPlatform::~SdlPlatform()
{
    if (InstanceLock >= 0)
        close(InstanceLock);
}

void SdlPlatform::Run(platform::Program& program)
{
    while (!program.Ended())
    {
        SDL_Event event;
        const auto wait = static_cast<int>(std::min(program.NextTimer(), LongestWait));
        if (SDL_WaitEventTimeout(&event, wait) != 0)
        {
            Dispatch(event);
            PumpEvents();
        }
        if (!program.Ended())
            program.RunTimers();
    }
}

void SdlPlatform::Dispatch(const SDL_Event& event)
{
    if (Posted.Dispatch(event))
        return;
    const std::uint32_t id = WindowOf(event);
    // SDL_QUIT comes from the session or a signal; an X server's own events are looked through by each.
    const bool everyWindow = event.type == SDL_RENDER_TARGETS_RESET || event.type == SDL_RENDER_DEVICE_RESET ||
                             event.type == SDL_QUIT || event.type == SDL_SYSWMEVENT;
    // A handler may close windows: each is looked up again.
    for (std::size_t i = 0; i < Windows.size(); ++i)
        if (everyWindow || (id != 0 && Windows[i]->Id() == id))
            Windows[i]->Dispatch(event);
}

std::uint32_t SdlPlatform::TickCount()
{
    return SDL_GetTicks();
}

std::uint64_t SdlPlatform::ClockSeed()
{
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

int SdlPlatform::ProcessorCount()
{
    return std::max(1, SDL_GetCPUCount());
}

bool SdlPlatform::IsFirstInstance()
{
    if (InstanceLock >= 0)
        return true;
    InstanceLock = open(LockPath().c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    // Where no lock can be made, a second instance is better than none.
    if (InstanceLock < 0)
        return true;
    if (flock(InstanceLock, LOCK_EX | LOCK_NB) == 0)
        return true;
    close(InstanceLock);
    InstanceLock = -1;
    return false;
}

std::unique_ptr<platform::Window> SdlPlatform::MakeWindow(platform::WindowEvents& events, platform::Size size)
{
    return std::make_unique<SdlWindow>(Windows, events, size);
}

std::unique_ptr<platform::WaveOut> SdlPlatform::MakeWaveOut(platform::WaveEvents& events)
{
    return std::make_unique<SdlWaveOut>(Posted, events);
}

std::unique_ptr<platform::MusicPlayer> SdlPlatform::MakeMusicPlayer(platform::MusicEvents& events)
{
    return std::make_unique<SdlMusic>(Posted, events);
}

void SdlPlatform::PumpEvents()
{
    SDL_Event event;
    while (SDL_PollEvent(&event) != 0)
        Dispatch(event);
    for (std::size_t i = 0; i < Windows.size(); ++i)
        Windows[i]->FlushMotion();
}

void SdlPlatform::WaitEvents(std::uint32_t milliseconds)
{
    const std::uint32_t start = TickCount();
    for (std::uint32_t passed = 0; passed < milliseconds; passed = TickCount() - start)
    {
        SDL_Event event;
        if (SDL_WaitEventTimeout(&event, static_cast<int>(milliseconds - passed)) != 0)
            Dispatch(event);
    }
}
}
