// SPDX-License-Identifier: Zlib
// platform/Keys.h: the codes of the keys: the virtual-key codes of the Windows keyboard, in every back end. Letters and
// the digits of the upper row are their ASCII capitals ('A' is 65, '1' is 49). Typed characters are no keys: they are
// codes of the system code page, and what Ctrl makes of the letters is 1 to 26.
#pragma once
#include <cstdint>

namespace platform
{
enum Key : std::int16_t
{
    KeyBackspace = 8,
    KeyTab = 9,
    KeyEnter = 13,
    KeyShift = 16,
    KeyCtrl = 17,
    KeyAlt = 18,
    KeyPause = 19,
    KeyCapsLock = 20,
    KeyEsc = 27,
    KeySpace = 32,
    KeyPageUp = 33,
    KeyPageDown = 34,
    KeyEnd = 35,
    KeyHome = 36,
    KeyLeft = 37,
    KeyUp = 38,
    KeyRight = 39,
    KeyDown = 40,
    KeyPrint = 42,
    KeyPrintScreen = 44,
    KeyInsert = 45,
    KeyDelete = 46,
    KeyLeftSystem = 91,
    KeyRightSystem = 92,
    KeyMenu = 93,
    KeyPad0 = 96, // and on to 105 for 9
    KeyPad9 = 105,
    KeyPadMultiply = 106,
    KeyPadPlus = 107,
    KeyPadSeparator = 108,
    KeyPadMinus = 109,
    KeyPadPoint = 110,
    KeyPadDivide = 111,
    KeyF1 = 112, // and on to 135 for F24
    KeyF4 = 115,
    KeyF13 = 124,
    KeyNumLock = 144,
    KeyScrollLock = 145,
    // Named for what an American keyboard prints on them, but the one that types "\", which is that in every layout.
    KeySemicolon = 186,
    KeyPlus = 187,
    KeyComma = 188,
    KeyMinus = 189,
    KeyPoint = 190,
    KeySlash = 191,
    KeyBackquote = 192,
    KeyLeftBracket = 219,
    KeyBackslash = 220,
    KeyRightBracket = 221,
    KeyQuote = 222,
    KeyAngle = 226 // beside the left Shift
};

// Typed characters that act rather than print.
enum Control : std::uint8_t
{
    CtrlA = 1,
    CtrlC = 3,
    Backspace = 8,
    Tab = 9,
    Enter = 13,
    CtrlV = 22,
    CtrlX = 24,
    Escape = 27
};
}
