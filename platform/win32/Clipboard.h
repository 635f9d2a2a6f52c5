// SPDX-License-Identifier: Zlib
// platform/win32/Clipboard.h: the system's clipboard as UTF-8 text.
#pragma once
#include <windows.h>

#include <string>

namespace win32
{
// At most the first million characters; empty where there is no text, or another program keeps it open.
std::string ReadClipboard(HWND window);
// Nothing happens where another program keeps it open.
void WriteClipboard(HWND window, const std::string& text);
}
