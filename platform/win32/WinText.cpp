// SPDX-License-Identifier: Zlib
#include "platform/win32/WinText.h"

#include <windows.h>

#include <algorithm>
#include <climits>

namespace win32
{
namespace
{
// The system's lengths are of 32 bits.
int Length(std::size_t size)
{
    return static_cast<int>(std::min(size, static_cast<std::size_t>(INT_MAX / 4)));
}
}

std::wstring ToWide(std::string_view utf8)
{
    const int from = Length(utf8.size());
    const int length = from == 0 ? 0 : MultiByteToWideChar(CP_UTF8, 0, utf8.data(), from, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    if (length > 0)
        MultiByteToWideChar(CP_UTF8, 0, utf8.data(), from, wide.data(), length);
    return wide;
}

std::string FromWide(std::wstring_view wide)
{
    const int from = Length(wide.size());
    const int length = from == 0 ? 0 : WideCharToMultiByte(CP_UTF8, 0, wide.data(), from, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(length), '\0');
    if (length > 0)
        WideCharToMultiByte(CP_UTF8, 0, wide.data(), from, utf8.data(), length, nullptr, nullptr);
    return utf8;
}
}
