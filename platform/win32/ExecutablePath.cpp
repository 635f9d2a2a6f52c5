// SPDX-License-Identifier: Zlib
#include "platform/FindData.h"

#include <windows.h>

namespace platform
{
std::filesystem::path ExecutablePath(const char*)
{
    constexpr DWORD LongestPath = 1u << 15; // of the system
    std::wstring name;
    for (DWORD size = MAX_PATH; size <= LongestPath; size *= 2)
    {
        name.resize(size);
        const DWORD length = GetModuleFileNameW(nullptr, name.data(), size);
        if (length < size)
            return name.substr(0, length);
    }
    return {};
}
}
