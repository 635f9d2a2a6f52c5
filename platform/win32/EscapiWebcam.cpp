// SPDX-License-Identifier: Zlib
#include "platform/win32/EscapiWebcam.h"

#include <string>
#include <utility>

namespace win32
{
namespace
{
constexpr std::intptr_t FirstDevice = 0;
constexpr int Word = 4; // bytes of an argument on 32 bits

// On 32 bits a name carries the bytes of its arguments where the function clears them away itself.
FARPROC Find(HMODULE module, const char* name, int argumentBytes)
{
#ifndef _WIN64
    const std::string decorated = std::string("_") + name + "@" + std::to_string(argumentBytes);
    if (const FARPROC found = GetProcAddress(module, decorated.c_str()))
        return found;
#else
    static_cast<void>(argumentBytes);
#endif
    return GetProcAddress(module, name);
}

// Calls a function of at most two arguments.
#ifdef _WIN64
std::int32_t Call(FARPROC function, std::intptr_t first = 0, std::intptr_t second = 0)
{
    using Function = std::int32_t(WINAPI*)(std::intptr_t, std::intptr_t);
    return reinterpret_cast<Function>(reinterpret_cast<void*>(function))(first, second);
}
#else
// A plain name does not say who clears the arguments away. So the stack is put back from a register that both ways of
// calling keep, and arguments too many do no harm.
[[gnu::noipa]] std::int32_t Call(FARPROC function, std::intptr_t first = 0, std::intptr_t second = 0)
{
    std::int32_t result = 0;
    asm volatile("movl %%esp, %%ebx\n\t"
                 "andl $-16, %%esp\n\t"
                 "subl $8, %%esp\n\t"
                 "pushl %%edi\n\t"
                 "pushl %%esi\n\t"
                 "call *%%eax\n\t"
                 "movl %%ebx, %%esp"
                 : "=a"(result)
                 : "a"(function), "S"(first), "D"(second)
                 : "ebx", "ecx", "edx", "memory", "cc");
    return result;
}
#endif

// While it lives, a library that cannot be loaded brings no message box of the system.
class Quietly
{
public:
    Quietly() { SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &Former); }
    ~Quietly() { SetThreadErrorMode(Former, nullptr); }
    Quietly(const Quietly&) = delete;
    Quietly& operator=(const Quietly&) = delete;

private:
    DWORD Former = 0;
};
}

EscapiWebcam::~EscapiWebcam()
{
    DeinitCapture();
}

EscapiWebcam::Library EscapiWebcam::Load(const wchar_t* name) const
{
    // What the library needs itself is looked for beside it.
    if (Library found{LoadLibraryExW((Program / name).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH)})
        return found;
    return Library{LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)};
}

bool EscapiWebcam::LoadBoth()
{
    const Quietly quietly;
    Frames = Load(L"escapi.dll");
    Opening = Load(L"escapivb.dll");
    if (Frames == nullptr || Opening == nullptr)
        return false;
    Setup = Find(Opening.get(), "setupESCAPIVB", 0);
    Init = Find(Opening.get(), "initCaptureVB", 2 * Word);
    DoFirst = Find(Opening.get(), "doCaptureVB", Word);
    Deinit = Find(Opening.get(), "deinitCaptureVB", Word);
    Do = Find(Frames.get(), "doCapture", Word);
    IsDone = Find(Frames.get(), "isCaptureDone", Word);
    for (const FARPROC function : {Setup, Init, DoFirst, Deinit, Do, IsDone})
        if (function == nullptr)
            return false;
    return true;
}

std::int32_t EscapiWebcam::SetupCapture()
{
    DeinitCapture();
    IsLoaded = LoadBoth();
    return IsLoaded ? Call(Setup) : 0;
}

bool EscapiWebcam::InitCapture(const platform::CaptureParams& params)
{
    DeinitCapture();
    if (!IsLoaded)
        return false;
    Params = {params.Target, params.Width, params.Height};
    IsOpen = Call(Init, FirstDevice, reinterpret_cast<std::intptr_t>(&Params)) != 0;
    HasAsked = false;
    return IsOpen;
}

// The first request goes the way the device was opened.
void EscapiWebcam::DoCapture()
{
    if (IsOpen)
        Call(std::exchange(HasAsked, true) ? Do : DoFirst, FirstDevice);
}

bool EscapiWebcam::IsCaptureDone()
{
    return HasAsked && Call(IsDone, FirstDevice) != 0;
}

void EscapiWebcam::DeinitCapture()
{
    if (std::exchange(IsOpen, false))
        Call(Deinit, FirstDevice);
    HasAsked = false;
}
}
