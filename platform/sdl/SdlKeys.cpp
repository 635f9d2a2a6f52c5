#include "platform/sdl/SdlKeys.h"

namespace platform
{
namespace
{
struct Code
{
    std::int32_t Key;
    std::int16_t Virtual;
};

// Punctuation and the letters of Italian keyboards, by what stands on the key.
constexpr Code ByLabel[] = {
    {';', 186},  {'=', 187}, {'+', 187},  {',', 188}, {'-', 189},  {'.', 190},  {'/', 191},  {'`', 192},  {'[', 219},
    {'\\', 220}, {']', 221}, {'\'', 222}, {'<', 226}, {0xE8, 186}, {0xF9, 191}, {0xF2, 192}, {0xEC, 221}, {0xE0, 222},
};

constexpr Code ByPosition[] = {
    {SDL_SCANCODE_BACKSPACE, 8},    {SDL_SCANCODE_TAB, 9},          {SDL_SCANCODE_RETURN, 13},
    {SDL_SCANCODE_KP_ENTER, 13},    {SDL_SCANCODE_LSHIFT, 16},      {SDL_SCANCODE_RSHIFT, 16},
    {SDL_SCANCODE_LCTRL, 17},       {SDL_SCANCODE_RCTRL, 17},       {SDL_SCANCODE_LALT, 18},
    {SDL_SCANCODE_RALT, 18},        {SDL_SCANCODE_PAUSE, 19},       {SDL_SCANCODE_CAPSLOCK, 20},
    {SDL_SCANCODE_ESCAPE, 27},      {SDL_SCANCODE_SPACE, 32},       {SDL_SCANCODE_PAGEUP, 33},
    {SDL_SCANCODE_PAGEDOWN, 34},    {SDL_SCANCODE_END, 35},         {SDL_SCANCODE_HOME, 36},
    {SDL_SCANCODE_LEFT, 37},        {SDL_SCANCODE_UP, 38},          {SDL_SCANCODE_RIGHT, 39},
    {SDL_SCANCODE_DOWN, 40},        {SDL_SCANCODE_PRINTSCREEN, 44}, {SDL_SCANCODE_INSERT, 45},
    {SDL_SCANCODE_DELETE, 46},      {SDL_SCANCODE_LGUI, 91},        {SDL_SCANCODE_RGUI, 92},
    {SDL_SCANCODE_APPLICATION, 93}, {SDL_SCANCODE_KP_0, 96},        {SDL_SCANCODE_KP_MULTIPLY, 106},
    {SDL_SCANCODE_KP_PLUS, 107},    {SDL_SCANCODE_KP_COMMA, 108},   {SDL_SCANCODE_KP_MINUS, 109},
    {SDL_SCANCODE_KP_PERIOD, 110},  {SDL_SCANCODE_KP_DIVIDE, 111},  {SDL_SCANCODE_NUMLOCKCLEAR, 144},
    {SDL_SCANCODE_SCROLLLOCK, 145},
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
    if (const auto keypad = InRun(scancode, SDL_SCANCODE_KP_1, 9, 97))
        return keypad;
    if (const auto function = InRun(scancode, SDL_SCANCODE_F1, 12, 112))
        return function;
    return InRun(scancode, SDL_SCANCODE_F13, 12, 124);
}

std::int16_t LabelCode(const SDL_Keysym& key)
{
    if (key.sym >= 'a' && key.sym <= 'z')
        return static_cast<std::int16_t>(key.sym - 'a' + 'A');
    if (key.sym >= '0' && key.sym <= '9')
        return static_cast<std::int16_t>(key.sym);
    // Right of 0 an Italian keyboard has the apostrophe, and Windows gives it another code there.
    if (key.sym == '\'' && key.scancode == SDL_SCANCODE_MINUS)
        return 219;
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
        return 48;
    return InRun(key.scancode, SDL_SCANCODE_1, 9, 49);
}

std::uint8_t ControlCharacter(const SDL_Keysym& key)
{
    const std::int16_t code = VirtualKey(key);
    const bool alt = (key.mod & (KMOD_ALT | KMOD_MODE)) != 0;
    if ((key.mod & KMOD_CTRL) != 0 && !alt && code >= 'A' && code <= 'Z')
        return static_cast<std::uint8_t>(code - 'A' + 1);
    switch (code)
    {
    case 8:
    case 9:
    case 13:
    case 27:
        return static_cast<std::uint8_t>(code);
    default:
        return 0;
    }
}
}
