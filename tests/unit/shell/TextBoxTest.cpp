// SPDX-License-Identifier: Zlib
// Text boxes under mouse, keys and clipboard, and how they are painted.
#include "tests/support/Panel.h"
#include "typeface/Typeface.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{
struct TextBox : testing::Test, support::Panel
{
    std::string& Text() { return At("text").Text; }
    forms::Rect Room() { return forms::TextRoom(At("text"), PlaceOf("text")); }
    // A point in front of the byte.
    platform::Point Before(std::size_t byte)
    {
        return {Room().X + forms::CaretColumn(At("text"), byte) - Marks().Scroll, MiddleOf("text").Y};
    }
    void Set(std::string text)
    {
        Text() = std::move(text);
        Form.Focus = -1;
        Settle();
    }
    void Drag(platform::Point from, platform::Point to)
    {
        Input.MouseDown(from, Now);
        Input.MouseMove(true, to);
        Input.MouseUp(to);
    }
    // The columns of the text's room that hold the colour in its middle row; -1 none.
    std::pair<std::int32_t, std::int32_t> ColumnsOf(base::Rgb colour, std::int32_t y)
    {
        std::int32_t first = -1, last = -1;
        for (std::int32_t x = Room().X; x < Room().X + Room().W; ++x)
            if (PixelAt(x, y) == support::ToRgb(colour))
            {
                first = first < 0 ? x : first;
                last = x;
            }
        return {first, last};
    }
};

TEST_F(TextBox, AClickPlacesTheCaretAtTheNearestGap)
{
    Set("abcdef");
    for (std::size_t byte = 0; byte <= 6; ++byte)
    {
        Wait(1000);
        ClickAt(Before(byte));
        EXPECT_EQ(Focus(), "text");
        EXPECT_EQ(Edit().Caret, byte);
        EXPECT_TRUE(Edit().IsEmpty());
    }
    Wait(1000);
    ClickAt({PlaceOf("text").X + 1, MiddleOf("text").Y});
    EXPECT_EQ(Edit().Caret, 0u);
    Wait(1000);
    ClickAt({PlaceOf("text").X + PlaceOf("text").W - 1, MiddleOf("text").Y});
    EXPECT_EQ(Edit().Caret, 6u);
}

TEST_F(TextBox, TypingGoesInWhereTheCaretIs)
{
    Set("abc");
    ClickAt(Before(1));
    Type("xy");
    EXPECT_EQ(Text(), "axybc");
    Character(static_cast<std::uint8_t>(0xE8));
    EXPECT_EQ(Text(), "axyèbc");
    Character(8);
    Press(Delete);
    EXPECT_EQ(Text(), "axyc");
    Press(Home);
    Type("1");
    Press(End);
    Type("2");
    EXPECT_EQ(Text(), "1axyc2");
}

TEST_F(TextBox, DraggingSelectsBothWays)
{
    Set("abcdef");
    Drag(Before(4), Before(1));
    EXPECT_EQ(forms::Selected(Edit(), Text()), "bcd");
    EXPECT_EQ(Edit().Caret, 1u);
    Wait(1000);
    Drag(Before(2), {PlaceOf("text").X + 300, 190}); // far beyond the box
    EXPECT_EQ(forms::Selected(Edit(), Text()), "cdef");
    Input.MouseMove(false, Before(0)); // the button is up
    EXPECT_EQ(forms::Selected(Edit(), Text()), "cdef");
    EXPECT_TRUE(Clicks.empty());
}

TEST_F(TextBox, ADoubleClickSelectsAll)
{
    Set("abc def");
    ClickAt(Before(2));
    Wait(200);
    ClickAt(Before(2));
    EXPECT_EQ(forms::Selected(Edit(), Text()), "abc def");
    Wait(200);
    ClickAt(Before(2)); // a third one places the caret
    EXPECT_TRUE(Edit().IsEmpty());
    Wait(2000);
    ClickAt(Before(2)); // too late
    EXPECT_TRUE(Edit().IsEmpty());
    Wait(100);
    ClickAt(Before(6)); // elsewhere
    EXPECT_TRUE(Edit().IsEmpty());
}

TEST_F(TextBox, ShiftExtendsTheSelectionOfAClick)
{
    Set("abcdef");
    ClickAt(Before(1));
    Wait(1000);
    Input.KeyDown(Shift);
    ClickAt(Before(4));
    EXPECT_EQ(forms::Selected(Edit(), Text()), "bcd");
    Press(Right);
    EXPECT_EQ(forms::Selected(Edit(), Text()), "bcde");
    Input.KeyUp(Shift);
    Press(Right);
    EXPECT_TRUE(Edit().IsEmpty());
}

