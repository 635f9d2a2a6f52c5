// SPDX-License-Identifier: Zlib
// Clicking, pointing and dragging with the mouse.
#include "tests/support/LoadedForm.h"

#include <gtest/gtest.h>

namespace
{
constexpr int Left = 1, Right = 2;

struct Mouse : testing::Test, support::LoadedForm
{
    platform::Point MiddleOf(std::string_view name)
    {
        const forms::Rect place = Form.Controls().PlaceOf(Control(name));
        return {place.X + place.W / 2, place.Y + place.H / 2};
    }
    void ClickAt(platform::Point at)
    {
        Form.MouseDown(Left, at);
        Form.MouseUp(Left, at);
    }
    // The pointer goes from one screen position to another, the left button held from `at` on.
    void Drag(platform::Point at, platform::Point from, platform::Point to)
    {
        Machine.Cursor = from;
        Form.MouseDown(Left, at);
        Machine.Cursor = to;
        Form.MouseMove(Left, at);
        Form.MouseUp(Left, at);
    }
};

TEST_F(Mouse, AClickIsAPressAndAReleaseOnOneControl)
{
    Load();
    Form.MouseDown(Left, MiddleOf("cOPZIONI"));
    EXPECT_EQ(Control("panelOption").Visible, base::False);
    Form.MouseUp(Left, MiddleOf("cCREDIT"));
    EXPECT_EQ(Control("panelOption").Visible, base::False);
    EXPECT_EQ(Control("panelCredits").Visible, base::False);
    ClickAt(MiddleOf("cOPZIONI"));
    EXPECT_EQ(Control("panelOption").Visible, base::True);
}

TEST_F(Mouse, APanelCoversTheMenu)
{
    Load();
    const platform::Point entry = MiddleOf("cEXIT");
    Form.Click("cCREDIT");
    ClickAt(entry);
    EXPECT_FALSE(Form.Ended());
    ClickAt(MiddleOf("cCreditOK"));
    EXPECT_EQ(Control("panelCredits").Visible, base::False);
    ClickAt(entry);
    EXPECT_TRUE(Form.Ended());
}

TEST_F(Mouse, OnlyTheLeftButtonActs)
{
    Load();
    Form.MouseDown(Right, MiddleOf("cCREDIT"));
    Form.MouseUp(Right, MiddleOf("cCREDIT"));
    EXPECT_EQ(Control("panelCredits").Visible, base::False);
}

TEST_F(Mouse, PointingHighlights)
{
    Load();
    const std::vector<std::uint8_t> plain = Window().Screenshot().Bytes;
    Form.MouseMove(0, MiddleOf("cCREDIT"));
    EXPECT_NE(Window().Screenshot().Bytes, plain);
    Form.MouseMove(0, {1, 1});
    EXPECT_EQ(Window().Screenshot().Bytes, plain);
}

TEST_F(Mouse, TheWindowFollowsTheDraggedPointer)
{
    StartRace();
    Window().Move({100, 50});
    Drag({10, 10}, {400, 300}, {437, 280});
    EXPECT_EQ(Window().Position().X, 137);
    EXPECT_EQ(Window().Position().Y, 30);
    Machine.Cursor = {900, 900};
    Form.MouseMove(0, {10, 10}); // the button is up
    EXPECT_EQ(Window().Position().X, 137);
}

TEST_F(Mouse, EntriesAndOtherButtonsDoNotDrag)
{
    Load();
    Window().Move({100, 50});
    Drag(MiddleOf("cOPZIONI"), {400, 300}, {437, 280});
    EXPECT_EQ(Window().Position().X, 100);
    Machine.Cursor = {0, 0};
    Form.MouseDown(Right, {1, 1});
    Machine.Cursor = {50, 50};
    Form.MouseMove(Right, {1, 1});
    EXPECT_EQ(Window().Position().X, 100);
}

TEST_F(Mouse, AFullScreenStaysWhereItIs)
{
    StartRace();
    Window().Move({100, 50});
    Game().Settings.FullScreen = base::True;
    Drag({10, 10}, {400, 300}, {437, 280});
    EXPECT_EQ(Window().Position().X, 100);
    EXPECT_EQ(Window().Position().Y, 50);
}

TEST_F(Mouse, ClickingBesideABindingGivesItUp)
{
    Load();
    Form.Click("cCtrOpt");
    Form.Click("cCtrKey", 10);
    ClickAt({2, 2});
    EXPECT_EQ(Control("cCtrKey", 10).Caption, "Spazio");
    PressAndRelease(65);
    EXPECT_EQ(Game().Bindings.Bindings[10], 32);
}
}
