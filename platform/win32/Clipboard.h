// platform/win32/Clipboard.h: the system's clipboard as UTF-8 text.
#pragma once
#include <windows.h>

#include <string>

namespace win32
{
// At most the first million characters; empty where there is no text, or another program does not let go of it.
std::string ReadClipboard(HWND window);
// Nothing happens where another program does not let go of it.
void WriteClipboard(HWND window, const std::string& text);
}
