// SPDX-License-Identifier: Zlib
#include "platform/win32/WinKeys.h"

#include "base/Text.h"
#include "platform/Keys.h"
#include "platform/win32/WinText.h"

namespace win32
{
namespace
{
constexpr std::uint8_t FirstPrinted = 32, Delete = 127;
}

std::int16_t GameKey(std::uintptr_t virtualKey, std::int16_t backslash)
{
    const auto code = static_cast<std::int16_t>(virtualKey & 255);
    // With Shift, Ctrl or Alt in the upper byte, or none at all, it stays what the system says.
    if (backslash <= 0 || backslash > 255 || backslash == platform::KeyBackslash)
        return code;
    if (code == backslash)
        return platform::KeyBackslash;
    return code == platform::KeyBackslash ? backslash : code;
}

std::uint8_t GameCharacter(std::uintptr_t unit)
{
    if (unit > 0xFFFF ||
        (unit >= 0xDC00 && unit <= 0xDFFF)) // the second half of a pair: the first one was the character
        return 0;
    if (unit == Delete) // Ctrl and Backspace
        return platform::Backspace;
    if (unit < FirstPrinted)
        return unit <= platform::Escape ? static_cast<std::uint8_t>(unit) : std::uint8_t{0};
    const auto character = static_cast<wchar_t>(unit);
    const std::string text = FromWide({&character, 1});
    std::size_t at = 0;
    return text.empty() ? std::uint8_t{'?'} : base::NextCode(text, at);
}
}