TEST_F(TextBox, TheClipboardCopiesCutsAndPastes)
{
    Set("Città");
    Click("text");
    Character(CtrlA);
    Character(CtrlC);
    EXPECT_EQ(Clipboard, "Città");
    EXPECT_EQ(Text(), "Città");
    Press(End);
    Character(CtrlV);
    EXPECT_EQ(Text(), "CittàCittà");
    Character(CtrlA);
    Character(CtrlX);
    EXPECT_EQ(Text(), "");
    EXPECT_EQ(Clipboard, "CittàCittà");
    Character(CtrlC); // nothing is selected: the clipboard keeps what it has
    Character(CtrlX);
    EXPECT_EQ(Clipboard, "CittàCittà");
    PressWith(Shift, Insert);
    EXPECT_EQ(Text(), "CittàCittà");
    PressWith(Shift, Home);
    PressWith(Ctrl, Insert);
    PressWith(Shift, Delete);
    EXPECT_EQ(Text(), "");
}

TEST_F(TextBox, OddClipboardsAreStood)
{
    Set("abc");
    Click("text");
    Character(CtrlA);
    Clipboard = "";
    Character(CtrlV);
    EXPECT_EQ(Text(), "abc");
    Clipboard = "\r\n\t";
    Character(CtrlV);
    EXPECT_EQ(Text(), "abc");
    Clipboard = "1\r\n2\t3";
    Character(CtrlV);
    EXPECT_EQ(Text(), "123");
    Clipboard.assign(20'000'000, 'x');
    Character(CtrlV);
    EXPECT_EQ(Text().size(), forms::LongestLine);
    Paint();
    Clipboard.assign(3'000'000, '\n');
    Character(CtrlV);
    EXPECT_EQ(Text().size(), forms::LongestLine);
}

TEST_F(TextBox, TheCaretIsPaintedInFrontOfItsLetter)
{
    Set("mmmm");
    for (std::size_t byte = 0; byte <= 4; ++byte)
    {
        Wait(1000);
        ClickAt(Before(byte));
        Paint();
        const std::int32_t column = Room().X + forms::CaretColumn(At("text"), byte);
        const std::int32_t top = Room().Y + 3; // above the letters
        EXPECT_EQ(PixelAt(column, top), support::ToRgb(forms::Pale)) << byte;
        EXPECT_EQ(ColumnsOf(forms::Pale, top), std::pair(column, column)) << byte;
    }
    Form.Focus = -1;
    Paint();
    EXPECT_EQ(ColumnsOf(forms::Pale, Room().Y + 3).first, -1); // no focus, no caret
}

TEST_F(TextBox, TheSelectionIsPaintedBehindItsLetters)
{
    Set("iiiiii");
    Drag(Before(1), Before(4));
    Paint();
    const std::int32_t top = Room().Y + 3;
    const std::int32_t left = Room().X + forms::CaretColumn(At("text"), 1);
    const std::int32_t right = Room().X + forms::CaretColumn(At("text"), 4);
    EXPECT_EQ(ColumnsOf(forms::AccentDeep, top), std::pair(left, right - 1));
    EXPECT_EQ(PixelAt(right, top), support::ToRgb(forms::Pale)); // the caret
    EXPECT_EQ(CountOf({right + 1, Room().Y, Room().X + Room().W - right - 1, Room().H}, forms::AccentDeep), 0);
}

TEST_F(TextBox, ALongTextScrollsWithTheCaret)
{
    Set("");
    Click("text");
    Type("Una riga che non entra nella sua casella");
    EXPECT_GT(Marks().Scroll, 0);
    const std::int32_t whole = forms::CaretColumn(At("text"), Text().size());
    EXPECT_EQ(Marks().Scroll, whole + forms::CaretWidth(At("text")) - Room().W);
    Paint();
    EXPECT_EQ(PixelAt(Room().X + Room().W - 1, Room().Y + 3), support::ToRgb(forms::Pale)); // the caret at the edge
    const std::int32_t scroll = Marks().Scroll;
    Press(Left); // still seen: nothing moves
    EXPECT_EQ(Marks().Scroll, scroll);
    Press(Home);
    EXPECT_EQ(Marks().Scroll, 0);
    Press(End);
    Character(CtrlA);
    Character(8);
    EXPECT_EQ(Marks().Scroll, 0);
}

