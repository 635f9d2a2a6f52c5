// SPDX-License-Identifier: Zlib
#include "platform/win32/WinPlatform.h"

#include "base/RuntimeError.h"
#include "platform/win32/EscapiWebcam.h"
#include "platform/win32/MessageWindow.h"
#include "platform/win32/WinMusic.h"
#include "platform/win32/WinText.h"
#include "platform/win32/WinWaveOut.h"
#include "platform/win32/WinWindow.h"

#include <algorithm>
#include <chrono>
#include <limits>

namespace win32
{
namespace
{
constexpr UINT ClockStep = 1;             // milliseconds
constexpr UINT TimerIsDue = WM_APP;       // only wakes the message loop
constexpr DWORD LongestTimer = 60 * 1000; // milliseconds
constexpr const wchar_t* InstanceName = L"Local\\Velkar";

// On a thread of the system's.
void CALLBACK PostDue(UINT, UINT, DWORD_PTR window, DWORD_PTR, DWORD_PTR)
{
    PostMessageW(reinterpret_cast<HWND>(window), TimerIsDue, 0, 0);
}

// A multimedia timer that posts to the window once; none where the system has none left.
class OneShot
{
public:
    OneShot(HWND window, DWORD milliseconds)
        : Id(timeSetEvent(milliseconds, ClockStep, &PostDue, reinterpret_cast<DWORD_PTR>(window),
                          TIME_ONESHOT | TIME_CALLBACK_FUNCTION | TIME_KILL_SYNCHRONOUS))
    {
    }
    ~OneShot()
    {
        if (Id != 0)
            timeKillEvent(Id);
    }
    OneShot(const OneShot&) = delete;
    OneShot& operator=(const OneShot&) = delete;

    bool IsSet() const { return Id != 0; }

private:
    MMRESULT Id;
};
}

WinPlatform::WinPlatform(std::filesystem::path data, std::filesystem::path program)
    : TheFiles(std::move(data)), TheWebcam(std::make_unique<EscapiWebcam>(std::move(program))),
      Messages(std::make_unique<MessageWindow>())
{
    if (Messages->Handle() == nullptr)
        throw base::RuntimeError(base::ErrorMemory);
    timeBeginPeriod(ClockStep);
    ClockStart = GetTickCount();
    FineStart = timeGetTime();
}

WinPlatform::~WinPlatform()
{
    timeEndPeriod(ClockStep);
    if (InstanceMutex != nullptr)
        CloseHandle(InstanceMutex);
}

void WinPlatform::Run(platform::Program& program)
{
    while (!program.Ended())
    {
        WaitMessage(program.NextTimer());
        PumpEvents();
        if (!program.Ended())
            program.RunTimers();
    }
}

void WinPlatform::WaitMessage(std::uint32_t milliseconds) const
{
    if (milliseconds == 0 || !Queue.IsEmpty())
        return;
    const auto wait = std::min<DWORD>(milliseconds, LongestTimer);
    const OneShot timer(Messages->Handle(), wait);
    MsgWaitForMultipleObjectsEx(0, nullptr, timer.IsSet() ? INFINITE : wait, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
}

void WinPlatform::PumpEvents()
{
    Queue.Deliver();
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);)
    {
        TranslateMessage(&message);
        DispatchMessageW(&message);
        Queue.Deliver();
    }
}

void WinPlatform::WaitEvents(std::uint32_t milliseconds)
{
    const std::uint32_t start = TickCount();
    for (std::uint32_t passed = 0; passed < milliseconds; passed = TickCount() - start)
    {
        WaitMessage(milliseconds - passed);
        PumpEvents();
    }
}

// GetTickCount moves in steps of up to 16 ms, too coarse for ticks of 25; timeGetTime counts the same milliseconds one
// by one.
std::uint32_t WinPlatform::TickCount()
{
    return ClockStart + (timeGetTime() - FineStart);
}

std::uint64_t WinPlatform::ClockSeed()
{
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

int WinPlatform::ProcessorCount()
{
    SYSTEM_INFO system = {};
    GetSystemInfo(&system);
    return std::max(1, static_cast<int>(system.dwNumberOfProcessors));
}

bool WinPlatform::IsFirstInstance()
{
    if (InstanceMutex != nullptr)
        return true;
    InstanceMutex = CreateMutexW(nullptr, FALSE, InstanceName);
    // Where none can be made, a second instance is better than none.
    if (InstanceMutex == nullptr || GetLastError() != ERROR_ALREADY_EXISTS)
        return true;
    CloseHandle(InstanceMutex);
    InstanceMutex = nullptr;
    return false;
}

std::unique_ptr<platform::Window> WinPlatform::MakeWindow(platform::WindowEvents& events, platform::Size size)
{
    return std::make_unique<WinWindow>(Queue, events, size);
}

std::unique_ptr<platform::WaveOut> WinPlatform::MakeWaveOut(platform::WaveEvents& events)
{
    return std::make_unique<WinWaveOut>(Messages->Handle(), Queue, events);
}

std::unique_ptr<platform::MusicPlayer> WinPlatform::MakeMusicPlayer(platform::MusicEvents& events)
{
    return std::make_unique<WinMusic>(Queue, events);
}

void ShowStartError(const std::string& text)
{
    MessageBoxW(nullptr, ToWide(text).c_str(), L"Velkar", MB_OK | MB_ICONERROR | MB_SETFOREGROUND);
}
}
