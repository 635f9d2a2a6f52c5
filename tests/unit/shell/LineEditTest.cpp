// SPDX-License-Identifier: Zlib
// One line of text under the caret.
#include "shell/forms/LineEdit.h"

#include "base/Numbers.h"
#include "base/Random.h"
#include "base/Text.h"

#include <gtest/gtest.h>

namespace
{
using forms::Selection;

constexpr std::int16_t End = 35, Home = 36, Left = 37, Right = 39, Delete = 46;
constexpr std::uint8_t Backspace = 8;

struct Line
{
    std::string Text;
    Selection Edit;

    explicit Line(std::string text) : Text(std::move(text)) { Edit = {Text.size(), Text.size()}; }
    bool Key(std::int16_t code, bool shift = false, bool ctrl = false)
    {
        return forms::EditKey(Text, Edit, code, shift, ctrl);
    }
    bool Character(int code) { return forms::EditCharacter(Text, Edit, static_cast<std::uint8_t>(code)); }
    std::string Selected() const { return std::string(forms::Selected(Edit, Text)); }
};

bool HasNoCharacter(int code)
{
    return code < 32 || code == 127 || code == 129 || code == 141 || code == 143 || code == 144 || code == 157;
}

TEST(LineEdit, EveryCharacterOfTheCodePageIsTypedAndNoControlCharacter)
{
    for (int code = 0; code < 256; ++code)
    {
        if (code == Backspace)
            continue;
        Line line("ab");
        line.Key(Left);
        const bool taken = line.Character(code);
        EXPECT_EQ(taken, !HasNoCharacter(code)) << code;
        const std::string typed = taken ? base::FromCodePage(std::string(1, static_cast<char>(code))) : "";
        EXPECT_EQ(line.Text, "a" + typed + "b") << code;
        EXPECT_EQ(line.Edit.Caret, 1 + typed.size()) << code;
    }
}

TEST(LineEdit, TheCaretGoesByCharactersNotBytes)
{
    Line line("aè€b");
    const std::size_t stops[] = {6, 3, 1, 0, 0};
    for (const std::size_t stop : stops)
    {
        EXPECT_TRUE(line.Key(Left));
        EXPECT_EQ(line.Edit.Caret, stop);
    }
    EXPECT_TRUE(line.Key(Right));
    EXPECT_TRUE(line.Key(Right));
    EXPECT_EQ(line.Edit.Caret, 3u);
    line.Character(Backspace);
    EXPECT_EQ(line.Text, "a€b");
    line.Key(Delete);
    EXPECT_EQ(line.Text, "ab");
    EXPECT_EQ(line.Edit.Caret, 1u);
}

TEST(LineEdit, ShiftSelectsAndLettingGoCollapses)
{
    Line line("abcdef");
    line.Key(Home);
    line.Key(Right);
    line.Key(Right, true);
    line.Key(Right, true);
    EXPECT_EQ(line.Selected(), "bc");
    line.Key(Left);
    EXPECT_EQ(line.Edit.Caret, 1u);
    EXPECT_TRUE(line.Edit.IsEmpty());
    line.Key(End, true);
    EXPECT_EQ(line.Selected(), "bcdef");
    line.Key(Home, true); // the other end stays
    EXPECT_EQ(line.Selected(), "a");
    line.Key(Right);
    EXPECT_EQ(line.Edit.Caret, 1u);
    EXPECT_TRUE(line.Edit.IsEmpty());
}

TEST(LineEdit, CtrlGoesByWords)
{
    Line line("la prima  gara");
    line.Key(Left, false, true);
    EXPECT_EQ(line.Edit.Caret, 10u);
    line.Key(Left, false, true);
    EXPECT_EQ(line.Edit.Caret, 3u);
    line.Key(Right, true, true);
    EXPECT_EQ(line.Selected(), "prima  ");
    line.Key(Home);
    line.Key(Left, false, true);
    EXPECT_EQ(line.Edit.Caret, 0u);
    line.Key(Delete, false, true);
    EXPECT_EQ(line.Text, "prima  gara");
}

TEST(LineEdit, NothingIsErasedBeyondTheEnds)
{
    Line line("ab");
    EXPECT_TRUE(line.Key(Delete));
    line.Key(Home);
    EXPECT_TRUE(line.Character(Backspace));
    EXPECT_EQ(line.Text, "ab");
    Line empty("");
    for (const std::int16_t key : {Left, Right, Home, End, Delete})
        EXPECT_TRUE(empty.Key(key, true, true));
    empty.Character(Backspace);
    EXPECT_EQ(empty.Text, "");
}

TEST(LineEdit, WhatIsSelectedIsReplacedOrErased)
{
    Line line("abcd");
    forms::SelectAll(line.Edit, line.Text);
    EXPECT_EQ(line.Selected(), "abcd");
    line.Character('x');
    EXPECT_EQ(line.Text, "x");
    EXPECT_EQ(line.Edit.Caret, 1u);
    for (const bool byKey : {true, false})
    {
        Line other("abcd");
        other.Key(Left, true);
        other.Key(Left, true);
        byKey ? other.Key(Delete) : other.Character(Backspace);
        EXPECT_EQ(other.Text, "ab");
        EXPECT_EQ(other.Edit.Caret, 2u);
    }
}

TEST(LineEdit, OtherKeysAreNoneOfALine)
{
    Line line("ab");
    for (const int key : {0, 8, 9, 13, 27, 32, 38, 40, 65, 112, -5})
        EXPECT_FALSE(line.Key(static_cast<std::int16_t>(key))) << key;
    EXPECT_EQ(line.Text, "ab");
}

TEST(LineEdit, InsertedLineBreaksAndControlCharactersAreLeftOut)
{
    Line line("()");
    line.Key(Left);
    EXPECT_TRUE(forms::Insert(line.Text, line.Edit, "a\r\nb\tc\x01\x7F\xC2\x81 è\xE4\xB8\xAD"));
    EXPECT_EQ(line.Text, "(abc è?)"); // no such letter in the code page
    EXPECT_EQ(line.Edit.Caret, line.Text.size() - 1);
    EXPECT_TRUE(forms::Insert(line.Text, line.Edit, "\xFF\xC3"));
    EXPECT_EQ(line.Text, "(abc è?"
                         "?"
                         "?)");
}

TEST(LineEdit, NothingToInsertLeavesTheSelection)
{
    Line line("abc");
    forms::SelectAll(line.Edit, line.Text);
    EXPECT_FALSE(forms::Insert(line.Text, line.Edit, ""));
    EXPECT_FALSE(forms::Insert(line.Text, line.Edit, "\r\n\x02"));
    EXPECT_EQ(line.Text, "abc");
    EXPECT_EQ(line.Selected(), "abc");
}

TEST(LineEdit, ALineTakesAThousandCharacters)
{
    Line line("");
    std::string huge;
    for (int i = 0; i < 5'000'000; ++i)
        huge += i % 2 == 0 ? "è" : "\n";
    forms::Insert(line.Text, line.Edit, huge);
    EXPECT_EQ(line.Text.size(), 2 * forms::LongestLine);
    EXPECT_FALSE(line.Character('x'));
    line.Key(Left, true); // room for one
    EXPECT_TRUE(line.Character('x'));
    EXPECT_EQ(line.Text.size(), 2 * forms::LongestLine - 1);
    EXPECT_EQ(line.Text.back(), 'x');
    EXPECT_FALSE(forms::Insert(line.Text, line.Edit, "y"));
}

TEST(LineEdit, OfALongerTextTheBeginningIsShown)
{
    EXPECT_EQ(forms::ShownPart("abc"), "abc");
    EXPECT_EQ(forms::ShownPart(""), "");
    std::string text;
    for (int i = 0; i < 3000; ++i)
        text += "è";
    EXPECT_EQ(forms::ShownPart(text).size(), 2 * forms::LongestLine);
    Line line(text);
    EXPECT_FALSE(line.Character('x')); // too long already
    EXPECT_EQ(line.Text, text);
    line.Character(Backspace);
    EXPECT_EQ(line.Text.size(), text.size() - 2);
}

TEST(LineEdit, ATextThatSomebodyElseSetsKeepsTheCaretInIt)
{
    Selection edit{100, 2};
    forms::FitTo(edit, "a€b");
    EXPECT_EQ(edit.Caret, 5u);
    EXPECT_EQ(edit.Anchor, 1u); // not in the middle of a character
    forms::FitTo(edit, "");
    EXPECT_EQ(edit.Caret, 0u);
    EXPECT_EQ(edit.Anchor, 0u);
}

TEST(LineEdit, AnyBytesUnderAnyKeysKeepTheCaretOnACharacter)
{
    base::Random random;
    random.Seed(7);
    const auto below = [&random](int count) { return base::Floor(random.Next() * count); };
    for (int round = 0; round < 200; ++round)
    {
        Line line("");
        for (int i = below(40); i > 0; --i)
            line.Text += static_cast<char>(below(4) == 0 ? below(128) : 0x80 + below(128));
        line.Edit = {static_cast<std::size_t>(below(50)), static_cast<std::size_t>(below(50))};
        for (int step = 0; step < 30; ++step)
        {
            forms::FitTo(line.Edit, line.Text);
            if (below(2) == 0)
                line.Key(static_cast<std::int16_t>(34 + below(14)), below(2) == 0, below(2) == 0);
            else
                line.Character(below(256));
            ASSERT_LE(line.Edit.Caret, line.Text.size());
            Selection again = line.Edit;
            forms::FitTo(again, line.Text);
            ASSERT_EQ(again.Caret, line.Edit.Caret) << round;
            ASSERT_EQ(again.Anchor, line.Edit.Anchor) << round;
        }
    }
}
}
