// SPDX-License-Identifier: Zlib
#include "platform/win32/WinKeys.h"

#include <gtest/gtest.h>

namespace
{
using win32::GameCharacter;
using win32::GameKey;

constexpr std::int16_t Shift = 0x100, CtrlAlt = 0x600;

TEST(GameKey, IsTheVirtualKeyWhereThatOfTheBackslashIs220)
{
    EXPECT_EQ(GameKey(37, 220), 37);
    EXPECT_EQ(GameKey(220, 220), 220);
    EXPECT_EQ(GameKey(226, 220), 226);
}

TEST(GameKey, OfTheBackslashIs220WhereTheLayoutHasItElsewhere)
{
    EXPECT_EQ(GameKey(226, 226), 220);
    EXPECT_EQ(GameKey(220, 226), 226);
    EXPECT_EQ(GameKey(65, 226), 65);
}

TEST(GameKey, StaysWhereTheBackslashTakesTwoKeysOrIsMissing)
{
    for (const std::int16_t backslash :
         {static_cast<std::int16_t>(219 + CtrlAlt), static_cast<std::int16_t>(186 + Shift), std::int16_t{-1}})
    {
        EXPECT_EQ(GameKey(220, backslash), 220) << backslash;
        EXPECT_EQ(GameKey(219, backslash), 219) << backslash;
        EXPECT_EQ(GameKey(186, backslash), 186) << backslash;
    }
}

TEST(GameCharacter, IsTheCodePagesCode)
{
    EXPECT_EQ(GameCharacter(L'a'), 'a');
    EXPECT_EQ(GameCharacter(L'\\'), '\\');
    EXPECT_EQ(GameCharacter(0xE8), 0xE8);   // e with a grave accent
    EXPECT_EQ(GameCharacter(0x20AC), 0x80); // the euro
    EXPECT_EQ(GameCharacter(0x81), 0x81);
    EXPECT_EQ(GameCharacter(0x3B1), '?'); // alpha
}

TEST(GameCharacter, OfAPairIsToldOnce)
{
    EXPECT_EQ(GameCharacter(0xD83D), '?');
    EXPECT_EQ(GameCharacter(0xDE00), 0);
}

TEST(GameCharacter, WithCtrlRunsTo26)
{
    EXPECT_EQ(GameCharacter(3), 3);
    EXPECT_EQ(GameCharacter(22), 22);
    EXPECT_EQ(GameCharacter(27), 27); // Esc
    EXPECT_EQ(GameCharacter(28), 0);
    EXPECT_EQ(GameCharacter(31), 0);
    EXPECT_EQ(GameCharacter(127), 8); // Ctrl and Backspace
    EXPECT_EQ(GameCharacter(0x10041), 0);
}
}
