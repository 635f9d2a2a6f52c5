// SPDX-License-Identifier: Zlib
// platform/win32/WinText.h: between the UTF-8 of the game and the UTF-16 of the system. What is malformed becomes
// U+FFFD.
#pragma once
#include <string>
#include <string_view>

namespace win32
{
std::wstring ToWide(std::string_view utf8);
std::string FromWide(std::wstring_view wide);
}
