// SPDX-License-Identifier: Zlib
#include "platform/sdl/SdlKeys.h"

#include <gtest/gtest.h>

namespace
{
SDL_Keysym Key(SDL_Scancode scancode, SDL_Keycode label, int mod = 0)
{
    SDL_Keysym key{};
    key.scancode = scancode;
    key.sym = label;
    key.mod = static_cast<std::uint16_t>(mod);
    return key;
}
}

TEST(SdlKeys, LettersAndDigitsGoByTheirLabel)
{
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_Q, 'a')), 65); // a French keyboard
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_B, 'b')), 66);
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_1, '1')), 49);
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_1, '&')), 49);   // digits on Shift
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_0, 0xE0)), 222); // the à key of the label stays a letter key
}

TEST(SdlKeys, TheKeyThatTypesTheBackslashIs220)
{
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_BACKSLASH, '\\')), 220); // American
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_GRAVE, '\\')), 220);     // Italian, left of 1
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_BACKSLASH, 0xF9)), 191); // Italian ù
}

TEST(SdlKeys, PunctuationOfItalianKeyboards)
{
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_MINUS, '\'')), 219);
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_APOSTROPHE, '\'')), 222);
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_LEFTBRACKET, 0xE8)), 186);
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_NONUSBACKSLASH, '<')), 226);
}

TEST(SdlKeys, TheRestGoesByPosition)
{
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_UP, SDLK_UP)), 38);
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_KP_8, SDLK_KP_8)), 104); // apart from the arrow
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_KP_0, SDLK_KP_0)), 96);
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_PAGEUP, SDLK_PAGEUP)), 33);
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_RCTRL, SDLK_RCTRL)), 17);
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_F12, SDLK_F12)), 123);
    EXPECT_EQ(sdl::VirtualKey(Key(SDL_SCANCODE_UNKNOWN, SDLK_UNKNOWN)), 0);
}

TEST(SdlKeys, ControlCharacters)
{
    EXPECT_EQ(sdl::ControlCharacter(Key(SDL_SCANCODE_C, 'c', KMOD_LCTRL)), 3);
    EXPECT_EQ(sdl::ControlCharacter(Key(SDL_SCANCODE_V, 'v', KMOD_RCTRL)), 22);
    EXPECT_EQ(sdl::ControlCharacter(Key(SDL_SCANCODE_Q, 'q', KMOD_LCTRL | KMOD_RALT)), 0); // AltGr types a letter
    EXPECT_EQ(sdl::ControlCharacter(Key(SDL_SCANCODE_RETURN, SDLK_RETURN)), 13);
    EXPECT_EQ(sdl::ControlCharacter(Key(SDL_SCANCODE_KP_ENTER, SDLK_KP_ENTER)), 13);
    EXPECT_EQ(sdl::ControlCharacter(Key(SDL_SCANCODE_A, 'a')), 0);
}
