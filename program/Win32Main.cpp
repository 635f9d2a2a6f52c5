// SPDX-License-Identifier: Zlib
// The desktop program of Windows: no console, so what goes wrong at the start is shown in a message box.
#include "platform/FindData.h"
#include "platform/win32/WinPlatform.h"
#include "program/RunDesktop.h"

// As the system declares it: its own header would rename what is called as in the game.
extern "C" int __stdcall WinMain(struct HINSTANCE__*, struct HINSTANCE__*, char*, int);

extern "C" int __stdcall WinMain(struct HINSTANCE__*, struct HINSTANCE__*, char*, int)
{
    const std::filesystem::path program = platform::ExecutablePath(nullptr);
    return program::RunDesktop([&] { return win32::WinPlatform(platform::FindData(program), program.parent_path()); },
                               win32::ShowStartError);
}
