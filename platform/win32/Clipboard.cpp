// SPDX-License-Identifier: Zlib
#include "platform/win32/Clipboard.h"

#include "platform/win32/WinText.h"

#include <algorithm>
#include <cwchar>

namespace win32
{
namespace
{
constexpr std::size_t LongestText = 1u << 20; // characters taken
constexpr int Tries = 20;                     // while another program has it open
constexpr DWORD BetweenTries = 5;             // milliseconds

class OpenedClipboard
{
public:
    explicit OpenedClipboard(HWND window)
    {
        for (int i = 0; i < Tries && !IsOpen; ++i)
        {
            if (i > 0)
                Sleep(BetweenTries);
            IsOpen = OpenClipboard(window) != 0;
        }
    }
    ~OpenedClipboard()
    {
        if (IsOpen)
            CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;

    bool IsOpen = false;
};
}

std::string ReadClipboard(HWND window)
{
    const OpenedClipboard clipboard(window);
    const HANDLE data = clipboard.IsOpen ? GetClipboardData(CF_UNICODETEXT) : nullptr;
    const auto* text = data == nullptr ? nullptr : static_cast<const wchar_t*>(GlobalLock(data));
    if (text == nullptr)
        return {};
    // Another program's block: nothing says that a null ends it.
    const std::size_t most = std::min<std::size_t>(GlobalSize(data) / sizeof(wchar_t), LongestText);
    std::string result = FromWide({text, wcsnlen(text, most)});
    GlobalUnlock(data);
    return result;
}

void WriteClipboard(HWND window, const std::string& text)
{
    const std::wstring wide = ToWide(text);
    const OpenedClipboard clipboard(window);
    if (!clipboard.IsOpen)
        return;
    EmptyClipboard();
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, (wide.size() + 1) * sizeof(wchar_t));
    auto* to = block == nullptr ? nullptr : static_cast<wchar_t*>(GlobalLock(block));
    if (to != nullptr)
    {
        std::copy_n(wide.c_str(), wide.size() + 1, to);
        GlobalUnlock(block);
    }
    // The system owns what it has taken.
    if (block != nullptr && (to == nullptr || SetClipboardData(CF_UNICODETEXT, block) == nullptr))
        GlobalFree(block);
}
}
