// SPDX-License-Identifier: Zlib
#include "platform/sdl/SdlKeys.h"

#include "platform/Keys.h"

namespace sdl
{
namespace
{
struct Code
{
    std::int32_t Key;
    platform::Key Virtual;
};

// Punctuation and the letters of Italian keyboards, by what stands on the key.
constexpr Code ByLabel[] = {
    {';', platform::KeySemicolon},  {'=', platform::KeyPlus},          {'+', platform::KeyPlus},
    {',', platform::KeyComma},      {'-', platform::KeyMinus},         {'.', platform::KeyPoint},
    {'/', platform::KeySlash},      {'`', platform::KeyBackquote},     {'[', platform::KeyLeftBracket},
    {'\\', platform::KeyBackslash}, {']', platform::KeyRightBracket},  {'\'', platform::KeyQuote},
    {'<', platform::KeyAngle},      {0xE8, platform::KeySemicolon},    {0xF9, platform::KeySlash},
    {0xF2, platform::KeyBackquote}, {0xEC, platform::KeyRightBracket}, {0xE0, platform::KeyQuote},
};

constexpr Code ByPosition[] = {
    {SDL_SCANCODE_BACKSPACE, platform::KeyBackspace},
    {SDL_SCANCODE_TAB, platform::KeyTab},
    {SDL_SCANCODE_RETURN, platform::KeyEnter},
    {SDL_SCANCODE_KP_ENTER, platform::KeyEnter},
    {SDL_SCANCODE_LSHIFT, platform::KeyShift},
    {SDL_SCANCODE_RSHIFT, platform::KeyShift},
    {SDL_SCANCODE_LCTRL, platform::KeyCtrl},
    {SDL_SCANCODE_RCTRL, platform::KeyCtrl},
    {SDL_SCANCODE_LALT, platform::KeyAlt},
    {SDL_SCANCODE_RALT, platform::KeyAlt},
    {SDL_SCANCODE_PAUSE, platform::KeyPause},
    {SDL_SCANCODE_CAPSLOCK, platform::KeyCapsLock},
    {SDL_SCANCODE_ESCAPE, platform::KeyEsc},
    {SDL_SCANCODE_SPACE, platform::KeySpace},
    {SDL_SCANCODE_PAGEUP, platform::KeyPageUp},
    {SDL_SCANCODE_PAGEDOWN, platform::KeyPageDown},
    {SDL_SCANCODE_END, platform::KeyEnd},
    {SDL_SCANCODE_HOME, platform::KeyHome},
    {SDL_SCANCODE_LEFT, platform::KeyLeft},
    {SDL_SCANCODE_UP, platform::KeyUp},
    {SDL_SCANCODE_RIGHT, platform::KeyRight},
    {SDL_SCANCODE_DOWN, platform::KeyDown},
    {SDL_SCANCODE_PRINTSCREEN, platform::KeyPrintScreen},
    {SDL_SCANCODE_INSERT, platform::KeyInsert},
    {SDL_SCANCODE_DELETE, platform::KeyDelete},
    {SDL_SCANCODE_LGUI, platform::KeyLeftSystem},
    {SDL_SCANCODE_RGUI, platform::KeyRightSystem},
    {SDL_SCANCODE_APPLICATION, platform::KeyMenu},
    {SDL_SCANCODE_KP_0, platform::KeyPad0},
    {SDL_SCANCODE_KP_MULTIPLY, platform::KeyPadMultiply},
    {SDL_SCANCODE_KP_PLUS, platform::KeyPadPlus},
    {SDL_SCANCODE_KP_COMMA, platform::KeyPadSeparator},
    {SDL_SCANCODE_KP_MINUS, platform::KeyPadMinus},
    {SDL_SCANCODE_KP_PERIOD, platform::KeyPadPoint},
    {SDL_SCANCODE_KP_DIVIDE, platform::KeyPadDivide},
    {SDL_SCANCODE_NUMLOCKCLEAR, platform::KeyNumLock},
    {SDL_SCANCODE_SCROLLLOCK, platform::KeyScrollLock},
};

// A run of keys whose codes follow one another, as the first `count` scan codes from `first` do.
std::int16_t InRun(int scancode, int first, int count, int virtualKey)
{
    const int step = scancode - first;
    return step >= 0 && step < count ? static_cast<std::int16_t>(virtualKey + step) : std::int16_t{0};
}

std::int16_t PositionCode(SDL_Scancode scancode)
{
    for (const Code& code : ByPosition)
        if (code.Key == scancode)
            return code.Virtual;
    if (const auto keypad = InRun(scancode, SDL_SCANCODE_KP_1, 9, platform::KeyPad0 + 1))
        return keypad;
    if (const auto function = InRun(scancode, SDL_SCANCODE_F1, 12, platform::KeyF1))
        return function;
    return InRun(scancode, SDL_SCANCODE_F13, 12, platform::KeyF13);
}

std::int16_t LabelCode(const SDL_Keysym& key)
{
    if (key.sym >= 'a' && key.sym <= 'z')
        return static_cast<std::int16_t>(key.sym - 'a' + 'A');
    if (key.sym >= '0' && key.sym <= '9')
        return static_cast<std::int16_t>(key.sym);
    // Right of 0 an Italian keyboard has the apostrophe, and Windows gives it another code there.
    if (key.sym == '\'' && key.scancode == SDL_SCANCODE_MINUS)
        return platform::KeyLeftBracket;
    for (const Code& code : ByLabel)
        if (code.Key == key.sym)
            return code.Virtual;
    return 0;
}
}

std::int16_t VirtualKey(const SDL_Keysym& key)
{
    if (const auto code = PositionCode(key.scancode))
        return code;
    if (const auto code = LabelCode(key))
        return code;
    // The digit row keeps its codes where the layout puts the digits on Shift.
    if (key.scancode == SDL_SCANCODE_0)
        return '0';
    return InRun(key.scancode, SDL_SCANCODE_1, 9, '1');
}

std::uint8_t ControlCharacter(const SDL_Keysym& key)
{
    const std::int16_t code = VirtualKey(key);
    const bool alt = (key.mod & (KMOD_ALT | KMOD_MODE)) != 0;
    if ((key.mod & KMOD_CTRL) != 0 && !alt && code >= 'A' && code <= 'Z')
        return static_cast<std::uint8_t>(code - 'A' + 1);
    switch (code)
    {
    case platform::KeyBackspace:
        return platform::Backspace;
    case platform::KeyTab:
        return platform::Tab;
    case platform::KeyEnter:
        return platform::Enter;
    case platform::KeyEsc:
        return platform::Escape;
    default:
        return 0;
    }
}
}
