// SPDX-License-Identifier: Zlib
// Opening, closing, recall, editing, the clipboard.
#include "tests/support/Desk.h"

#include <gtest/gtest.h>

namespace
{
constexpr int Backslash = 220, Esc = 27, Up = 38, CtrlC = 3, CtrlV = 22, Enter = 13, Backspace = 8;

struct LineEditor : testing::Test, support::Desk
{
    LineEditor() { KeyUp(Backslash); }
    std::string& Text() { return Line().Text; }
};

TEST_F(LineEditor, OpensWithTheBackslashAlone)
{
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Text(), "\\");
    Type("abc");
    KeyUp(Esc);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Text(), "\\abc"); // stays until it opens again
    KeyUp(Backslash);
    EXPECT_EQ(Text(), "\\");
}

TEST_F(LineEditor, OtherKeysDoNothing)
{
    Type("abc");
    for (int code = 0; code < 256; ++code)
        if (code != Esc && code != Up)
            KeyUp(code);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Text(), "\\abc"); // the open console does not open again
    KeyUp(Esc);
    for (int code = 0; code < 256; ++code)
        if (code != Backslash)
            KeyUp(code);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Text(), "\\abc");
}

TEST_F(LineEditor, TakesNoCharactersWhileClosed)
{
    KeyUp(Esc);
    Type("abc");
    Press(Enter);
    EXPECT_EQ(Text(), "\\");
    EXPECT_EQ(LastCommand, "\\");
}

TEST_F(LineEditor, AppendsEveryCharacterAndTakesBackTheLast)
{
    Type("aàb");
    EXPECT_EQ(Text(), "\\aàb");
    Press(Backspace);
    Press(Backspace);
    EXPECT_EQ(Text(), "\\a");
    Press(Backspace);
    Press(Backspace);
    Press(Backspace);
    EXPECT_EQ(Text(), "\\"); // never deleted
}

TEST_F(LineEditor, EveryCodeIsACharacterThatCanBeTakenBack)
{
    for (int code = 0; code < 256; ++code)
    {
        if (code == CtrlC || code == CtrlV || code == Enter || code == Backspace)
            continue;
        Press(code);
        std::size_t at = 1;
        ASSERT_GT(Text().size(), 1u) << code;
        EXPECT_EQ(base::NextCode(Text(), at), code); // control characters too
        EXPECT_EQ(at, Text().size());
        Press(Backspace);
        EXPECT_EQ(Text(), "\\") << code;
    }
}

TEST_F(LineEditor, EnterOnTheBackslashAloneDoesNothing)
{
    Press(Enter);
    EXPECT_EQ(Text(), "\\");
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(LastCommand, "\\");
}

TEST_F(LineEditor, EnterRunsTheLineAndKeepsItForRecall)
{
    Type("LST");
    Press(Enter);
    EXPECT_EQ(Text(), "UserPlayer\r\nPlayer x\r\nCamera\r\nGame");
    KeyUp(Up);
    EXPECT_EQ(Text(), "\\LST"); // as typed
    Type("x");
    Press(Enter);
    EXPECT_EQ(Text(), "Comando non valido");
    KeyUp(Up);
    EXPECT_EQ(Text(), "\\LSTx"); // after a failure too
    KeyUp(Esc);
    KeyUp(Up);
    EXPECT_EQ(Text(), "\\LSTx"); // closed: nothing happens
    KeyUp(Backslash);
    KeyUp(Up);
    EXPECT_EQ(Text(), "\\LSTx"); // survives closing
}

TEST_F(LineEditor, RecallBeforeTheFirstCommandIsTheBackslash)
{
    Type("abc");
    KeyUp(Up);
    EXPECT_EQ(Text(), "\\");
}

TEST_F(LineEditor, TheFirstCharacterAfterAnAnswerBeginsANewLine)
{
    Type("help");
    Press(Enter);
    Type("g");
    EXPECT_EQ(Text(), "\\g");
    for (const int code : {Enter, Backspace, CtrlC})
    {
        Text() = "Comando non valido";
        Press(code);
        EXPECT_EQ(Text(), "\\") << code;
    }
}

TEST_F(LineEditor, CopiesTheLineAndNeverAnAnswer)
{
    Type("set camera zoom 2€");
    Press(CtrlC);
    EXPECT_EQ(Clipboard, "\\set camera zoom 2€");
    EXPECT_EQ(Text(), "\\set camera zoom 2€");
    Text() = "Camera.Zoom = 2";
    Press(CtrlC);
    EXPECT_EQ(Clipboard, "\\");
}

TEST_F(LineEditor, PastesInPlaceOfTheLine)
{
    Type("abc");
    Clipboard = "\\get game time";
    Press(CtrlV);
    EXPECT_EQ(Text(), "\\get game time");
    Clipboard = "get camera zoom"; // the backslash is put in front
    Press(CtrlV);
    EXPECT_EQ(Text(), "\\get camera zoom");
    Clipboard = "";
    Press(CtrlV);
    EXPECT_EQ(Text(), "\\");
}

TEST_F(LineEditor, PastesAnyBytes)
{
    Clipboard = "à€\x01\r\n\t" + std::string(1, '\0') + "\xFF\xC3" + "日";
    Press(CtrlV);
    EXPECT_EQ(Text(), "\\à€\x01\r\n\t" + std::string(1, '\0') + "???"); // what the code page has not is a "?"
    Press(Enter);
    EXPECT_EQ(Text(), "Comando non valido");
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    Clipboard = all;
    Press(CtrlV);
    Press(CtrlC);
    std::size_t characters = 0;
    for (std::size_t at = 0; at < Clipboard.size(); ++characters)
        base::NextCode(Clipboard, at);
    EXPECT_GT(characters, 128u); // and what comes out can go in again
    const std::string once = Text();
    Press(CtrlV);
    EXPECT_EQ(Text(), once);
}

TEST_F(LineEditor, TheLineIsBounded)
{
    Clipboard.assign(1u << 20, 'x');
    Press(CtrlV);
    EXPECT_LE(Text().size(), console::LongestLine);
    EXPECT_GT(Text().size(), console::LongestLine - 3);
    const std::size_t full = Text().size();
    Type("yyyyyyyyyyyyyyyy");
    EXPECT_LE(Text().size(), console::LongestLine);
    EXPECT_LT(Text().size() - full, 3u);
    Press(Enter);
    EXPECT_EQ(Text(), "Comando non valido");
    Clipboard.clear();
    while (Clipboard.size() < (1u << 18))
        Clipboard += "€";
    Press(CtrlV); // cut between two characters
    EXPECT_LE(Text().size(), console::LongestLine);
    EXPECT_TRUE(Text().ends_with("€"));
}

TEST_F(LineEditor, ThousandsOfCharactersAreALine)
{
    const std::string digits(5000, '0');
    Type("set camera minzoom " + digits + "3");
    Press(Enter);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(TheWorld.Camera.MinZoom, 3);
    KeyUp(Backslash);
    Type("get" + std::string(3000, ' ') + "camera");
    Press(Enter);
    EXPECT_EQ(Text(), "Oggetto non valido");
}

TEST_F(LineEditor, ADisplayThatWasNeverMadeTakesNothing)
{
    Console.Line = -1;
    KeyUp(Backslash);
    Press('a');
    console::ExecConsoleCommand(Console, "\\lst");
    EXPECT_FALSE(console::IsOpen(Console));
    EXPECT_EQ(LastCommand, "\\");
}
}