TEST_F(TextBox, ADragBeyondTheEdgeScrolls)
{
    Set("Una riga che non entra nella sua casella");
    ClickAt(Before(2));
    Wait(1000);
    Input.MouseDown(Before(2), Now);
    for (int i = 0; i < 50; ++i)
        Input.MouseMove(true, {Room().X + Room().W + 20, MiddleOf("text").Y});
    EXPECT_EQ(Edit().Caret, Text().size());
    EXPECT_GT(Marks().Scroll, 0);
    for (int i = 0; i < 50; ++i)
        Input.MouseMove(true, {Room().X - 20, MiddleOf("text").Y});
    EXPECT_EQ(Edit().Caret, 0u);
    EXPECT_EQ(Marks().Scroll, 0);
    EXPECT_EQ(Edit().Anchor, 2u);
}

TEST_F(TextBox, NoLetterLeavesTheBox)
{
    Set("");
    Form.Focus = -1;
    Paint();
    const std::vector<std::uint8_t> before = Canvas.Bytes;
    Set(std::string(200, 'W'));
    Paint();
    const forms::Rect room = Room();
    for (std::int32_t y = 0; y < Canvas.Height; ++y)
        for (std::int32_t x = 0; x < Canvas.Width; ++x)
        {
            const std::size_t at = static_cast<std::size_t>(Canvas.At(x, y) - Canvas.Bytes.data());
            ASSERT_TRUE(forms::Contains(room, x, y) || Canvas.Bytes[at] == before[at]) << x << "," << y;
        }
    EXPECT_NE(Canvas.Bytes, before);
}

TEST_F(TextBox, ADisabledBoxIsGreyAndTakesNothing)
{
    Set("abc");
    At("text").Enabled = base::False;
    EXPECT_TRUE(Input.MouseDown(MiddleOf("text"), Now)); // nothing is dragged by it either
    Input.MouseUp(MiddleOf("text"));
    EXPECT_EQ(Focus(), "");
    Type("x");
    EXPECT_EQ(Text(), "abc");
    Paint();
    EXPECT_EQ(CountOf(Room(), forms::Pale), 0);
    EXPECT_GT(CountOf(Room(), forms::Faint), 0);
    At("text").Enabled = base::True;
    Paint();
    EXPECT_GT(CountOf(Room(), forms::Pale), 0);
}

TEST_F(TextBox, ABoxThatIsDisabledWhileItIsTypedInLosesTheFocus)
{
    Click("text");
    At("panel").Enabled = base::False;
    Type("x");
    EXPECT_EQ(Focus(), "");
    EXPECT_EQ(Text(), "abc");
    EXPECT_EQ(Losses.back(), "text");
}

TEST_F(TextBox, WhateverTheTextIsSetToTheBoxStandsIt)
{
    std::string all;
    for (int i = 0; i < 3; ++i)
        for (int byte = 0; byte < 256; ++byte)
            all += static_cast<char>(byte);
    for (const std::string& text :
         {std::string(), std::string(4000, 'W'), all, std::string("\xE2\x82"), std::string(100, '\xC3')})
    {
        Click("text");
        Press(End);
        Text() = text; // under the caret
        Paint();
        for (const std::int16_t key : {End, Left, Left, Home, Right, Delete, End})
        {
            Press(key);
            PressWith(Shift, key);
            Paint();
        }
        Character(CtrlA);
        Character(CtrlC);
        Type("z");
        EXPECT_EQ(Text(), "z");
    }
}

TEST_F(TextBox, ATextSetByTheProgramPutsTheCaretBehindIt)
{
    Click("text");
    Character(CtrlA);
    Text() = "12";
    Type("3");
    EXPECT_EQ(Text(), "123");
}

TEST_F(TextBox, TheFocusIsSeenAndSoIsThePointer)
{
    Form.Focus = -1;
    const forms::Rect place = PlaceOf("text");
    const platform::Point edge = {place.X + place.W / 2, place.Y};
    Paint();
    const support::Rgb plain = PixelAt(edge.X, edge.Y);
    Input.MouseMove(false, MiddleOf("text"));
    Paint();
    EXPECT_GT(PixelAt(edge.X, edge.Y)[1], plain[1]); // paler
    Click("text");
    Paint();
    EXPECT_EQ(PixelAt(edge.X, edge.Y), support::ToRgb(forms::Accent));
}
}
